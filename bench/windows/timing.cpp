#include "bench/timing.h"

#include <algorithm>
#include <chrono>
#include <limits>

namespace tqcim::bench {
namespace {

/// The seconds of one run among so many that the clock's steps don't count.
double SecondsPerRun(const Work& work) {
  using Clock = std::chrono::steady_clock;
  constexpr std::chrono::duration<double> kLongEnough{0.02};
  const Clock::time_point begin = Clock::now();
  std::chrono::duration<double> elapsed{};
  size_t runs = 0;
  do {
    work.run();
    ++runs;
    elapsed = Clock::now() - begin;
  } while (elapsed < kLongEnough);
  return elapsed.count() / static_cast<double>(runs);
}

}  // namespace

std::vector<double> BestTimes(const std::vector<Work>& works) {
  constexpr int kTurns = 15;
  std::vector<double> best(works.size(), std::numeric_limits<double>::infinity());
  for (int turn = 0; turn < kTurns; ++turn) {
    for (size_t i = 0; i < works.size(); ++i) best[i] = std::min(best[i], SecondsPerRun(works[i]));
  }
  return best;
}

}  // namespace tqcim::bench
