#include <cstdio>
#include <cstring>
#include <exception>
#include <string>

#include "platform/libraries.h"
#include "store/configuration.h"
#include "store/export_guard.h"
#include "store/log_records.h"
#include "store/snapshot_builder.h"
#include "store/sources.h"
#include "store/store.h"
#include "store/store_control.h"

namespace tqcim::store {
namespace {

Store& ProcessStore() {
  static Store store;
  return store;
}

std::unique_ptr<Snapshot> LoadConfiguredSource() {
  const SourceChoice choice = ConfiguredSource();
  return LoadSource(choice.text, choice.folder);
}

std::unique_ptr<Snapshot> LoadFirstSource() {
  try {
    return LoadConfiguredSource();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "tqsgen64: %s\n", error.what());
    return SnapshotBuilder().Build();
  }
}

/// The process's store, opened by whoever comes first.
Store& OpenStore() {
  Store& store = ProcessStore();
  store.OpenOnce(LoadFirstSource);
  return store;
}

/// Copies as much of the sentence as fits, without cutting a character.
void PutMessage(std::string_view sentence, char* message, uint32_t messageSize) {
  if (message == nullptr || messageSize == 0) return;
  size_t length = sentence.size();
  if (length > messageSize - 1) {
    length = messageSize - 1;
    while (length > 0 && (static_cast<uint8_t>(sentence[length]) & 0xC0) == 0x80) --length;
  }
  std::memcpy(message, sentence.data(), length);
  message[length] = '\0';
}

}  // namespace
}  // namespace tqcim::store

using namespace tqcim::store;

void* SMILGetObjByOID(uint32_t* oid) {
  return NullOnFailure([&] { return oid == nullptr ? nullptr : OpenStore().CopyObject(*oid); });
}

void* SMILListChildOIDByType(uint32_t* parentOid, uint16_t objectType) {
  return NullOnFailure([&] {
    return parentOid == nullptr ? nullptr : OpenStore().ListChildren(*parentOid, objectType);
  });
}

char* SMILDOGetByOffsetUTF8Str(void* dataObject, uint32_t offset) {
  return NullOnFailure([&] {
    return dataObject == nullptr ? nullptr : static_cast<char*>(Store::TextAt(dataObject, offset));
  });
}

void SMILFreeGeneric(void* block) {
  Store::Free(block);
}

uint32_t TQStoreCountLogRecords(uint32_t logOid) {
  return NullOnFailure([&] { return OpenStore().CountRecords(logOid); });
}

void* TQStoreCopyLogRecord(uint32_t logOid, uint32_t index) {
  return NullOnFailure([&] { return OpenStore().CopyRecord(logOid, index); });
}

int32_t TQStoreOpen(const char* source, char* message, uint32_t messageSize) {
  try {
    ProcessStore().Replace(source == nullptr ? LoadConfiguredSource() : LoadSource(source, {}));
    PutMessage("", message, messageSize);
    return 0;
  } catch (const std::exception& error) {
    PutMessage(error.what(), message, messageSize);
    return 1;
  }
}
