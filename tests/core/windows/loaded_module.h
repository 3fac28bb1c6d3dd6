/// The provider module itself, loaded as COM loads it.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "platform/wmi.h"

namespace tqcim::testing {

class LoadedModule {
 public:
  LoadedModule() : handle_(LoadLibraryA("tqcim64.dll")) {
    EXPECT_NE(nullptr, handle_) << "error " << GetLastError();
  }
  ~LoadedModule() { FreeLibrary(handle_); }
  LoadedModule(const LoadedModule&) = delete;
  LoadedModule& operator=(const LoadedModule&) = delete;

  /// The full name of the module's file.
  std::string FileName() const {
    char name[MAX_PATH] = {};
    GetModuleFileNameA(handle_, name, MAX_PATH);
    return name;
  }

  template <typename Function>
  Function* Export(const char* name) const {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(handle_, name)));
  }
  HRESULT RegisterServer() const { return Export<HRESULT WINAPI()>("DllRegisterServer")(); }
  HRESULT UnregisterServer() const { return Export<HRESULT WINAPI()>("DllUnregisterServer")(); }

  /// What stands at an offset of the loaded image.
  template <typename T>
  const T* At(uint32_t offset) const {
    return reinterpret_cast<const T*>(reinterpret_cast<const uint8_t*>(handle_) + offset);
  }
  /// Where a directory of the image begins; null where the image has none.
  template <typename T>
  const T* Directory(size_t index) const {
    const auto* const headers =
        At<IMAGE_NT_HEADERS64>(static_cast<uint32_t>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
    const DWORD offset = headers->OptionalHeader.DataDirectory[index].VirtualAddress;
    return offset == 0 ? nullptr : At<T>(offset);
  }

 private:
  HMODULE handle_;
};

}  // namespace tqcim::testing
