/// Registration of the module as an in-process COM server, and its removal. The namespace and its
/// classes are installed apart from the module; removal takes the namespace with it.

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "core/module.h"
#include "platform/com.h"

namespace tqcim {
namespace {

/// Room for a class identifier, and for the path of its key. Registration takes no memory: it has
/// no way to report that there is none.
using RegistryText = std::array<char, 128>;

/// The provider's class identifier in registry form: braces and upper-case digits.
RegistryText ClsidText() {
  RegistryText text{};
  std::array<OLECHAR, text.size()> wide{};
  StringFromGUID2(ProviderClsid(), wide.data(), static_cast<int>(wide.size()));
  std::wcstombs(text.data(), wide.data(), text.size() - 1);
  return text;
}

constexpr const char* kClsidFolder = "SOFTWARE\\CLASSES\\CLSID";

RegistryText ClsidKeyPath() {
  RegistryText path{};
  std::snprintf(path.data(), path.size(), "%s\\%s", kClsidFolder, ClsidText().data());
  return path;
}

void SetText(HKEY key, const char* name, const char* text) {
  RegSetValueExA(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text),
                 static_cast<DWORD>(std::strlen(text) + 1));
}

void DeleteSubkey(const char* keyPath, const char* subkey) {
  HKEY key;
  if (RegOpenKeyA(HKEY_LOCAL_MACHINE, keyPath, &key) != ERROR_SUCCESS) return;
  RegDeleteKeyA(key, subkey);
  RegCloseKey(key);
}

/// COM is the caller's to initialise.
void RemoveNamespace() {
  Com<IWbemLocator> locator;
  if (CoCreateInstance(CLSID_WbemLocator, nullptr, CLSCTX_INPROC_SERVER, IID_IWbemLocator,
                       locator.ReceiveVoid()) != S_OK) {
    return;
  }
  const Bstr path(OLESTR("\\\\.\\root\\cimv2"));
  // The connection is left to the end of the process.
  IWbemServices* cimv2 = nullptr;
  if (locator->ConnectServer(path.get(), nullptr, nullptr, nullptr, 0, nullptr, nullptr, &cimv2) ==
      S_OK) {
    const Bstr vorn(OLESTR("__NameSpace.Name=\"Vorn\""));
    cimv2->DeleteInstance(vorn.get(), 0, nullptr, nullptr);
  }
}

}  // namespace
}  // namespace tqcim

/// Reports success whatever the registry did.
STDAPI DllRegisterServer() {
  using namespace tqcim;
  char moduleFile[MAX_PATH] = {};
  GetModuleFileNameA(GetModuleHandleA("tqcim64"), moduleFile, MAX_PATH);

  HKEY clsidKey = nullptr;
  HKEY serverKey = nullptr;
  RegCreateKeyA(HKEY_LOCAL_MACHINE, ClsidKeyPath().data(), &clsidKey);
  SetText(clsidKey, nullptr, "");
  RegCreateKeyA(clsidKey, "InprocServer32", &serverKey);
  SetText(serverKey, nullptr, moduleFile);
  SetText(serverKey, "ThreadingModel", "Both");
  // Registry keys are kernel handles: closing them as such leaves the same values.
  CloseHandle(serverKey);
  CloseHandle(clsidKey);
  return S_OK;
}

/// Reports success whatever the registry and the management service did.
STDAPI DllUnregisterServer() {
  using namespace tqcim;
  DeleteSubkey(ClsidKeyPath().data(), "InProcServer32");
  DeleteSubkey(kClsidFolder, ClsidText().data());
  RemoveNamespace();
  return S_OK;
}
