// Stands before the C library's allocation functions, for all libraries of the process.
#include "bench/heap_use.h"

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdlib>

extern "C" {
void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* block, size_t size);
void __libc_free(void* block);
}

namespace {

// Of the work that is counted; while times are taken there is none.
std::atomic<bool> counting;
std::atomic<size_t> allocations;
std::atomic<int64_t> bytesInUse;
std::atomic<int64_t> peakBytes;

int64_t SizeOf(void* block) {
  return static_cast<int64_t>(malloc_usable_size(block));
}

void* Counted(void* block) {
  if (!counting.load(std::memory_order_relaxed) || !block) return block;
  allocations.fetch_add(1, std::memory_order_relaxed);
  const int64_t inUse = bytesInUse.fetch_add(SizeOf(block), std::memory_order_relaxed);
  peakBytes = std::max(peakBytes.load(), inUse + SizeOf(block));
  return block;
}

void Uncount(void* block) {
  if (!counting.load(std::memory_order_relaxed) || !block) return;
  bytesInUse.fetch_sub(SizeOf(block), std::memory_order_relaxed);
}

}  // namespace

extern "C" {

void* malloc(size_t size) {
  return Counted(__libc_malloc(size));
}
void* calloc(size_t count, size_t size) {
  return Counted(__libc_calloc(count, size));
}
void* realloc(void* block, size_t size) {
  Uncount(block);
  return Counted(__libc_realloc(block, size));
}
void free(void* block) {
  Uncount(block);
  __libc_free(block);
}

}  // extern "C"

namespace tqcim::bench {

std::optional<HeapUse> HeapUseOf(const std::function<void()>& work) {
  allocations = 0;
  bytesInUse = 0;
  peakBytes = 0;
  counting = true;
  work();
  counting = false;
  return HeapUse{.allocations = allocations, .peakBytes = static_cast<size_t>(peakBytes)};
}

}  // namespace tqcim::bench
