#include <objbase.h>

#include <cstdlib>

#include "platform/posix/ledger.h"

LPVOID CoTaskMemAlloc(SIZE_T size) {
  // A block of no bytes is a block too.
  void* block = std::malloc(size == 0 ? 1 : size);
  if (block != nullptr) ++tqcim::runtime::liveTaskBlocks;
  return block;
}

void CoTaskMemFree(LPVOID block) {
  if (block == nullptr) return;
  --tqcim::runtime::liveTaskBlocks;
  std::free(block);
}
