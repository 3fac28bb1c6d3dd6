#include "core/module.h"

namespace {

/// The handlers go with the class registry when the module does.
__attribute__((constructor)) void Attach() {
  tqcim::AttachModule();
}

}  // namespace
