/// What tests of the host's COM objects share.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>
#include <memory>
#include <string>

#include "host/class_object.h"

namespace tqcim::host {

/// What calls that fail return.
inline constexpr HRESULT kMissing = static_cast<HRESULT>(0x80041002);
inline constexpr HRESULT kMismatch = static_cast<HRESULT>(0x80041005);
inline constexpr HRESULT kBadArgument = static_cast<HRESULT>(0x80041008);
inline constexpr HRESULT kRefused = static_cast<HRESULT>(0x8004100C);
inline constexpr HRESULT kBadNamespace = static_cast<HRESULT>(0x8004100E);
inline constexpr HRESULT kBadPath = static_cast<HRESULT>(0x8004103A);
inline constexpr HRESULT kTooSmall = static_cast<HRESULT>(0x8004103C);

/// A schema from one MOF text, which it keeps.
inline std::shared_ptr<const Schema> SchemaFromText(std::string text) {
  struct SchemaAndText {
    explicit SchemaAndText(std::string kept) : text(std::move(kept)) {}
    std::string text;
    MofSource source{"test.mof", text};
    Schema schema = Schema::FromSources({&source, 1});
  };
  const auto both = std::make_shared<const SchemaAndText>(std::move(text));
  return {both, &both->schema};
}

/// A test after which no COM object of the host may be alive.
class HostObjectsTest : public ::testing::Test {
 protected:
  ~HostObjectsTest() override { EXPECT_EQ(0, LiveObject::Count()); }
};

inline Com<IWbemClassObject> Spawn(IWbemClassObject& definition) {
  IWbemClassObject* instance = nullptr;
  EXPECT_EQ(S_OK, definition.SpawnInstance(0, &instance));
  return Com<IWbemClassObject>(instance);
}

/// What the host's own object holds.
inline Instance InstanceBehind(const Com<IWbemClassObject>& object) {
  return ClassObject::Behind(object.get())->ToInstance();
}

/// VARIANTs as a provider makes them. All members of a VARIANT's union begin at one place.
template <typename T>
OwnedVariant VariantOf(VARTYPE type, T value) {
  OwnedVariant variant;
  V_VT(&variant) = type;
  std::memcpy(&V_I8(&variant), &value, sizeof value);
  return variant;
}
inline OwnedVariant I4(LONG value) {
  return VariantOf(VT_I4, value);
}
inline OwnedVariant I2(SHORT value) {
  return VariantOf(VT_I2, value);
}
inline OwnedVariant Ui1(BYTE value) {
  return VariantOf(VT_UI1, value);
}
inline OwnedVariant Bool(VARIANT_BOOL value) {
  return VariantOf(VT_BOOL, value);
}
inline OwnedVariant R4(float value) {
  return VariantOf(VT_R4, value);
}
inline OwnedVariant R8(double value) {
  return VariantOf(VT_R8, value);
}
inline OwnedVariant Text(const OLECHAR* value) {
  return VariantOf(VT_BSTR, SysAllocString(value));
}
inline OwnedVariant OfType(VARTYPE type) {
  OwnedVariant variant;
  V_VT(&variant) = type;
  return variant;
}

/// An array with lower bound 0; `type` and T belong together.
template <typename T>
OwnedVariant ArrayOf(VARTYPE type, std::initializer_list<T> values) {
  OwnedVariant variant;
  SAFEARRAY* array = SafeArrayCreateVector(type, 0, static_cast<ULONG>(values.size()));
  LONG index = 0;
  for (T value : values) {
    if constexpr (std::is_pointer_v<T>) {
      const Bstr text(value);
      EXPECT_EQ(S_OK, SafeArrayPutElement(array, &index, text.get()));
    } else {
      EXPECT_EQ(S_OK, SafeArrayPutElement(array, &index, &value));
    }
    ++index;
  }
  V_VT(&variant) = static_cast<VARTYPE>(VT_ARRAY | type);
  V_ARRAY(&variant) = array;
  return variant;
}

}  // namespace tqcim::host
