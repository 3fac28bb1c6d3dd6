/// What the process holds; one implementation per platform.
#pragma once

#include <cstddef>

namespace tqcim::bench {

/// The memory of the process that is resident.
size_t MemoryInUse();
/// Open files natively, handles on Windows.
size_t OpenHandles();

}  // namespace tqcim::bench
