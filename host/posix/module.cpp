#include "host/module.h"

#include <dlfcn.h>

#include "host/management_host.h"

namespace tqcim::host {
namespace {

void* Function(void* module, const char* name) {
  void* function = dlsym(module, name);
  if (function) return function;
  const std::string reason = dlerror();
  dlclose(module);
  throw HostError(HostError::Kind::kModule, "the provider module has no function: " + reason);
}

}  // namespace

const char* const kModuleName = "libtqcim64.so";
const bool kHasComRegistry = false;

std::filesystem::path ProgramFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

Module::Module(const std::filesystem::path& file) {
  handle_ = dlopen(std::filesystem::absolute(file).c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!handle_) {
    throw HostError(HostError::Kind::kModule,
                    std::string("the provider module cannot be loaded: ") + dlerror());
  }
  get_class_object_ =
      reinterpret_cast<GetClassObjectFunction>(Function(handle_, "DllGetClassObject"));
  can_unload_now_ = reinterpret_cast<CanUnloadNowFunction>(Function(handle_, "DllCanUnloadNow"));
}

Module::~Module() {
  if (can_unload_now_() == S_OK) dlclose(handle_);
}

}  // namespace tqcim::host
