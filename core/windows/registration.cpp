/// Registration of the module as an in-process COM server, and its removal. The namespace and its
/// classes are installed apart from the module; removal takes the namespace with it.

#include <cstdlib>
#include <cstring>
#include <string>

#include "core/module.h"
#include "platform/com.h"

namespace tqcim {
namespace {

/// The provider's class identifier in registry form: braces and upper-case digits.
std::string ClsidText() {
  constexpr int kTextSize = 128;
  OLECHAR wide[kTextSize] = {};
  StringFromGUID2(ProviderClsid(), wide, kTextSize);
  char narrow[kTextSize] = {};
  std::wcstombs(narrow, wide, kTextSize - 1);
  return narrow;
}

constexpr const char* kClsidFolder = "SOFTWARE\\CLASSES\\CLSID";

std::string ClsidKeyPath() {
  return std::string(kClsidFolder) + "\\" + ClsidText();
}

void SetText(HKEY key, const char* name, const char* text) {
  RegSetValueExA(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text),
                 static_cast<DWORD>(std::strlen(text) + 1));
}

void DeleteSubkey(const std::string& keyPath, const char* subkey) {
  HKEY key;
  if (RegOpenKeyA(HKEY_LOCAL_MACHINE, keyPath.c_str(), &key) != ERROR_SUCCESS) return;
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
  RegCreateKeyA(HKEY_LOCAL_MACHINE, ClsidKeyPath().c_str(), &clsidKey);
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
  DeleteSubkey(ClsidKeyPath(), "InProcServer32");
  DeleteSubkey(kClsidFolder, ClsidText().c_str());
  RemoveNamespace();
  return S_OK;
}
