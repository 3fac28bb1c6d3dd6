/// The blocks that the libraries have handed out.
#pragma once

#include <atomic>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "tests/support/fake_block.h"

namespace tqcim::testing {

/// What a block is decides which function frees it.
enum class BlockKind { kDataObject, kOidList, kText, kSupportMemory, kEventRecord };

/// Hands out blocks and takes them back, on the same thread. A block that is freed twice, or by the
/// wrong function, fails the test; freed memory is overwritten first. Blocks are exactly as long as
/// asked for, so that the sanitizers see each read past their end. Each thread has books of its own
/// and takes a lock once, to open them, so that the ledger hides no data race of the code under
/// test.
class BlockLedger {
 public:
  BlockLedger();
  ~BlockLedger();

  void* HandOut(BlockKind kind, FakeBlock::Image image);
  /// Hands out the bytes themselves, which stay the caller's, any number of times at once.
  void* Lend(BlockKind kind, std::vector<uint8_t>& bytes);
  /// `freeFunction` is the name of the function that frees the given kinds. Null is no block.
  void TakeBack(const char* freeFunction, std::initializer_list<BlockKind> kinds, void* block);
  /// Takes everything back; when no other thread uses the ledger.
  void TakeBackAll();

  /// The UTF-8 text of a data object that is out; null where the offset has none.
  const std::string* TextOf(const void* dataObject, uint32_t offset) const;

  /// The bytes of a data object when this thread last gave it back; nothing before.
  std::vector<uint8_t> LastBytesOf(uint32_t oid) const;

  /// Whether a block begins here that this thread has and has not given back.
  bool IsOut(const void* block) const;

  /// Blocks that are out, on all threads.
  size_t Live() const { return live_; }
  /// This thread's: "2 data object, 1 text".
  std::string Describe() const;

 private:
  struct Books;
  Books& BooksOfThread() const;

  /// Tells this ledger from one that stood at the same address before.
  const uint64_t identity_;
  std::atomic<size_t> live_ = 0;
  mutable std::mutex mutex_;  // guards what follows
  mutable std::vector<std::unique_ptr<Books>> books_;
};

}  // namespace tqcim::testing
