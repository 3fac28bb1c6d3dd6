#include "host/cim_variant.h"

#include <charconv>
#include <cstdint>
#include <cstring>
#include <optional>

#include "host/cim_type.h"
#include "host/results.h"

namespace tqcim::host {
namespace {

VARTYPE ElementType(CimType type) {
  switch (type) {
    case CimType::kSint8:
    case CimType::kSint16:
    case CimType::kChar16:
      return VT_I2;
    case CimType::kUint8:
      return VT_UI1;
    case CimType::kUint16:
    case CimType::kSint32:
    case CimType::kUint32:
      return VT_I4;
    case CimType::kReal32:
      return VT_R4;
    case CimType::kReal64:
      return VT_R8;
    case CimType::kBoolean:
      return VT_BOOL;
    default:
      return VT_BSTR;
  }
}

/// The elements of an array, or the one value of a VARIANT, one behind the other.
class Elements {
 public:
  explicit Elements(const VARIANT& value) : data_(&V_UI1(&value)) {
    if (!V_ISARRAY(&value)) return;
    array_ = V_ARRAY(&value);
    LONG lower = 0;
    LONG upper = -1;
    void* data = nullptr;
    SafeArrayGetLBound(array_, 1, &lower);
    SafeArrayGetUBound(array_, 1, &upper);
    SafeArrayAccessData(array_, &data);
    data_ = data;
    count_ = static_cast<size_t>(int64_t{upper} - lower + 1);
  }
  ~Elements() {
    if (array_) SafeArrayUnaccessData(array_);
  }
  Elements(const Elements&) = delete;
  Elements& operator=(const Elements&) = delete;

  size_t count() const { return count_; }

  template <typename T>
  T At(size_t index) const {
    T element;
    std::memcpy(&element, static_cast<const char*>(data_) + index * sizeof(T), sizeof(T));
    return element;
  }
  std::string TextAt(size_t index) const {
    const BSTR text = At<BSTR>(index);
    return ToUtf8(WideView(text, SysStringLen(text)));
  }

 private:
  const void* data_;
  SAFEARRAY* array_ = nullptr;
  size_t count_ = 1;
};

/// The number that a text is in full.
template <typename T>
std::optional<T> ReadNumber(const std::string& text) {
  T number = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return number;
}

/// The value at `index`, or nothing where it is outside of its type.
std::optional<Scalar> ScalarAt(const Elements& elements, size_t index, CimType type) {
  const auto in_range = [type](int64_t number) -> std::optional<Scalar> {
    const IntegerRange range = *RangeOf(type);
    if (number < range.least || number > range.largest) return std::nullopt;
    return number;
  };
  switch (type) {
    case CimType::kSint8:
    case CimType::kSint16:
      return in_range(elements.At<int16_t>(index));
    case CimType::kSint32:
      return int64_t{elements.At<int32_t>(index)};
    case CimType::kUint8:
      return uint64_t{elements.At<uint8_t>(index)};
    case CimType::kChar16:
      return uint64_t{elements.At<uint16_t>(index)};
    case CimType::kUint16:
      if (!in_range(elements.At<int32_t>(index))) return std::nullopt;
      return uint64_t{elements.At<uint32_t>(index)};
    case CimType::kUint32:
      return uint64_t{elements.At<uint32_t>(index)};
    case CimType::kReal32:
      return double{elements.At<float>(index)};
    case CimType::kReal64:
      return elements.At<double>(index);
    case CimType::kBoolean:
      return elements.At<VARIANT_BOOL>(index) != 0;
    case CimType::kSint64:
      if (const auto number = ReadNumber<int64_t>(elements.TextAt(index))) return *number;
      return std::nullopt;
    case CimType::kUint64:
      if (const auto number = ReadNumber<uint64_t>(elements.TextAt(index))) return *number;
      return std::nullopt;
    default:
      return elements.TextAt(index);
  }
}

/// Writes one value of an array or a VARIANT; texts are allocated.
void Store(const Scalar& scalar, VARTYPE element_type, void* place) {
  const auto number = [&scalar]() -> int64_t {
    if (const auto* positive = std::get_if<uint64_t>(&scalar)) {
      return static_cast<int64_t>(*positive);
    }
    return std::get<int64_t>(scalar);
  };
  const auto put = [place](auto value) { std::memcpy(place, &value, sizeof(value)); };
  switch (element_type) {
    case VT_I2:
      return put(static_cast<int16_t>(number()));
    case VT_UI1:
      return put(static_cast<uint8_t>(number()));
    case VT_I4:
      return put(static_cast<int32_t>(number()));
    case VT_R4:
      return put(static_cast<float>(std::get<double>(scalar)));
    case VT_R8:
      return put(std::get<double>(scalar));
    case VT_BOOL:
      return put(std::get<bool>(scalar) ? VARIANT_TRUE : VARIANT_FALSE);
    default:
      break;
  }
  if (const auto* text = std::get_if<std::string>(&scalar)) return put(MakeBstr(*text).release());
  if (const auto* positive = std::get_if<uint64_t>(&scalar)) {
    return put(MakeBstr(std::to_string(*positive)).release());
  }
  put(MakeBstr(std::to_string(number())).release());
}

bool IsArrayOf(const VARIANT& value, VARTYPE element_type) {
  VARTYPE held = VT_EMPTY;
  SAFEARRAY* array = V_ARRAY(&value);
  return array && SafeArrayGetDim(array) == 1 && SUCCEEDED(SafeArrayGetVartype(array, &held)) &&
         held == element_type;
}

VARTYPE VariantTypeOf(CimType type, bool array) {
  return static_cast<VARTYPE>(ElementType(type) | (array ? VT_ARRAY : 0));
}

/// Arrays with CIM_FLAG_ARRAY.
CIMTYPE CimTypeCode(const PropertyDefinition& property) {
  return static_cast<CIMTYPE>(property.type) |
         (property.array ? static_cast<CIMTYPE>(CIM_FLAG_ARRAY) : 0);
}

}  // namespace

bool StandsForNull(const VARIANT& value) {
  return V_VT(&value) == VT_NULL || (V_VT(&value) == VT_BSTR && !V_BSTR(&value));
}

HRESULT CheckValue(const PropertyDefinition& property, const VARIANT& value, CIMTYPE type) {
  if (type != 0 && type != CimTypeCode(property)) return kTypeMismatch;
  if (V_VT(&value) == VT_NULL) return WBEM_S_NO_ERROR;
  if (V_VT(&value) != VariantTypeOf(property.type, property.array)) return kTypeMismatch;
  if (StandsForNull(value)) return WBEM_S_NO_ERROR;
  if (property.array && !IsArrayOf(value, ElementType(property.type))) return kTypeMismatch;
  const Elements elements(value);
  for (size_t i = 0; i < elements.count(); ++i) {
    if (!ScalarAt(elements, i, property.type)) return kTypeMismatch;
  }
  return WBEM_S_NO_ERROR;
}

Value ToValue(const VARIANT& value, const PropertyDefinition& property) {
  if (StandsForNull(value)) return {};
  const Elements elements(value);
  if (!property.array) return ToValue(*ScalarAt(elements, 0, property.type));
  Array array;
  for (size_t i = 0; i < elements.count(); ++i) {
    array.push_back(*ScalarAt(elements, i, property.type));
  }
  return array;
}

OwnedVariant ToVariant(const Value& value, CimType type, bool array) {
  OwnedVariant variant;
  V_VT(&variant) = VT_NULL;
  if (IsNull(value)) return variant;
  if (!array) {
    Store(*ToScalar(value), ElementType(type), &V_UI1(&variant));
  } else {
    const auto& elements = std::get<Array>(value);
    SAFEARRAY* stored =
        SafeArrayCreateVector(ElementType(type), 0, static_cast<ULONG>(elements.size()));
    if (!stored) return variant;
    void* data = nullptr;
    SafeArrayAccessData(stored, &data);
    const size_t size = stored->cbElements;
    for (size_t i = 0; i < elements.size(); ++i) {
      Store(elements[i], ElementType(type), static_cast<char*>(data) + i * size);
    }
    SafeArrayUnaccessData(stored);
    V_ARRAY(&variant) = stored;
  }
  V_VT(&variant) = VariantTypeOf(type, array);
  return variant;
}

}  // namespace tqcim::host
