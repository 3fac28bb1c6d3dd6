#include "bench/timing.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <limits>
#include <map>

namespace tqcim::bench {
namespace {

/// Keeps the shortest repetition of each benchmark, and prints nothing.
class Shortest final : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      const double seconds = run.real_accumulated_time / static_cast<double>(run.iterations);
      const auto [known, added] = best_.emplace(run.run_name.function_name, seconds);
      if (!added) known->second = std::min(known->second, seconds);
    }
  }
  double Of(const std::string& name) const { return best_.at(name); }

 private:
  std::map<std::string, double> best_;
};

}  // namespace

std::vector<double> BestTimes(const std::vector<Work>& works) {
  static const bool initialised = [] {
    std::vector<std::string> options = {"bench", "--benchmark_enable_random_interleaving=true",
                                        "--benchmark_repetitions=15", "--benchmark_min_time=0.02"};
    std::vector<char*> arguments;
    for (std::string& option : options) arguments.push_back(option.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    return true;
  }();
  static_cast<void>(initialised);
  benchmark::ClearRegisteredBenchmarks();
  for (const Work& work : works) {
    benchmark::RegisterBenchmark(work.name.c_str(), [&work](benchmark::State& state) {
      for (auto iteration : state) {
        static_cast<void>(iteration);
        work.run();
      }
    });
  }
  Shortest shortest;
  benchmark::RunSpecifiedBenchmarks(&shortest, ".*");
  std::vector<double> times;
  for (const Work& work : works) times.push_back(shortest.Of(work.name));
  return times;
}

}  // namespace tqcim::bench
