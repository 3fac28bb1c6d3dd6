#include "core/provider_requests.h"

#include <atomic>
#include <vector>

#include "core/class_registry.h"
#include "core/results.h"
#include "core/text.h"

namespace tqcim {
namespace {

/// Written by every Initialize and never released.
std::atomic<IWbemServices*> namespaceConnection = nullptr;

/// The multithreaded apartment for the duration of a request. It is left even where it could not be
/// entered.
class Apartment {
 public:
  Apartment() : status_(CoInitializeEx(nullptr, COINIT_MULTITHREADED)) {}
  ~Apartment() { CoUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;

  bool Entered() const { return SUCCEEDED(status_); }

 private:
  HRESULT status_;
};

HRESULT FetchClassDefinition(BSTR className, Com<IWbemClassObject>& classDefinition) {
  IWbemServices* const connection = namespaceConnection;
  if (!connection) return kFailed;
  return connection->GetObject(className, 0, nullptr, classDefinition.Receive(), nullptr);
}

/// The class that a parsed path names; null where it names none.
Bstr ClassNameOf(IWbemPath* path) {
  ULONG length = 0;
  if (FAILED(path->GetClassName(&length, nullptr)) || length == 0) return {};
  std::vector<OLECHAR> buffer(length + 1);
  if (FAILED(path->GetClassName(&length, buffer.data()))) return {};
  return Bstr(buffer.data());
}

}  // namespace

void ConnectToNamespace() {
  // The locator is asked for its identity and used as what it is.
  Com<IUnknown> identity;
  const HRESULT created = CoCreateInstance(CLSID_WbemAdministrativeLocator, nullptr,
                                           CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IUnknown,
                                           identity.ReceiveVoid());
  if (FAILED(created)) return;
  const Bstr path(OLESTR("root\\CIMV2\\vorn"));
  IWbemServices* connection = namespaceConnection;
  static_cast<IWbemLocator*>(identity.get())
      ->ConnectServer(path.get(), nullptr, nullptr, nullptr, 0, nullptr, nullptr, &connection);
  namespaceConnection = connection;
}

HRESULT EnumerateClass(BSTR className, IWbemObjectSink* sink) {
  const auto narrowName = BstrToNarrow(className);
  Com<IWbemClassObject> classDefinition;
  const HRESULT fetched = FetchClassDefinition(className, classDefinition);
  if (fetched != S_OK) return fetched;
  BaseClass* const handler = Lookup(narrowName.get());
  if (!handler) return S_OK;
  const HRESULT enumerated = handler->EnumerateInstances(classDefinition.get(), sink);
  if (enumerated == S_OK) {
    sink->SetStatus(WBEM_STATUS_COMPLETE, S_OK, nullptr, nullptr);
  }
  return enumerated;
}

HRESULT DeliverInstance(BSTR objectPath, IWbemObjectSink* sink) {
  const Apartment apartment;
  if (!apartment.Entered()) return S_OK;
  const Bstr ownedPath = Bstr::Adopt(objectPath);
  Com<IWbemPath> path;
  if (FAILED(CoCreateInstance(CLSID_WbemDefPath, nullptr, CLSCTX_INPROC_SERVER, IID_IWbemPath,
                              path.ReceiveVoid()))) {
    return S_OK;
  }

  Bstr className;
  Com<IWbemClassObject> classDefinition;
  Com<IWbemPathKeyList> keys;
  if (SUCCEEDED(path->SetText(WBEMPATH_CREATE_ACCEPT_ALL, ownedPath.get()))) {
    className = ClassNameOf(path.get());
    if (FAILED(path->GetKeyList(keys.Receive()))) keys.Detach();
  }
  BaseClass* const handler = Lookup(BstrToNarrow(className.get()).get());

  const HRESULT fetched = FetchClassDefinition(className.get(), classDefinition);
  if (fetched == S_OK) {
    if (handler) handler->GetInstance(classDefinition.get(), keys.get(), sink);
    sink->SetStatus(WBEM_STATUS_COMPLETE, S_OK, nullptr, nullptr);
  }
  return fetched;
}

}  // namespace tqcim
