/// The edge between the C interfaces and the C++ behind them.
#pragma once

#include <utility>

namespace tqcim::store {

/// What `function` returns, or a null value where it throws: callers of a C interface can't catch.
template <typename Function>
auto NullOnFailure(Function&& function) noexcept -> decltype(function()) {
  try {
    return std::forward<Function>(function)();
  } catch (...) {
    return {};
  }
}

}  // namespace tqcim::store
