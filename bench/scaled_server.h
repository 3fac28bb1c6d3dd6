/// The sample server with as many objects of a kind as a measurement wants.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tqcim::bench {

/// Puts in service the sample server, with `instances` of what becomes instances of the class.
/// False where the class has no more than one instance, whatever the store holds.
bool OpenScaledServer(std::string_view className, uint32_t instances);

}  // namespace tqcim::bench
