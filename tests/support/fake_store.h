/// An object store that a test fills with raw bytes, behind the functions of the three libraries.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/wmi.h"
#include "tests/support/block_ledger.h"
#include "tests/support/fake_block.h"

namespace tqcim::testing {

/// One store at a time answers the libraries' functions: from its construction until it goes, when
/// every block that it handed out is expected to be back. Fill it first; then any number of threads
/// may read. What was not told to the store is not there: an unknown OID reads as null, and a
/// listing that was never set as a failed one.
class FakeStore {
 public:
  /// For failures that don't end.
  static constexpr uint32_t kAlways = UINT32_MAX;

  FakeStore();
  ~FakeStore();
  FakeStore(const FakeStore&) = delete;
  FakeStore& operator=(const FakeStore&) = delete;

  /// @name Contents
  /// @{

  /// Adds a data object (or replaces the one with that OID), to be written at literal offsets.
  FakeBlock& Add(uint32_t oid, uint16_t type, uint8_t status = 2);
  /// The data object as it stands, to be changed.
  FakeBlock& Object(uint32_t oid) { return objects_.at(oid); }
  void Remove(uint32_t oid) { objects_.erase(oid); }
  /// Sets a listing; it may be empty.
  void List(uint32_t parentOid, uint16_t type, std::vector<uint32_t> oids);
  /// Sets a listing that is handed out without being copied, for the long ones that a walk asks for
  /// again at each position.
  void ListLong(uint32_t parentOid, uint16_t type, const std::vector<uint32_t>& oids);
  /// Adds a record to the end of an event log.
  FakeBlock& AddRecord(uint32_t logOid) { return records_[logOid].emplace_back(); }
  /// What XEPGetEELRNum gives, where it is not the number of records.
  void SetRecordCount(uint32_t logOid, uint32_t count) { recordCounts_[logOid] = count; }
  /// A 16-bit value of an INI file.
  void SetIniValue(const std::string& fileName, const std::string& section, const std::string& key,
                   uint16_t value);
  /// @}

  /// @name Failures
  /// @{
  /// The reads of an object from number `first` (from 0) on give null: with kAlways it has
  /// vanished, although it stays listed.
  void FailRead(uint32_t oid, uint32_t times = kAlways, uint32_t first = 0);
  /// The listing gives null, not an empty list.
  void FailListing(uint32_t parentOid, uint16_t type, uint32_t times = kAlways);
  /// SMAllocMem has no memory.
  void FailAllocations();
  /// @}

  /// @name Observation
  /// @{
  size_t LiveBlocks() const { return blocks_.Live(); }
  /// Expects exactly `count` blocks to have been kept on purpose, and frees them.
  void ExpectLeaked(size_t count);

  /// The 32-bit value at `offset` of a data object when it was last freed.
  uint32_t U32WhenFreed(uint32_t oid, uint32_t offset) const;

  /// From now on calls are noted: "object 7", "children 2/196", "text 80", "free", "allocate 26",
  /// "free support", "compare", "convert NAME", "records 9", "record 9/0", "free record", "ini FILE
  /// [SECTION] KEY".
  void RecordCalls() { scripted_ = recording_ = true; }
  const std::vector<std::string>& Calls() const { return calls_; }
  /// @}

  /// @name The libraries' functions
  /// @{
  void* ReadObject(uint32_t oid);
  void* ListChildren(uint32_t parentOid, uint16_t type);
  char* GetUtf8Text(const void* dataObject, uint32_t offset);
  void FreeGeneric(void* block);
  void* Allocate(uint32_t size);
  void FreeSupport(void* block);
  void NoteComparison();
  void NoteConversion(const char* narrow);
  /// Both expect the OID where the log object has it.
  uint32_t CountRecords(const uint32_t* logOid);
  void* GetRecord(const uint32_t* logOid, uint32_t index);
  void FreeRecord(void* record);
  std::optional<uint16_t> GetIniValue(const std::string& fileName, const std::string& section,
                                      const std::string& key);
  /// @}

  /// The store that answers now; fails the test when there is none.
  static FakeStore& Installed();

 private:
  using Listing = std::pair<uint32_t, uint16_t>;

  /// Which of the calls yet to come fail.
  struct Failures {
    uint32_t first;
    uint32_t times;
  };
  /// Whether a call is one that has to fail.
  template <typename Key>
  bool Refuses(std::map<Key, Failures>& failures, const Key& key);
  /// Expects the place of the OID in a data object that is out.
  void ExpectInDataObject(const uint32_t* oid) const;
  /// Notes a call, told in parts that make its text.
  template <typename... Parts>
  void Note(const Parts&... parts);

  std::map<uint32_t, FakeBlock> objects_;
  std::map<Listing, std::vector<uint32_t>> listings_;
  std::map<Listing, std::vector<uint8_t>> longListings_;
  std::map<uint32_t, std::deque<FakeBlock>> records_;
  std::map<uint32_t, uint32_t> recordCounts_;
  std::map<std::tuple<std::string, std::string, std::string>, uint16_t> iniValues_;

  BlockLedger blocks_;

  /// Whether calls are noted or fail; where not, they take no lock.
  bool scripted_ = false;
  std::mutex mutex_;  // guards what follows
  bool recording_ = false;
  std::map<uint32_t, Failures> failingReads_;
  std::map<Listing, Failures> failingListings_;
  bool noMemory_ = false;
  std::vector<std::string> calls_;
};

}  // namespace tqcim::testing
