#include "host/name_space.h"

#include "host/class_object.h"
#include "host/text.h"

namespace tqcim::host {
namespace {

bool IsThisComputer(std::string_view server, std::string_view computer_name) {
  if (server.empty() || server == "." || EqualNames(server, "localhost")) return true;
  const std::string_view without_domain = server.substr(0, server.find('.'));
  return EqualNames(without_domain.substr(0, MAX_COMPUTERNAME_LENGTH), computer_name);
}

}  // namespace

bool IsInNamespace(const ObjectPath& path, std::string_view computer_name) {
  return IsThisComputer(path.server, computer_name) &&
         (path.namespaces.empty() || EqualNames(path.Namespace(), kNamespace));
}

const std::string& ComputerName() {
  static const std::string name = [] {
    char buffer[MAX_COMPUTERNAME_LENGTH + 1] = {};
    DWORD size = sizeof(buffer);
    return GetComputerNameA(buffer, &size) ? std::string(buffer, size) : std::string();
  }();
  return name;
}

HRESULT Namespace::QueryInterface(REFIID riid, void** object) {
  if (!object) return E_POINTER;
  const bool known = riid == IID_IUnknown || riid == IID_IWbemServices;
  *object = known ? static_cast<IWbemServices*>(this) : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

HRESULT Namespace::GetObject(BSTR path, LONG flags, IWbemContext*, IWbemClassObject** object,
                             IWbemCallResult**) {
  if (!path || !object) return kInvalidParameter;
  *object = nullptr;
  if (flags != 0) return kNotSupported;
  ObjectPath parsed;
  try {
    parsed = ParseObjectPath(ToUtf8(path));
  } catch (const PathError&) {
    return kInvalidObjectPath;
  }
  if (parsed.class_name.empty() || !IsInNamespace(parsed, ComputerName())) {
    return kInvalidObjectPath;
  }
  if (parsed.NamesInstance()) return kNotSupported;
  const ClassDefinition* definition = schema_->Find(parsed.class_name);
  if (!definition) return kNotFound;
  *object = ClassObject::Definition(schema_, *definition).Detach();
  return S_OK;
}

HRESULT Locator::ConnectServer(BSTR resource, BSTR, BSTR, BSTR, LONG, BSTR, IWbemContext*,
                               IWbemServices** services) {
  if (!resource || !services) return kInvalidParameter;
  *services = nullptr;
  ObjectPath path;
  try {
    path = ParseObjectPath(ToUtf8(resource));
  } catch (const PathError&) {
    return kInvalidNamespace;
  }
  const bool right = path.class_name.empty() && IsInNamespace(path, ComputerName());
  if (!right) return kInvalidNamespace;
  name_space_->AddRef();
  *services = name_space_.get();
  return S_OK;
}

}  // namespace tqcim::host
