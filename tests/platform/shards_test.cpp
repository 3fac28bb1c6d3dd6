#include "platform/shards.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <thread>
#include <vector>

namespace tqcim::testing {
namespace {

TEST(Shards, EightNeighbouringStacksHaveEightOfThem) {
  for (const uint64_t stack : {uint64_t{1} << 20, uint64_t{2} << 20, uint64_t{8} << 20}) {
    for (uint64_t begin = 0x7F0000000000; begin < 0x7F0100000000; begin += 0x01234000) {
      std::set<size_t> shards;
      for (uint64_t i = 0; i < 8; ++i) shards.insert(ShardOfPlace(begin + i * stack));
      EXPECT_EQ(8u, shards.size()) << stack << " " << begin;
      EXPECT_GT(16u, *shards.rbegin());
    }
  }
}

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
