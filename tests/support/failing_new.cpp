#include "tests/support/failing_new.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <new>

#include "tests/support/fault.h"

namespace tqcim::testing {
namespace {

/// The live blocks of a thread. A request has few at a time; to note them takes no memory.
class Blocks {
 public:
  void Add(void* block) {
    if (count_ == blocks_.size()) std::abort();
    blocks_[count_++] = block;
  }
  void Remove(void* block) {
    const auto end = blocks_.begin() + static_cast<std::ptrdiff_t>(count_);
    const auto found = std::find(blocks_.begin(), end, block);
    if (found != end) *found = blocks_[--count_];
  }
  size_t count() const { return count_; }
  void Clear() { count_ = 0; }

 private:
  std::array<void*, 256> blocks_{};
  size_t count_ = 0;
};

thread_local constinit Blocks live;

/// Null where there is no memory.
void* Allocate(std::size_t size, Call call) {
  if (AllocationFails(call)) return nullptr;
  void* const block = std::malloc(size == 0 ? 1 : size);
  if (block && IsCounting()) live.Add(block);
  return block;
}

void* AllocateOrThrow(std::size_t size) {
  void* const block = Allocate(size, Call::kNew);
  if (!block) throw std::bad_alloc();
  return block;
}

void Free(void* block) noexcept {
  if (block && live.count() != 0) live.Remove(block);
  std::free(block);
}

}  // namespace

size_t LiveNews() {
  return live.count();
}
void ForgetNews() {
  live.Clear();
}

}  // namespace tqcim::testing

using tqcim::testing::Allocate;
using tqcim::testing::AllocateOrThrow;
using tqcim::testing::Free;

/// The program's own definitions stand before the standard library's.
void* operator new(std::size_t size) {
  return AllocateOrThrow(size);
}
void* operator new[](std::size_t size) {
  return AllocateOrThrow(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size, tqcim::testing::Call::kNothrowNew);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size, tqcim::testing::Call::kNothrowNew);
}
void operator delete(void* block) noexcept {
  Free(block);
}
void operator delete[](void* block) noexcept {
  Free(block);
}
void operator delete(void* block, std::size_t) noexcept {
  Free(block);
}
void operator delete[](void* block, std::size_t) noexcept {
  Free(block);
}
void operator delete(void* block, const std::nothrow_t&) noexcept {
  Free(block);
}
void operator delete[](void* block, const std::nothrow_t&) noexcept {
  Free(block);
}
