/// The allocation functions of C++, for programs whose memory may run out: one that is linked with
/// this source has them fail as a Fault of the kind kAllocations plans, and is told what the code
/// under test left behind.
#pragma once

#include <cstddef>

namespace tqcim::testing {

/// Blocks that the code under test has taken and not given back, both on this thread and while its
/// calls were counted.
size_t LiveNews();
/// Forgets them.
void ForgetNews();

}  // namespace tqcim::testing
