#include "host/class_object.h"

#include "host/text.h"

namespace tqcim::host {
namespace {

/// Asks an object whether it is the host's own.
constexpr IID kHostObject = {
    0x1d7c9b52, 0x6e0a, 0x4c33, {0x9a, 0x41, 0x75, 0xe2, 0x08, 0xbd, 0x6f, 0x14}};

}  // namespace

ClassObject::ClassObject(std::shared_ptr<const Schema> schema, const ClassDefinition& definition,
                         Kind kind)
    : schema_(std::move(schema)), definition_(definition), kind_(kind) {
  values_.reserve(definition_.properties.size());
  for (const auto& property : definition_.properties) {
    values_.push_back(ToVariant(property->default_value, property->type, property->array));
  }
  put_.resize(values_.size());
}

Com<ClassObject> ClassObject::Definition(std::shared_ptr<const Schema> schema,
                                         const ClassDefinition& definition) {
  // A count of references of its own: the instances of one request don't share that of another's.
  const auto own = std::make_shared<const std::shared_ptr<const Schema>>(std::move(schema));
  return Com<ClassObject>(new ClassObject({own, own->get()}, definition, Kind::kDefinition));
}

const ClassObject* ClassObject::Behind(IWbemClassObject* object) {
  void* own = nullptr;
  if (!object || FAILED(object->QueryInterface(kHostObject, &own))) return nullptr;
  return static_cast<const ClassObject*>(own);
}

HRESULT ClassObject::QueryInterface(REFIID riid, void** object) {
  if (object && riid == kHostObject) {
    *object = this;
    return S_OK;
  }
  return RefusingClassObject::QueryInterface(riid, object);
}

Instance ClassObject::ToInstance() const {
  Instance instance;
  instance.schema = schema_;
  instance.definition = &definition_;
  instance.properties.reserve(values_.size());
  for (size_t i = 0; i < values_.size(); ++i) {
    const PropertyDefinition& property = *definition_.properties[i];
    instance.properties.push_back({property.name, property.type, property.array, property.key,
                                   put_[i], ToValue(values_[i], property)});
  }
  instance.refused_puts = refused_puts_;
  return instance;
}

HRESULT ClassObject::Put(LPCWSTR name, LONG flags, VARIANT* value, CIMTYPE type) {
  if (!name || flags != 0) return kInvalidParameter;
  if (kind_ == Kind::kDefinition) return kNotSupported;
  const std::string wanted = ToUtf8(name);
  const auto refuse = [&](HRESULT result) {
    refused_puts_.push_back(wanted);
    return result;
  };
  const std::optional<size_t> index = definition_.IndexOf(wanted);
  if (!index) return refuse(kNotFound);
  OwnedVariant copy;
  V_VT(&copy) = VT_NULL;
  const HRESULT checked = CheckValue(*definition_.properties[*index], value ? *value : copy, type);
  if (FAILED(checked)) return refuse(checked);
  if (value && !StandsForNull(*value) && FAILED(VariantCopy(&copy, value))) return kOutOfMemory;
  values_[*index] = std::move(copy);
  put_[*index] = true;
  return WBEM_S_NO_ERROR;
}

HRESULT ClassObject::SpawnInstance(LONG flags, IWbemClassObject** instance) {
  if (!instance || flags != 0) return kInvalidParameter;
  *instance = nullptr;
  if (kind_ == Kind::kInstance) return kNotSupported;
  *instance = new ClassObject(schema_, definition_, Kind::kInstance);
  return WBEM_S_NO_ERROR;
}

}  // namespace tqcim::host
