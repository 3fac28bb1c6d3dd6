/// Class definitions and instances as COM objects.
#pragma once

#include <memory>
#include <vector>

#include "host/cim_variant.h"
#include "host/com.h"
#include "host/instance.h"
#include "host/results.h"
#include "host/schema.h"
#include "platform/refusing_interfaces.h"

namespace tqcim::host {

/// A class definition, or an instance of one. Keeps the schema alive. An object belongs to one
/// thread at a time.
class ClassObject final
    : public RefusingClassObject<ComObject<IWbemClassObject, IID_IWbemClassObject>> {
 public:
  /// The definition of a class of the schema.
  static Com<ClassObject> Definition(std::shared_ptr<const Schema> schema,
                                     const ClassDefinition& definition);

  /// The host's own object behind an interface; null if another implementation stands there. It
  /// lives as long as the caller's reference to the interface.
  static const ClassObject* Behind(IWbemClassObject* object);

  /// An instance as plain values.
  Instance ToInstance() const;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override;

  /// Properties by name in any case, and the system properties __GENUS, __CLASS, __SUPERCLASS,
  /// __RELPATH and __PROPERTY_COUNT. Each of the three results may be null.
  HRESULT STDMETHODCALLTYPE Get(LPCWSTR name, LONG flags, VARIANT* value, CIMTYPE* type,
                                LONG* flavor) override;

  /// On an instance. WBEM_E_NOT_FOUND for a property that the class doesn't declare,
  /// WBEM_E_TYPE_MISMATCH for a value that is not of its type; both go into RefusedPuts. A null
  /// `value` stands for VT_NULL. A definition refuses with WBEM_E_NOT_SUPPORTED.
  HRESULT STDMETHODCALLTYPE Put(LPCWSTR name, LONG flags, VARIANT* value, CIMTYPE type) override;

  /// Without a qualifier: names by origin and kind (WBEM_FLAG_..._ONLY).
  HRESULT STDMETHODCALLTYPE GetNames(LPCWSTR qualifier, LONG flags, VARIANT* qualifier_value,
                                     SAFEARRAY** names) override;
  HRESULT STDMETHODCALLTYPE BeginEnumeration(LONG flags) override;
  HRESULT STDMETHODCALLTYPE Next(LONG flags, BSTR* name, VARIANT* value, CIMTYPE* type,
                                 LONG* flavor) override;
  HRESULT STDMETHODCALLTYPE EndEnumeration() override;

  HRESULT STDMETHODCALLTYPE Clone(IWbemClassObject** copy) override;
  /// On a definition; an instance refuses with WBEM_E_NOT_SUPPORTED.
  HRESULT STDMETHODCALLTYPE SpawnInstance(LONG flags, IWbemClassObject** instance) override;
  HRESULT STDMETHODCALLTYPE GetPropertyOrigin(LPCWSTR name, BSTR* class_name) override;

 private:
  enum class Kind { kDefinition, kInstance };
  ClassObject(std::shared_ptr<const Schema> schema, const ClassDefinition& definition, Kind kind);

  HRESULT GetSystemProperty(std::string_view name, VARIANT* value, CIMTYPE* type,
                            LONG* flavor) const;
  /// The relative path; empty while a key is null.
  std::string RelativePath() const;
  std::vector<std::string> Names(LONG flags) const;

  std::shared_ptr<const Schema> schema_;
  const ClassDefinition& definition_;
  Kind kind_;
  std::vector<OwnedVariant> values_;  // in the order of the definition's properties
  std::vector<bool> put_;
  std::vector<size_t> put_order_;
  std::vector<std::string> enumeration_;
  size_t next_ = 0;
  bool enumerating_ = false;
};

}  // namespace tqcim::host
