#include <objbase.h>

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

#include "platform/posix/ledger.h"

namespace {

struct ClassObject {
  DWORD cookie;
  CLSID clsid;
  IUnknown* factory;
  DWORD context;
};

/// COM's state in the process. `mutex` guards the rest.
struct Process {
  std::mutex mutex;
  int initialisedThreads = 0;
  int multithreadedThreads = 0;
  DWORD lastCookie = 0;
  std::vector<ClassObject> classes;
};

/// Never destroyed: threads may still use COM while the process ends.
Process& TheProcess() {
  static Process& process = *new Process;
  return process;
}

/// Where a thread stands: how often it has initialised COM, and in which mode.
struct Thread {
  uint32_t initialisations = 0;
  bool multithreaded = false;

  ~Thread() {
    while (initialisations != 0) CoUninitialize();
  }
};

thread_local Thread thisThread;

/// Call with the process's mutex held.
bool CanUseCom(const Process& process) {
  return thisThread.initialisations != 0 || process.multithreadedThreads != 0;
}

/// The class object, or null. Call with the process's mutex held.
const ClassObject* Find(const Process& process, REFCLSID clsid, DWORD context) {
  const auto found = std::find_if(
      process.classes.begin(), process.classes.end(), [&](const ClassObject& registered) {
        return registered.clsid == clsid && (registered.context & context) != 0;
      });
  return found == process.classes.end() ? nullptr : &*found;
}

}  // namespace

HRESULT CoInitializeEx(LPVOID reserved, DWORD mode) {
  if (reserved != nullptr) return E_INVALIDARG;
  const bool multithreaded = (mode & COINIT_APARTMENTTHREADED) == 0;
  if (thisThread.initialisations != 0) {
    if (thisThread.multithreaded != multithreaded) return RPC_E_CHANGED_MODE;
    ++thisThread.initialisations;
    return S_FALSE;
  }
  Process& process = TheProcess();
  std::lock_guard lock(process.mutex);
  thisThread.initialisations = 1;
  thisThread.multithreaded = multithreaded;
  ++process.initialisedThreads;
  if (multithreaded) ++process.multithreadedThreads;
  return S_OK;
}

void CoUninitialize() {
  if (thisThread.initialisations == 0 || --thisThread.initialisations != 0) return;
  std::vector<ClassObject> revoked;
  {
    Process& process = TheProcess();
    std::lock_guard lock(process.mutex);
    if (thisThread.multithreaded) --process.multithreadedThreads;
    if (--process.initialisedThreads == 0) revoked = std::exchange(process.classes, {});
  }
  for (const ClassObject& registered : revoked) registered.factory->Release();
}

HRESULT CoRegisterClassObject(REFCLSID clsid, LPUNKNOWN factory, DWORD context, DWORD flags,
                              LPDWORD cookie) {
  if (factory == nullptr || cookie == nullptr || flags != REGCLS_MULTIPLEUSE) return E_INVALIDARG;
  Process& process = TheProcess();
  std::lock_guard lock(process.mutex);
  if (!CanUseCom(process)) return CO_E_NOTINITIALIZED;
  if (Find(process, clsid, context) != nullptr) return CO_E_OBJISREG;
  process.classes.push_back({++process.lastCookie, clsid, factory, context});
  factory->AddRef();
  *cookie = process.lastCookie;
  return S_OK;
}

HRESULT CoRevokeClassObject(DWORD cookie) {
  IUnknown* factory;
  {
    Process& process = TheProcess();
    std::lock_guard lock(process.mutex);
    if (!CanUseCom(process)) return CO_E_NOTINITIALIZED;
    const auto found =
        std::find_if(process.classes.begin(), process.classes.end(),
                     [&](const ClassObject& registered) { return registered.cookie == cookie; });
    if (found == process.classes.end()) return E_INVALIDARG;
    factory = found->factory;
    process.classes.erase(found);
  }
  factory->Release();
  return S_OK;
}

HRESULT CoGetClassObject(REFCLSID clsid, DWORD context, LPVOID, REFIID iid, LPVOID* object) {
  if (object == nullptr) return E_INVALIDARG;
  *object = nullptr;
  IUnknown* factory;
  {
    Process& process = TheProcess();
    std::lock_guard lock(process.mutex);
    if (!CanUseCom(process)) return CO_E_NOTINITIALIZED;
    const ClassObject* registered = Find(process, clsid, context);
    if (registered == nullptr) return REGDB_E_CLASSNOTREG;
    factory = registered->factory;
    factory->AddRef();
  }
  const HRESULT result = factory->QueryInterface(iid, object);
  factory->Release();
  return result;
}

HRESULT CoCreateInstance(REFCLSID clsid, LPUNKNOWN outer, DWORD context, REFIID iid,
                         LPVOID* object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  void* classObject = nullptr;
  const HRESULT result = CoGetClassObject(clsid, context, nullptr, IID_IClassFactory, &classObject);
  if (FAILED(result)) return result;
  auto* factory = static_cast<IClassFactory*>(classObject);
  const HRESULT created = factory->CreateInstance(outer, iid, object);
  factory->Release();
  return created;
}

namespace tqcim::runtime {

int64_t RegisteredClasses() {
  Process& process = TheProcess();
  std::lock_guard lock(process.mutex);
  return static_cast<int64_t>(process.classes.size());
}

uint32_t InitialisationsOfThread() {
  return thisThread.initialisations;
}

}  // namespace tqcim::runtime
