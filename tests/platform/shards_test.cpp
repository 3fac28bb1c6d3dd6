#include "platform/shards.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace tqcim::testing {
namespace {

TEST(ShardedCount, CountsWhatManyThreadsCountUpAndDown) {
  constexpr int kThreads = 4;
  constexpr int kTimes = 10'000;
  ShardedCount count;
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&] {
      for (int turn = 0; turn < kTimes; ++turn) {
        ++count;
        ++count;
        --count;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(count.Sum(), kThreads * kTimes);
}

TEST(ShardedCount, OneThreadCountsDownWhatAnotherCountedUp) {
  ShardedCount count;
  std::thread([&] {
    for (int i = 0; i < 3; ++i) ++count;
  }).join();
  --count;
  EXPECT_EQ(count.Sum(), 2);
  --count;
  --count;
  EXPECT_EQ(count.Sum(), 0);
}

}  // namespace
}  // namespace tqcim::testing
