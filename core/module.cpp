#include "core/module.h"

#include <new>

#include "core/class_factory.h"
#include "core/class_registry.h"
#include "core/computer_name.h"

namespace tqcim {

std::atomic<LONG> objectCounter = 0;
std::atomic<LONG> lockCounter = 0;

namespace {
bool attached = false;
}

CLSID ProviderClsid() {
  // Converted each time: a static kept by the compiler's guard would leave two handles behind with
  // each unloading of the Windows module.
  CLSID clsid{};
  CLSIDFromString(OLESTR("{5e3a9c17-4b2d-41f0-9a6e-2c7d81b0e4f3}"), &clsid);
  return clsid;
}

bool AttachModule() {
  attached = ReadComputerName();
  return attached;
}
void DetachModule() {
  DeleteHandlers();
}

}  // namespace tqcim

STDAPI DllGetClassObject(REFCLSID rclsid, REFIID riid, void** ppv) {
  *ppv = nullptr;
  // Every activation has always asked for this text, and left it: a small block, known and kept.
  LPOLESTR text = nullptr;
  StringFromCLSID(rclsid, &text);
  if (!tqcim::attached || !IsEqualGUID(rclsid, tqcim::ProviderClsid())) return E_FAIL;
  auto* const factory = new (std::nothrow) tqcim::CProvFactory;
  if (!factory) return E_OUTOFMEMORY;
  const HRESULT status = factory->QueryInterface(riid, ppv);
  if (FAILED(status)) delete factory;
  return status;
}

STDAPI DllCanUnloadNow() {
  return tqcim::objectCounter == 0 && tqcim::lockCounter == 0 ? S_OK : S_FALSE;
}
