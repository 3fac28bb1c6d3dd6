#include "tests/support/fake_store.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <sstream>

namespace tqcim::testing {
namespace {

std::atomic<FakeStore*> installed = nullptr;

FakeBlock::Image ListBlock(const std::vector<uint32_t>& oids) {
  FakeBlock list(4 + 4 * oids.size());
  list.U32(0, static_cast<uint32_t>(oids.size()));
  uint32_t offset = 4;
  for (const uint32_t oid : oids) list.U32(std::exchange(offset, offset + 4), oid);
  return list.Build();
}

}  // namespace

FakeStore::FakeStore() {
  EXPECT_EQ(nullptr, installed.exchange(this)) << "two stores at once";
}

FakeStore::~FakeStore() {
  EXPECT_EQ(0u, LiveBlocks()) << "not given back: " << blocks_.Describe();
  installed = nullptr;
}

FakeStore& FakeStore::Installed() {
  FakeStore* const store = installed;
  if (!store) {
    ADD_FAILURE() << "a library was called without a store";
    std::abort();
  }
  return *store;
}

FakeBlock& FakeStore::Add(uint32_t oid, uint16_t type, uint8_t status) {
  return objects_.insert_or_assign(oid, FakeBlock(oid, type, status)).first->second;
}

void FakeStore::List(uint32_t parentOid, uint16_t type, std::vector<uint32_t> oids) {
  listings_[{parentOid, type}] = std::move(oids);
}

void FakeStore::ListLong(uint32_t parentOid, uint16_t type, const std::vector<uint32_t>& oids) {
  longListings_[{parentOid, type}] = ListBlock(oids).bytes;
}

void FakeStore::SetIniValue(const std::string& fileName, const std::string& section,
                            const std::string& key, uint16_t value) {
  iniValues_[{fileName, section, key}] = value;
}

void FakeStore::FailRead(uint32_t oid, uint32_t times, uint32_t first) {
  scripted_ = true;
  failingReads_[oid] = {first, times};
}

void FakeStore::FailListing(uint32_t parentOid, uint16_t type, uint32_t times) {
  scripted_ = true;
  failingListings_[{parentOid, type}] = {0, times};
}

void FakeStore::FailAllocations() {
  scripted_ = noMemory_ = true;
}

void FakeStore::ExpectLeaked(size_t count) {
  EXPECT_EQ(count, LiveBlocks()) << blocks_.Describe();
  blocks_.TakeBackAll();
}

uint32_t FakeStore::U32WhenFreed(uint32_t oid, uint32_t offset) const {
  const std::vector<uint8_t> bytes = blocks_.LastBytesOf(oid);
  uint32_t value = 0;
  for (uint32_t i = 0; i < 4; ++i) value |= uint32_t{bytes.at(offset + i)} << (8 * i);
  return value;
}

template <typename... Parts>
void FakeStore::Note(const Parts&... parts) {
  if (!scripted_) return;
  const std::lock_guard lock(mutex_);
  if (!recording_) return;
  std::ostringstream call;
  (call << ... << parts);
  calls_.push_back(call.str());
}

template <typename Key>
bool FakeStore::Refuses(std::map<Key, Failures>& failures, const Key& key) {
  if (!scripted_) return false;
  const std::lock_guard lock(mutex_);
  const auto found = failures.find(key);
  if (found == failures.end()) return false;
  auto& [first, times] = found->second;
  if (first != 0) {
    --first;
    return false;
  }
  if (times == 0) return false;
  if (times != kAlways) --times;
  return true;
}

void* FakeStore::ReadObject(uint32_t oid) {
  Note("object ", oid);
  if (Refuses(failingReads_, oid)) return nullptr;
  const auto object = objects_.find(oid);
  if (object == objects_.end()) return nullptr;
  return blocks_.HandOut(BlockKind::kDataObject, object->second.Build());
}

void* FakeStore::ListChildren(uint32_t parentOid, uint16_t type) {
  Note("children ", parentOid, "/", type);
  const Listing key(parentOid, type);
  if (Refuses(failingListings_, key)) return nullptr;
  const auto longListing = longListings_.find(key);
  if (longListing != longListings_.end()) {
    return blocks_.Lend(BlockKind::kOidList, longListing->second);
  }
  const auto listing = listings_.find(key);
  if (listing == listings_.end()) return nullptr;
  return blocks_.HandOut(BlockKind::kOidList, ListBlock(listing->second));
}

char* FakeStore::GetUtf8Text(const void* dataObject, uint32_t offset) {
  Note("text ", offset);
  const std::string* const text = blocks_.TextOf(dataObject, offset);
  if (!text) return nullptr;
  std::vector<uint8_t> bytes(text->begin(), text->end());
  bytes.push_back(0);
  return static_cast<char*>(blocks_.HandOut(BlockKind::kText, {bytes, {}}));
}

void FakeStore::FreeGeneric(void* block) {
  Note("free");
  blocks_.TakeBack("SMILFreeGeneric",
                   {BlockKind::kDataObject, BlockKind::kOidList, BlockKind::kText}, block);
}

void* FakeStore::Allocate(uint32_t size) {
  Note("allocate ", size);
  if (noMemory_) return nullptr;
  constexpr uint8_t kUnset = 0xCD;
  return blocks_.HandOut(BlockKind::kSupportMemory, {std::vector<uint8_t>(size, kUnset), {}});
}

void FakeStore::FreeSupport(void* block) {
  Note("free support");
  blocks_.TakeBack("SMFreeMem", {BlockKind::kSupportMemory}, block);
}

void FakeStore::NoteComparison() {
  Note("compare");
}

void FakeStore::NoteConversion(const char* narrow) {
  Note("convert ", narrow);
}

void FakeStore::ExpectInDataObject(const uint32_t* oid) const {
  EXPECT_TRUE(blocks_.IsOut(reinterpret_cast<const uint8_t*>(oid) - 4)) << "not in an object";
}

uint32_t FakeStore::CountRecords(const uint32_t* logOid) {
  ExpectInDataObject(logOid);
  Note("records ", *logOid);
  const auto count = recordCounts_.find(*logOid);
  if (count != recordCounts_.end()) return count->second;
  const auto log = records_.find(*logOid);
  return log == records_.end() ? 0 : static_cast<uint32_t>(log->second.size());
}

void* FakeStore::GetRecord(const uint32_t* logOid, uint32_t index) {
  ExpectInDataObject(logOid);
  Note("record ", *logOid, "/", index);
  const auto log = records_.find(*logOid);
  if (log == records_.end() || index >= log->second.size()) return nullptr;
  return blocks_.HandOut(BlockKind::kEventRecord, log->second[index].Build());
}

void FakeStore::FreeRecord(void* record) {
  Note("free record");
  blocks_.TakeBack("XEPFreeGeneric", {BlockKind::kEventRecord}, record);
}

std::optional<uint16_t> FakeStore::GetIniValue(const std::string& fileName,
                                               const std::string& section, const std::string& key) {
  Note("ini ", fileName, " [", section, "] ", key);
  const auto value = iniValues_.find({fileName, section, key});
  if (value == iniValues_.end()) return std::nullopt;
  return value->second;
}

}  // namespace tqcim::testing
