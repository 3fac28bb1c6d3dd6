/// Readings against their thresholds, for people.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "tools/health.h"

namespace tqcim::tools {

/// The threshold properties of CIM_NumericSensor, from the harmless to the worst.
std::span<const std::string_view> UpperThresholds();
std::span<const std::string_view> LowerThresholds();

/// "reading 2040; warning at or below 2160, critical at or below 1320": the thresholds of the side
/// that the reading has crossed, or of both sides where it has crossed none. In the class's own
/// numbers and unit. Empty for a class without readings.
std::string ReadingText(const Finding& finding);

}  // namespace tqcim::tools
