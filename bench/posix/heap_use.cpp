// Stands before the C library's allocation functions, for all libraries of the process.
#include "bench/heap_use.h"

#include <malloc.h>

#include <cstdlib>

using namespace tqcim::bench;

extern "C" {

void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* block, size_t size);
void __libc_free(void* block);

}  // extern "C"

namespace {

void* Counted(void* block) {
  if (CountsHeapUse() && block) CountAllocation(malloc_usable_size(block));
  return block;
}

void Uncount(void* block) {
  if (CountsHeapUse() && block) CountRelease(malloc_usable_size(block));
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

void tqcim::bench::WatchHeap() {
  // The linker has put the functions above in their place.
}
