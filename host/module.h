/// A provider's module in the process.
#pragma once

#include <filesystem>

#include "platform/wmi.h"

namespace tqcim::host {

/// The folder of the running program.
std::filesystem::path ProgramFolder();

/// The file name that the provider module has on this platform.
extern const char* const kModuleName;

/// Whether this platform's COM has a registry that tells the module of a class.
extern const bool kHasComRegistry;

/// A loaded module with the two functions of a COM server.
class Module {
 public:
  /// Throws HostError (kModule) when the file can't be loaded or lacks a function.
  explicit Module(const std::filesystem::path& file);

  /// Asks the module whether it may go, and unloads it then; else it stays.
  ~Module();

  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;

  HRESULT GetClassObject(REFCLSID clsid, REFIID riid, void** object) const {
    return get_class_object_(clsid, riid, object);
  }

 private:
  using GetClassObjectFunction = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  using CanUnloadNowFunction = HRESULT(STDAPICALLTYPE*)();

  void* handle_ = nullptr;
  GetClassObjectFunction get_class_object_ = nullptr;
  CanUnloadNowFunction can_unload_now_ = nullptr;
};

}  // namespace tqcim::host
