/// What the store's own errors are to the commands.
#pragma once

#include "store/store_error.h"
#include "tools/failure.h"

namespace tqcim::tools {

/// What `function` returns; its StoreError becomes a Failure of that status.
template <typename Function>
auto FailingWith(ExitStatus status, Function function) {
  try {
    return function();
  } catch (const store::StoreError& error) {
    throw Failure(status, error.what());
  }
}

}  // namespace tqcim::tools
