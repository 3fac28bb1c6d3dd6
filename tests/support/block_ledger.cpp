#include "tests/support/block_ledger.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace tqcim::testing {
namespace {

constexpr const char* kKindNames[] = {"data object", "OID list", "text", "support block",
                                      "event record"};
constexpr int kPoison = 0xDD;

uint32_t OidOf(const uint8_t* dataObject) {
  uint32_t oid;
  std::memcpy(&oid, dataObject + 4, sizeof oid);
  return oid;
}

std::atomic<uint64_t> ledgers = 0;

}  // namespace

struct BlockLedger::Books {
  struct Block {
    BlockKind kind;
    size_t size;
    std::unique_ptr<uint8_t[]> memory;
    std::map<uint32_t, std::string> utf8Texts;
    uint32_t timesLent = 0;
  };

  std::map<const void*, Block> blocks;
  /// By OID.
  std::map<uint32_t, std::vector<uint8_t>> lastBytes;
};

BlockLedger::BlockLedger() : identity_(++ledgers) {}
BlockLedger::~BlockLedger() = default;

BlockLedger::Books& BlockLedger::BooksOfThread() const {
  thread_local uint64_t identity = 0;
  thread_local Books* books = nullptr;
  if (identity != identity_) {
    const std::lock_guard lock(mutex_);
    books = books_.emplace_back(std::make_unique<Books>()).get();
    identity = identity_;
  }
  return *books;
}

void* BlockLedger::HandOut(BlockKind kind, FakeBlock::Image image) {
  const size_t size = image.bytes.size();
  Books::Block block{kind, size, std::make_unique<uint8_t[]>(size), std::move(image.utf8Texts)};
  std::copy(image.bytes.begin(), image.bytes.end(), block.memory.get());
  void* const address = block.memory.get();
  BooksOfThread().blocks.emplace(address, std::move(block));
  live_.fetch_add(1, std::memory_order_relaxed);
  return address;
}

void* BlockLedger::Lend(BlockKind kind, std::vector<uint8_t>& bytes) {
  ++BooksOfThread()
        .blocks.try_emplace(bytes.data(), Books::Block{kind, bytes.size(), nullptr, {}})
        .first->second.timesLent;
  live_.fetch_add(1, std::memory_order_relaxed);
  return bytes.data();
}

void BlockLedger::TakeBack(const char* freeFunction, std::initializer_list<BlockKind> kinds,
                           void* block) {
  if (!block) return;
  Books& books = BooksOfThread();
  const auto found = books.blocks.find(block);
  if (found == books.blocks.end()) {
    ADD_FAILURE() << freeFunction << " of a block that is not out (freed twice?)";
    return;
  }
  Books::Block& taken = found->second;
  EXPECT_NE(kinds.end(), std::find(kinds.begin(), kinds.end(), taken.kind))
      << freeFunction << " does not free a " << kKindNames[static_cast<size_t>(taken.kind)];
  live_.fetch_sub(1, std::memory_order_relaxed);
  if (taken.timesLent > 1) {
    --taken.timesLent;
    return;
  }
  uint8_t* const bytes = taken.memory.get();
  if (taken.kind == BlockKind::kDataObject) {
    books.lastBytes[OidOf(bytes)].assign(bytes, bytes + taken.size);
  }
  if (bytes) std::memset(bytes, kPoison, taken.size);
  books.blocks.erase(found);
}

void BlockLedger::TakeBackAll() {
  const std::lock_guard lock(mutex_);
  for (const auto& books : books_) books->blocks.clear();
  live_ = 0;
}

std::vector<uint8_t> BlockLedger::LastBytesOf(uint32_t oid) const {
  const auto& lastBytes = BooksOfThread().lastBytes;
  const auto bytes = lastBytes.find(oid);
  return bytes == lastBytes.end() ? std::vector<uint8_t>() : bytes->second;
}

const std::string* BlockLedger::TextOf(const void* dataObject, uint32_t offset) const {
  const auto& blocks = BooksOfThread().blocks;
  const auto object = blocks.find(dataObject);
  if (object == blocks.end()) {
    ADD_FAILURE() << "a text of a data object that is not out";
    return nullptr;
  }
  const auto text = object->second.utf8Texts.find(offset);
  return text == object->second.utf8Texts.end() ? nullptr : &text->second;
}

bool BlockLedger::IsOut(const void* block) const {
  return BooksOfThread().blocks.contains(block);
}

std::string BlockLedger::Describe() const {
  size_t counts[std::size(kKindNames)] = {};
  for (const auto& [address, block] : BooksOfThread().blocks)
    ++counts[static_cast<size_t>(block.kind)];
  std::string text;
  for (size_t kind = 0; kind < std::size(kKindNames); ++kind) {
    if (counts[kind] == 0) continue;
    if (!text.empty()) text += ", ";
    text += std::to_string(counts[kind]) + " " + kKindNames[kind];
  }
  return text;
}

}  // namespace tqcim::testing
