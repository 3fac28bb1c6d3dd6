/// The benchmarks: what the provider costs beside what cannot be saved, and how its cost grows.
/// Each table is Markdown; every figure in it that is judged is a ratio of times of one run.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <functional>
#include <iterator>
#include <limits>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "bench/heap_use.h"
#include "bench/requests.h"
#include "bench/scaled_server.h"
#include "bench/timing.h"
#include "bench/two_processes.h"
#include "core/class_registry.h"
#include "core/module.h"

namespace tqcim::bench {
namespace {

constexpr double kMicroseconds = 1e6;

/// The classes that were asked for on the command line.
std::vector<std::string> chosenClasses;

/// Those, or every served class once, in the order of registration.
std::vector<std::string> ClassNames() {
  if (!chosenClasses.empty()) return chosenClasses;
  std::vector<std::string> names;
  for (const RegisteredClass& row : kRegisteredClasses) {
    if (std::ranges::find(names, row.name) == names.end()) names.emplace_back(row.name);
  }
  return names;
}

void PrintFloorRow(const std::string& name) {
  constexpr uint32_t kInstances = 1000;
  OpenScaledServer(name, kInstances);
  const ProvidedClass provided(name);
  const RecordedRun recorded(provided);
  const double instances = static_cast<double>(std::max<size_t>(recorded.Instances(), 1));
  const std::vector<double> times = BestTimes(
      {{"provider", [&] { provided.Enumerate(); }}, {"floor", [&] { recorded.Replay(provided); }}});
  const HeapUse provider = HeapUseOf([&] { provided.Enumerate(); });
  const HeapUse floor = HeapUseOf([&] { recorded.Replay(provided); });
  std::printf("| `%s` | %zu | %.2f | %.2f | %.2f | %.1f | %.1f |\n", name.c_str(),
              recorded.Instances(), times[0] / instances * kMicroseconds,
              times[1] / instances * kMicroseconds, times[0] / times[1],
              static_cast<double>(provider.allocations) / instances,
              static_cast<double>(floor.allocations) / instances);
  std::fflush(stdout);
}

void PrintFloor() {
  std::printf(
      "| class | instances | provider, us each | floor, us each | ratio | allocations each "
      "| in the floor |\n|---|--:|--:|--:|--:|--:|--:|\n");
  for (const std::string& name : ClassNames()) PrintFloorRow(name);
}

constexpr uint32_t kSizes[] = {100, 1000, 10000, 60000};

struct GrowthRow {
  std::string name;
  std::vector<double> enumeration;
  std::vector<double> get;
};

/// The best times of one run over a store of each size. Sizes can't take turns run by run, since
/// each has a store of its own: they do so twice.
GrowthRow GrowthOf(const std::string& name) {
  constexpr double kNone = std::numeric_limits<double>::infinity();
  GrowthRow row{.name = name,
                .enumeration = std::vector<double>(std::size(kSizes), kNone),
                .get = std::vector<double>(std::size(kSizes), kNone)};
  for (size_t turn = 0; turn < 2 * std::size(kSizes); ++turn) {
    const size_t i = turn % std::size(kSizes);
    OpenScaledServer(name, kSizes[i]);
    const ProvidedClass provided(name);
    const std::string path = provided.LastPath();
    const auto best = [](double& time, const std::function<void()>& run) {
      time = std::min(time, BestTimes({{"run", run}})[0]);
    };
    best(row.enumeration[i], [&] { provided.Enumerate(); });
    best(row.get[i], [&] { provided.Get(path); });
  }
  return row;
}

void PrintGrowthTable(const char* title, const std::vector<GrowthRow>& rows,
                      std::vector<double> GrowthRow::*column) {
  std::printf(
      "\n%s\n\n| class | 100, us | 1,000 | 10,000 | 60,000 | to 1,000 | to 10,000 | to 60,000 (6 "
      "times) |\n|---|--:|--:|--:|--:|--:|--:|--:|\n",
      title);
  for (const GrowthRow& row : rows) {
    const std::vector<double>& times = row.*column;
    std::printf("| `%s` |", row.name.c_str());
    for (const double time : times) std::printf(" %.0f |", time * kMicroseconds);
    for (size_t i = 1; i < times.size(); ++i) std::printf(" %.1f |", times[i] / times[i - 1]);
    std::printf("\n");
  }
}

void PrintGrowth() {
  std::vector<GrowthRow> rows;
  for (const std::string& name : ClassNames()) {
    if (!OpenScaledServer(name, kSizes[0])) continue;
    std::fprintf(stderr, "growth: %s\n", name.c_str());
    rows.push_back(GrowthOf(name));
  }
  PrintGrowthTable("Enumeration:", rows, &GrowthRow::enumeration);
  PrintGrowthTable("The last instance by its key:", rows, &GrowthRow::get);
}

void PrintMemory() {
  std::printf("| class | peak at 100, bytes | at 10,000 |\n|---|--:|--:|\n");
  for (const std::string& name : ClassNames()) {
    if (!OpenScaledServer(name, 100)) continue;
    const ProvidedClass provided(name);
    provided.Enumerate();
    const HeapUse few = HeapUseOf([&] { provided.Enumerate(); });
    OpenScaledServer(name, 10000);
    provided.Enumerate();
    const HeapUse many = HeapUseOf([&] { provided.Enumerate(); });
    std::printf("| `%s` | %zu | %zu |\n", name.c_str(), few.peakBytes, many.peakBytes);
  }
}

double SecondsOf(const std::function<void()>& work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  return *middle;
}

void PrintThreads() {
  std::printf("| class | two threads against one | two processes against one |\n|---|--:|--:|\n");
  for (const std::string& name : ClassNames()) {
    if (!OpenScaledServer(name, 1000)) continue;
    // Every request has a definition of its own.
    const ProvidedClass first(name);
    const ProvidedClass second(name);
    // Enough of them that the start of a thread doesn't count.
    constexpr size_t kInstances = 50'000;
    const size_t enumerations = kInstances / std::max<size_t>(first.Enumerate(), 1);
    const auto enumerate = [enumerations](const ProvidedClass& provided) {
      return [enumerations, &provided] {
        for (size_t i = 0; i < enumerations; ++i) provided.Enumerate();
      };
    };
    const auto [one, other] = std::pair(enumerate(first), enumerate(second));
    // A machine that is fast for seconds and slow for seconds is one or the other for a round.
    constexpr int kRounds = 15;
    std::vector<double> threads;
    std::vector<double> processes;
    for (int round = 0; round < kRounds; ++round) {
      const double in_turn = SecondsOf([&] { one(), other(); });
      threads.push_back(in_turn / SecondsOf([&] {
                          std::thread thread(other);
                          one();
                          thread.join();
                        }));
      // They share nothing: what they reach is what the machine has to give.
      processes.push_back(in_turn / SecondsOf([&] { RunInTwoProcesses(one, other); }));
    }
    std::printf("| `%s` | %.2f | %.2f |\n", name.c_str(), Median(threads), Median(processes));
    std::fflush(stdout);
  }
}

struct Table {
  std::string_view name;
  void (*print)();
};
constexpr Table kTables[] = {{"floor", PrintFloor},
                             {"growth", PrintGrowth},
                             {"memory", PrintMemory},
                             {"threads", PrintThreads}};

}  // namespace
}  // namespace tqcim::bench

int main(int count, char** arguments) {
  using namespace tqcim::bench;
  const std::string_view wanted = count >= 2 ? arguments[1] : "";
  const auto table = std::ranges::find(kTables, wanted, &Table::name);
  if (table == std::end(kTables)) {
    std::fprintf(stderr, "usage: provider_bench floor | growth | memory | threads [CLASS...]\n");
    return 2;
  }
  chosenClasses.assign(arguments + 2, arguments + count);
  CoInitializeEx(nullptr, COINIT_MULTITHREADED);
  tqcim::AttachModule();
  int status = 0;
  try {
    table->print();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "provider_bench: %s\n", error.what());
    status = 1;
  }
  tqcim::DetachModule();
  CoUninitialize();
  return status;
}
