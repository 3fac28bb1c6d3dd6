#include "core/module.h"

/// Process attach and detach. The class registry was built before by the module's static
/// initialisation.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
  switch (reason) {
    case DLL_PROCESS_ATTACH:
      return tqcim::AttachModule();
    case DLL_PROCESS_DETACH:
      tqcim::DetachModule();
      return TRUE;
    default:
      return TRUE;
  }
}
