#include "core/variant.h"

#include "core/text.h"

namespace tqcim {

namespace {

/// What SafeArrayPutElement, which copies the element, is given.
void* ElementAddress(int32_t& element) {
  return &element;
}
void* ElementAddress(int16_t& element) {
  return &element;
}
void* ElementAddress(Bstr& element) {
  return element.get();
}

}  // namespace

template <typename T, typename MakeElement>
Variant Variant::Array(VARTYPE elementType, std::span<T> values, MakeElement makeElement) {
  Variant variant;
  SAFEARRAY* const array = SafeArrayCreateVector(elementType, 0, static_cast<ULONG>(values.size()));
  if (!array) return variant;
  V_VT(&variant.value_) = static_cast<VARTYPE>(VT_ARRAY | elementType);
  V_ARRAY(&variant.value_) = array;
  LONG position = 0;
  for (const auto& value : values) {
    auto element = makeElement(value);
    SafeArrayPutElement(array, &position, ElementAddress(element));
    ++position;
  }
  return variant;
}

Variant Variant::Text(Bstr text) {
  Variant variant;
  V_VT(&variant.value_) = VT_BSTR;
  V_BSTR(&variant.value_) = text.release();
  return variant;
}

Variant Variant::Text(const char* text) {
  return Text(NarrowToBstr(text));
}

Variant Variant::Int32(int32_t value) {
  Variant variant;
  V_VT(&variant.value_) = VT_I4;
  V_I4(&variant.value_) = value;
  return variant;
}

Variant Variant::Uint8(uint8_t value) {
  Variant variant;
  V_VT(&variant.value_) = VT_UI1;
  V_UI1(&variant.value_) = value;
  return variant;
}

Variant Variant::Bool(VARIANT_BOOL value) {
  Variant variant;
  V_VT(&variant.value_) = VT_BOOL;
  V_BOOL(&variant.value_) = value;
  return variant;
}

Variant Variant::Int16(int16_t value) {
  Variant variant;
  V_VT(&variant.value_) = VT_I2;
  V_I2(&variant.value_) = value;
  return variant;
}

Variant Variant::Int32Array(std::span<const int32_t> values) {
  return Array(VT_I4, values, [](int32_t value) { return value; });
}

Variant Variant::Int16Array(std::span<const int16_t> values) {
  return Array(VT_I2, values, [](int16_t value) { return value; });
}

Variant Variant::TextArray(std::span<const OLECHAR* const> texts) {
  return Array(VT_BSTR, texts, [](const OLECHAR* text) { return Bstr(text); });
}

}  // namespace tqcim
