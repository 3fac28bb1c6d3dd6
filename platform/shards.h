/// Counters that every thread changes with every call stand several times, each in a cache line of
/// its own, so that threads don't wait for one another's.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>

namespace tqcim {

inline constexpr unsigned kShardBits = 4;
inline constexpr size_t kShards = size_t{1} << kShardBits;
inline constexpr size_t kCacheLine = 64;

/// The shard for a place on a stack. Stacks of one size stand side by side: the highest bits of the
/// product are those that differ between neighbours (Knuth, The Art of Computer Programming, 6.4).
constexpr size_t ShardOfPlace(uint64_t place) {
  constexpr unsigned kLeastStackBits = 16;
  constexpr uint64_t kGoldenRatio = 0x9E3779B97F4A7C15;
  return (place >> kLeastStackBits) * kGoldenRatio >> (64 - kShardBits);
}

/// The shard for the calling thread, mostly another for another thread. A thread may be told
/// another one later.
inline size_t ShardOfThread() {
  return ShardOfPlace(reinterpret_cast<uintptr_t>(__builtin_frame_address(0)));
}

/// Counts up and down. What is counted up by one thread may be counted down by another.
class ShardedCount {
 public:
  void operator++() { Shard().fetch_add(1, std::memory_order_relaxed); }
  void operator--() { Shard().fetch_sub(1, std::memory_order_release); }

  /// Exact while nobody counts, never too small while others only count down, and anything while
  /// others count up. What a thread did before it counted down has happened for who sees that here.
  int64_t Sum() const {
    int64_t sum = 0;
    for (const Count& shard : shards_) sum += shard.value.load(std::memory_order_acquire);
    return sum;
  }

 private:
  struct alignas(kCacheLine) Count {
    std::atomic<int64_t> value{0};
  };

  std::atomic<int64_t>& Shard() { return shards_[ShardOfThread()].value; }

  std::array<Count, kShards> shards_;
};

}  // namespace tqcim
