// Stands before the C library's allocation functions, for all libraries of the process.
#include "bench/heap_use.h"

#include <malloc.h>

#include <atomic>
#include <cstdlib>

extern "C" {
void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* block, size_t size);
void __libc_free(void* block);
}

namespace {

std::atomic<size_t> allocations;
std::atomic<size_t> bytesInUse;
std::atomic<size_t> peakBytes;

void* Counted(void* block) {
  if (!block) return block;
  allocations.fetch_add(1, std::memory_order_relaxed);
  const size_t size = malloc_usable_size(block);
  const size_t inUse = bytesInUse.fetch_add(size, std::memory_order_relaxed) + size;
  if (inUse > peakBytes.load(std::memory_order_relaxed)) {
    peakBytes.store(inUse, std::memory_order_relaxed);
  }
  return block;
}

void Uncount(void* block) {
  if (block) bytesInUse.fetch_sub(malloc_usable_size(block), std::memory_order_relaxed);
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
  const size_t before = bytesInUse;
  const size_t allocationsBefore = allocations;
  peakBytes = before;
  work();
  return HeapUse{.allocations = allocations - allocationsBefore, .peakBytes = peakBytes - before};
}

}  // namespace tqcim::bench
