#include "host/class_object.h"

#include <array>

#include "host/refused_puts.h"
#include "host/text.h"

namespace tqcim::host {
namespace {

/// Asks an object whether it is the host's own.
constexpr IID kHostObject = {
    0x1d7c9b52, 0x6e0a, 0x4c33, {0x9a, 0x41, 0x75, 0xe2, 0x08, 0xbd, 0x6f, 0x14}};

constexpr std::array<std::string_view, 5> kSystemProperties = {"__GENUS", "__CLASS", "__SUPERCLASS",
                                                               "__RELPATH", "__PROPERTY_COUNT"};

bool IsSystemName(std::string_view name) {
  return name.starts_with("__");
}

OwnedVariant TextOrNull(std::string_view text) {
  return ToVariant(text.empty() ? Value{} : Value{std::string(text)}, CimType::kString, false);
}

OwnedVariant Number(int64_t number) {
  return ToVariant(number, CimType::kSint32, false);
}

/// Whether a property is among those that the flags of an enumeration ask for.
bool IsWanted(const PropertyDefinition& property, const ClassDefinition& definition, LONG flags) {
  const bool local = EqualNames(property.origin, definition.name);
  const LONG origin = flags & WBEM_MASK_CONDITION_ORIGIN;
  return !(origin == WBEM_FLAG_SYSTEM_ONLY || (origin == WBEM_FLAG_LOCAL_ONLY && !local) ||
           (origin == WBEM_FLAG_PROPAGATED_ONLY && local) ||
           ((flags & WBEM_FLAG_KEYS_ONLY) && !property.key) ||
           ((flags & WBEM_FLAG_REFS_ONLY) && property.type != CimType::kReference));
}

/// Whether the flags of an enumeration are among those that the host knows.
bool AreEnumerationFlags(LONG flags) {
  const LONG origin = flags & WBEM_MASK_CONDITION_ORIGIN;
  const LONG rest =
      flags & ~(WBEM_MASK_CONDITION_ORIGIN | WBEM_FLAG_KEYS_ONLY | WBEM_FLAG_REFS_ONLY);
  return rest == 0 &&
         (origin == 0 || origin == WBEM_FLAG_LOCAL_ONLY || origin == WBEM_FLAG_PROPAGATED_ONLY ||
          origin == WBEM_FLAG_SYSTEM_ONLY || origin == WBEM_FLAG_NONSYSTEM_ONLY);
}

/// Hands one property out; each place may be null.
HRESULT Deliver(const VARIANT& held, CIMTYPE held_type, LONG held_flavor, VARIANT* value,
                CIMTYPE* type, LONG* flavor) {
  if (type) *type = held_type;
  if (flavor) *flavor = held_flavor;
  if (!value) return WBEM_S_NO_ERROR;
  VariantInit(value);
  VARIANT source = held;
  return FAILED(VariantCopy(value, &source)) ? kOutOfMemory : S_OK;
}

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
  instance.put_order.reserve(put_order_.size());
  for (size_t i = 0; i < values_.size(); ++i) {
    const PropertyDefinition& property = *definition_.properties[i];
    instance.properties.push_back({property.name, property.type, property.array, property.key,
                                   put_[i], ToValue(values_[i], property)});
  }
  for (const size_t index : put_order_) {
    instance.put_order.push_back(definition_.properties[index]->name);
  }
  return instance;
}

std::string ClassObject::RelativePath() const {
  return kind_ == Kind::kDefinition ? std::string(definition_.name) : ToInstance().Path();
}

HRESULT ClassObject::GetSystemProperty(std::string_view name, VARIANT* value, CIMTYPE* type,
                                       LONG* flavor) const {
  const auto deliver = [&](const OwnedVariant& held) {
    const CIMTYPE held_type = V_VT(&held) == VT_I4 ? CIM_SINT32 : CIM_STRING;
    return Deliver(held, held_type, WBEM_FLAVOR_ORIGIN_SYSTEM, value, type, flavor);
  };
  if (EqualNames(name, "__CLASS")) return deliver(TextOrNull(definition_.name));
  if (EqualNames(name, "__SUPERCLASS")) return deliver(TextOrNull(definition_.superclass));
  if (EqualNames(name, "__RELPATH")) return deliver(TextOrNull(RelativePath()));
  if (EqualNames(name, "__GENUS")) {
    return deliver(Number(kind_ == Kind::kInstance ? WBEM_GENUS_INSTANCE : WBEM_GENUS_CLASS));
  }
  if (EqualNames(name, "__PROPERTY_COUNT")) {
    return deliver(Number(static_cast<int64_t>(values_.size())));
  }
  return kNotFound;
}

HRESULT ClassObject::Get(LPCWSTR name, LONG flags, VARIANT* value, CIMTYPE* type, LONG* flavor) {
  if (!name || flags != 0) return kInvalidParameter;
  const std::string wanted = ToUtf8(name);
  if (IsSystemName(wanted)) return GetSystemProperty(wanted, value, type, flavor);
  const std::optional<size_t> index = definition_.IndexOf(wanted);
  if (!index) return kNotFound;
  const PropertyDefinition& property = *definition_.properties[*index];
  const bool local = EqualNames(property.origin, definition_.name);
  return Deliver(values_[*index], CimTypeCode(property),
                 local ? WBEM_FLAVOR_ORIGIN_LOCAL : WBEM_FLAVOR_ORIGIN_PROPAGATED, value, type,
                 flavor);
}

HRESULT ClassObject::Put(LPCWSTR name, LONG flags, VARIANT* value, CIMTYPE type) {
  if (!name || flags != 0) return kInvalidParameter;
  if (kind_ == Kind::kDefinition) return kNotSupported;
  const std::string wanted = ToUtf8(name);
  const auto refuse = [&](HRESULT result) {
    RefusedPuts::Add(definition_.name, wanted, result);
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
  put_order_.push_back(*index);
  return WBEM_S_NO_ERROR;
}

std::vector<std::string> ClassObject::Names(LONG flags) const {
  std::vector<std::string> names;
  const LONG origin = flags & WBEM_MASK_CONDITION_ORIGIN;
  if ((origin == 0 || origin == WBEM_FLAG_SYSTEM_ONLY) &&
      !(flags & (WBEM_FLAG_KEYS_ONLY | WBEM_FLAG_REFS_ONLY))) {
    names.assign(kSystemProperties.begin(), kSystemProperties.end());
  }
  for (const PropertyDefinition* property : definition_.properties) {
    if (IsWanted(*property, definition_, flags)) names.emplace_back(property->name);
  }
  return names;
}

HRESULT ClassObject::GetNames(LPCWSTR qualifier, LONG flags, VARIANT*, SAFEARRAY** names) {
  if (!names || !AreEnumerationFlags(flags)) return kInvalidParameter;
  *names = nullptr;
  if (qualifier) return kNotSupported;
  Array array;
  for (std::string& name : Names(flags)) array.emplace_back(std::move(name));
  OwnedVariant variant = ToVariant(array, CimType::kString, true);
  if (V_VT(&variant) == VT_NULL) return kOutOfMemory;
  *names = V_ARRAY(&variant);
  VariantInit(&variant);
  return WBEM_S_NO_ERROR;
}

HRESULT ClassObject::BeginEnumeration(LONG flags) {
  if (!AreEnumerationFlags(flags)) return kInvalidParameter;
  enumeration_ = Names(flags);
  next_ = 0;
  enumerating_ = true;
  return WBEM_S_NO_ERROR;
}

HRESULT ClassObject::Next(LONG flags, BSTR* name, VARIANT* value, CIMTYPE* type, LONG* flavor) {
  if (name) *name = nullptr;
  if (flags != 0) return kInvalidParameter;
  if (!enumerating_) return kUnexpected;
  if (next_ == enumeration_.size()) return WBEM_S_NO_MORE_DATA;
  const WideText wide = ToWide(enumeration_[next_++]);
  const HRESULT result = Get(wide.c_str(), 0, value, type, flavor);
  if (SUCCEEDED(result) && name) *name = Bstr(WideView(wide)).release();
  return result;
}

HRESULT ClassObject::EndEnumeration() {
  enumerating_ = false;
  return WBEM_S_NO_ERROR;
}

HRESULT ClassObject::Clone(IWbemClassObject** copy) {
  if (!copy) return kInvalidParameter;
  Com<ClassObject> cloned(new ClassObject(schema_, definition_, kind_));
  for (size_t i = 0; i < values_.size(); ++i) {
    if (FAILED(VariantCopy(&cloned->values_[i], &values_[i]))) return kOutOfMemory;
  }
  cloned->put_ = put_;
  cloned->put_order_ = put_order_;
  *copy = cloned.Detach();
  return WBEM_S_NO_ERROR;
}

HRESULT ClassObject::SpawnInstance(LONG flags, IWbemClassObject** instance) {
  if (!instance || flags != 0) return kInvalidParameter;
  *instance = nullptr;
  if (kind_ == Kind::kInstance) return kNotSupported;
  *instance = new ClassObject(schema_, definition_, Kind::kInstance);
  return WBEM_S_NO_ERROR;
}

HRESULT ClassObject::GetPropertyOrigin(LPCWSTR name, BSTR* class_name) {
  if (!name || !class_name) return kInvalidParameter;
  *class_name = nullptr;
  const PropertyDefinition* property = definition_.Find(ToUtf8(name));
  if (!property) return kNotFound;
  *class_name = MakeBstr(property->origin).release();
  return *class_name ? S_OK : kOutOfMemory;
}

}  // namespace tqcim::host
