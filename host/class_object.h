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

  /// On an instance, by name in any case. WBEM_E_NOT_FOUND for a property that the class doesn't
  /// declare, WBEM_E_TYPE_MISMATCH for a value that is not of its type; ToInstance tells of both.
  /// A null `value` stands for VT_NULL. A definition refuses with WBEM_E_NOT_SUPPORTED.
  HRESULT STDMETHODCALLTYPE Put(LPCWSTR name, LONG flags, VARIANT* value, CIMTYPE type) override;

  /// On a definition; an instance refuses with WBEM_E_NOT_SUPPORTED.
  HRESULT STDMETHODCALLTYPE SpawnInstance(LONG flags, IWbemClassObject** instance) override;

 private:
  enum class Kind { kDefinition, kInstance };
  ClassObject(std::shared_ptr<const Schema> schema, const ClassDefinition& definition, Kind kind);

  std::shared_ptr<const Schema> schema_;
  const ClassDefinition& definition_;
  Kind kind_;
  std::vector<OwnedVariant> values_;  // in the order of the definition's properties
  std::vector<bool> put_;
  std::vector<std::string> refused_puts_;
};

}  // namespace tqcim::host
