// That the fakes notice what they are there to notice.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "platform/libraries.h"
#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

class FakeStoreTest : public ::testing::Test {
 protected:
  FakeStoreTest() {
    store->Add(7, 19, 3).U32(20, 0x12345678).Ucs2(24, u"wide").Utf8(28, "narrow");
    store->List(2, 19, {7, 8});
  }

  static void* Read(uint32_t oid) { return SMILGetObjByOID(&oid); }
  static void* List(uint32_t parentOid, uint16_t type) {
    return SMILListChildOIDByType(&parentOid, type);
  }

  std::unique_ptr<FakeStore> store = std::make_unique<FakeStore>();
};

TEST_F(FakeStoreTest, HandsOutTheBytesThatWereSet) {
  void* const object = Read(7);
  uint8_t bytes[256];
  std::memcpy(bytes, object, sizeof bytes);
  constexpr uint8_t kHeader[] = {0xEE, 0xEE, 0xEE, 0xEE, 7,    0,    0,    0,
                                 19,   0,    3,    0xEE, 0xEE, 0xEE, 0xEE, 0xEE};
  EXPECT_EQ(0, std::memcmp(kHeader, bytes, sizeof kHeader));
  constexpr uint8_t kBody[] = {0, 0, 0, 0, 0x78, 0x56, 0x34, 0x12};
  EXPECT_EQ(0, std::memcmp(kBody, bytes + 16, sizeof kBody));
  SMILFreeGeneric(object);
}

TEST_F(FakeStoreTest, TextsStandBehindTheBody) {
  auto* const object = static_cast<uint8_t*>(Read(7));
  uint32_t wideOffset;
  uint32_t narrowOffset;
  std::memcpy(&wideOffset, object + 24, 4);
  std::memcpy(&narrowOffset, object + 28, 4);
  EXPECT_EQ(256u, wideOffset);
  EXPECT_EQ(266u, narrowOffset);
  EXPECT_EQ(0, std::memcmp("w\0i\0d\0e\0\0\0", object + wideOffset, 10));
  char* const text = SMILDOGetByOffsetUTF8Str(object, narrowOffset);
  EXPECT_STREQ("narrow", text);
  EXPECT_EQ(nullptr, SMILDOGetByOffsetUTF8Str(object, wideOffset));
  SMILFreeGeneric(text);
  SMILFreeGeneric(object);
}

TEST_F(FakeStoreTest, ListsWhatWasToldAndNothingElse) {
  void* const list = List(2, 19);
  constexpr uint32_t kWords[] = {2, 7, 8};
  EXPECT_EQ(0, std::memcmp(kWords, list, sizeof kWords));
  SMILFreeGeneric(list);
  EXPECT_EQ(nullptr, List(2, 20));
  EXPECT_EQ(nullptr, Read(8));
}

TEST_F(FakeStoreTest, ALongListingIsLentAnyNumberOfTimes) {
  store->ListLong(2, 20, {1, 2, 3});
  void* const first = List(2, 20);
  EXPECT_EQ(first, List(2, 20));
  EXPECT_EQ(2u, store->LiveBlocks());
  SMILFreeGeneric(first);
  SMILFreeGeneric(first);
  EXPECT_NONFATAL_FAILURE(SMILFreeGeneric(first), "freed twice");
}

TEST_F(FakeStoreTest, ABlockThatIsKeptFails) {
  void* const object = Read(7);
  EXPECT_EQ(1u, store->LiveBlocks());
  EXPECT_NONFATAL_FAILURE(store.reset(), "1 data object");
  static_cast<void>(object);
}

TEST_F(FakeStoreTest, ABlockThatIsFreedTwiceFails) {
  void* const object = Read(7);
  SMILFreeGeneric(object);
  EXPECT_NONFATAL_FAILURE(SMILFreeGeneric(object), "freed twice");
}

TEST_F(FakeStoreTest, ABlockThatIsFreedByTheWrongFunctionFails) {
  void* const object = Read(7);
  EXPECT_NONFATAL_FAILURE(SMFreeMem(object), "SMFreeMem does not free a data object");
  void* const memory = SMAllocMem(26);
  EXPECT_NONFATAL_FAILURE(SMILFreeGeneric(memory), "SMILFreeGeneric does not free a support block");
}

TEST_F(FakeStoreTest, ALeakOnPurposeHasToBeOfTheSizeThatIsTold) {
  Read(7);
  EXPECT_NONFATAL_FAILURE(store->ExpectLeaked(2), "1 data object");
  EXPECT_EQ(0u, store->LiveBlocks());
}

TEST_F(FakeStoreTest, FailuresComeAsOftenAsTold) {
  store->FailRead(7, 2);
  EXPECT_EQ(nullptr, Read(7));
  EXPECT_EQ(nullptr, Read(7));
  SMILFreeGeneric(Read(7));
}

TEST_F(FakeStoreTest, AnObjectVanishesAndStaysListed) {
  store->FailRead(7, FakeStore::kAlways, 1);
  SMILFreeGeneric(Read(7));
  EXPECT_EQ(nullptr, Read(7));
  EXPECT_EQ(nullptr, Read(7));
  void* const list = List(2, 19);
  EXPECT_NE(nullptr, list);
  SMILFreeGeneric(list);
}

TEST(ComFakes, AReferenceThatIsKeptFails) {
  auto definition = std::make_unique<FakeClass>();
  definition->AddRef();
  EXPECT_NONFATAL_FAILURE(definition.reset(), "references to a class definition");
}

TEST(ComFakes, AnInstanceThatIsNotReleasedFails) {
  auto definition = std::make_unique<FakeClass>();
  IWbemClassObject* instance = nullptr;
  definition->SpawnInstance(0, &instance);
  EXPECT_NONFATAL_FAILURE(definition.reset(), "references to an instance");
}

TEST(ComFakes, AReleaseTooManyFails) {
  FakeClass definition;
  definition.AddRef();
  definition.Release();
  EXPECT_NONFATAL_FAILURE(definition.Release(), "released more often");
  definition.AddRef();
}

TEST(ComFakes, AnInstanceThatIsUsedAfterItsReleaseFails) {
  FakeClass definition;
  IWbemClassObject* instance = nullptr;
  definition.SpawnInstance(0, &instance);
  instance->Release();
  VARIANT value;
  VariantInit(&value);
  EXPECT_NONFATAL_FAILURE(instance->Put(OLESTR("Name"), 0, &value, 0), "after its last release");
}

class LedgerTest : public ::testing::Test {
 protected:
  void Expect(int64_t texts, int64_t arrays) {
    const Ledger now = CurrentLedger();
    EXPECT_EQ(texts, now.texts - before_.texts);
    EXPECT_EQ(arrays, now.arrays - before_.arrays);
  }

 private:
  const Ledger before_ = CurrentLedger();
};

TEST_F(LedgerTest, CountsTexts) {
  BSTR first = SysAllocString(OLESTR("a"));
  BSTR second = SysAllocStringLen(OLESTR("b"), 1);
  Expect(2, 0);
  SysFreeString(first);
  SysFreeString(nullptr);
  Expect(1, 0);
  SysFreeString(second);
  Expect(0, 0);
}

TEST_F(LedgerTest, CountsTheTextsOfVariants) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_BSTR;
  V_BSTR(&value) = SysAllocString(OLESTR("a"));
  VARIANT copy;
  VariantInit(&copy);
  VariantCopy(&copy, &value);
  Expect(2, 0);
  VariantClear(&value);
  VariantClear(&copy);
  Expect(0, 0);
}

TEST_F(LedgerTest, CountsArraysAndTheirTexts) {
  SAFEARRAY* array = SafeArrayCreateVector(VT_BSTR, 0, 2);
  BSTR text = SysAllocString(OLESTR("a"));
  LONG index = 0;
  SafeArrayPutElement(array, &index, text);
  SysFreeString(text);
  Expect(1, 1);
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_ARRAY | VT_BSTR;
  V_ARRAY(&value) = array;
  VARIANT copy;
  VariantInit(&copy);
  VariantCopy(&copy, &value);
  Expect(2, 2);
  VariantClear(&value);
  Expect(1, 1);
  SafeArrayDestroy(V_ARRAY(&copy));
  Expect(0, 0);
}

TEST_F(LedgerTest, CountsTheEntriesIntoCom) {
  const int64_t before = CurrentLedger().initialisations;
  CoInitializeEx(nullptr, COINIT_MULTITHREADED);
  EXPECT_EQ(before + 1, CurrentLedger().initialisations);
  EXPECT_TRUE(FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
  EXPECT_EQ(before + 1, CurrentLedger().initialisations);
  CoUninitialize();
  EXPECT_EQ(before, CurrentLedger().initialisations);
}

TEST(ValueText, TellsTypesAndArraysApart) {
  const OLECHAR* const texts[] = {OLESTR("a"), OLESTR("\xE9\n")};
  EXPECT_EQ("{a,\\u00E9\\u000A}", ValueText(*Variant::TextArray(texts)));
  EXPECT_EQ("<null>", ValueText(*Variant::Text(static_cast<const OLECHAR*>(nullptr))));
  EXPECT_EQ("<value of type 0>", ValueText(*Variant()));
}

TEST(ValueText, AnArrayThatDoesNotBeginAtZeroFails) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_ARRAY | VT_I4;
  V_ARRAY(&value) = SafeArrayCreateVector(VT_I4, 1, 1);
  EXPECT_NONFATAL_FAILURE(ValueText(value), "lowerBound");
  VariantClear(&value);
}

}  // namespace
}  // namespace tqcim::testing
