// The exports of the three libraries, over the installed store.
#include <cstring>

#include "platform/libraries.h"
#include "tests/support/fake_store.h"
#include "tests/support/fault.h"

using tqcim::testing::Call;
using tqcim::testing::FakeStore;
using tqcim::testing::OutsideCall;

void* SMILGetObjByOID(uint32_t* oid) {
  const OutsideCall call(Call::kLibrary);
  return call.Fails() ? nullptr : FakeStore::Installed().ReadObject(*oid);
}

void* SMILListChildOIDByType(uint32_t* parentOid, uint16_t objectType) {
  const OutsideCall call(Call::kLibrary);
  return call.Fails() ? nullptr : FakeStore::Installed().ListChildren(*parentOid, objectType);
}

char* SMILDOGetByOffsetUTF8Str(void* dataObject, uint32_t offset) {
  const OutsideCall call(Call::kLibrary);
  return call.Fails() ? nullptr : FakeStore::Installed().GetUtf8Text(dataObject, offset);
}

void SMILFreeGeneric(void* block) {
  const OutsideCall call;
  FakeStore::Installed().FreeGeneric(block);
}

void* SMAllocMem(uint32_t size) {
  const OutsideCall call(Call::kLibrary);
  return call.Fails() ? nullptr : FakeStore::Installed().Allocate(size);
}

void SMFreeMem(void* block) {
  const OutsideCall call;
  FakeStore::Installed().FreeSupport(block);
}

/// Knows the module's one way to read only: a 16-bit number (value type 4) that is its own default,
/// with flag 1.
int32_t SMReadINIFileValue(const char* section, const char* key, uint32_t valueType, void* value,
                           uint32_t* size, const void* defaultValue, uint32_t defaultSize,
                           const char* fileName, uint32_t flag) {
  constexpr uint32_t kUint16 = 4;
  constexpr int32_t kWrongArguments = 1;
  constexpr int32_t kUnreadable = 2;
  const OutsideCall call(Call::kLibrary);
  if (call.Fails()) return kUnreadable;
  uint16_t number;
  if (valueType != kUint16 || *size != sizeof number || defaultValue != value ||
      defaultSize != sizeof number || flag != 1) {
    return kWrongArguments;
  }
  std::memcpy(&number, defaultValue, sizeof number);
  number = FakeStore::Installed().GetIniValue(fileName, section, key).value_or(number);
  std::memcpy(value, &number, sizeof number);
  return 0;
}

/// Has no failure to tell.
int32_t SMUCS2Strcmp(const OLECHAR* a, const OLECHAR* b) {
  FakeStore::Installed().NoteComparison();
  while (*a && *a == *b) ++a, ++b;
  return (*a > *b) - (*a < *b);
}

int32_t SMUTF8StrToUCS2Str(OLECHAR* destination, uint32_t* sizeInBytes, const char* source) {
  const OutsideCall call(Call::kLibrary);
  FakeStore::Installed().NoteConversion(source);
  if (call.Fails() || *sizeInBytes != 256) return 1;
  const int room = static_cast<int>(*sizeInBytes / sizeof(OLECHAR));
  return MultiByteToWideChar(CP_UTF8, 0, source, -1, destination, room) > 0 ? 0 : 1;
}

void* XEPGetEELR(uint32_t* logOid, uint32_t index) {
  const OutsideCall call(Call::kLibrary);
  return call.Fails() ? nullptr : FakeStore::Installed().GetRecord(logOid, index);
}

uint32_t XEPGetEELRNum(uint32_t* logOid) {
  const OutsideCall call(Call::kLibrary);
  return call.Fails() ? 0 : FakeStore::Installed().CountRecords(logOid);
}

void XEPFreeGeneric(void* record) {
  const OutsideCall call;
  FakeStore::Installed().FreeRecord(record);
}
