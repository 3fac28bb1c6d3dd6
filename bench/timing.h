/// Timing of several pieces of work against each other; one implementation per platform.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tqcim::bench {

struct Work {
  std::string name;
  std::function<void()> run;
};

/// The shortest time of one run of each work, in seconds. The works take turns, so that what else
/// happens on the machine meets all of them: times of one call can be compared.
std::vector<double> BestTimes(const std::vector<Work>& works);

}  // namespace tqcim::bench
