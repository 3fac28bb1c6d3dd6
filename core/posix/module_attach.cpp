#include "core/module.h"

namespace {

__attribute__((constructor)) void Attach() {
  tqcim::AttachModule();
}

__attribute__((destructor)) void Detach() {
  tqcim::DetachModule();
}

}  // namespace
