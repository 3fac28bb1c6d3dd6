#include "core/module.h"

namespace __gnu_cxx {
/// Frees what the C++ runtime library of this module keeps for exceptions that find no memory: it
/// would else stay behind each time the module is unloaded. Of the runtime, without a header.
void __freeres();
}  // namespace __gnu_cxx

/// Process attach and detach. The class registry was built before by the module's static
/// initialisation.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
  switch (reason) {
    case DLL_PROCESS_ATTACH:
      return tqcim::AttachModule();
    case DLL_PROCESS_DETACH:
      tqcim::DetachModule();
      __gnu_cxx::__freeres();
      return TRUE;
    default:
      return TRUE;
  }
}
