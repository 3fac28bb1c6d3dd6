#include <stdexcept>
#include <thread>

#include "core/provider_requests.h"
#include "tests/core/provider_fixture.h"

namespace tqcim::testing {
namespace {

class GetRequestTest : public ConnectedProviderFixture {
 protected:
  GetRequestTest() { parser.Understand("VORN_System.Name=\"x\"", OLESTR("VORN_System"), &keys); }

  HRESULT GetTheSystem() { return GetByPath(OLESTR("VORN_System.Name=\"x\"")); }

  void ExpectNothingSent() {
    EXPECT_TRUE(sink.Delivered().empty());
    EXPECT_TRUE(sink.StatusCalls().empty());
  }

  FakeKeyList keys;
};

TEST_F(GetRequestTest, DeliversTheInstanceThenCompletes) {
  EXPECT_EQ(0, GetTheSystem());
  ASSERT_EQ(1u, sink.Delivered().size());
  EXPECT_EQ((RecordedPut{"CreationClassName", VT_BSTR, 0, "VORN_System"}),
            sink.Delivered()[0].back());
  EXPECT_EQ(CompletedAfter(1), sink.StatusCalls());
}

TEST_F(GetRequestTest, HasThePathParsedByTheManagementService) {
  GetTheSystem();
  EXPECT_EQ((std::vector<std::string>{"SetText 4 VORN_System.Name=\"x\"", "GetClassName length",
                                      "GetClassName text", "GetKeyList"}),
            parser.Calls());
}

TEST_F(GetRequestTest, FetchesTheClassDefinitionByTheNameInThePath) {
  GetTheSystem();
  EXPECT_EQ((std::vector<FakeServices::Call>{{"VORN_System", 0, false, false}}),
            services.ObjectCalls());
}

TEST_F(GetRequestTest, HandsTheKeysToTheClass) {
  services.Define("CIM_PhysicalMemory", definition);
  store.List(2, 225, {200, 201});
  for (const uint32_t field : {68, 72, 80, 84, 96}) {
    (field == 68 ? store.Add(201, 225) : store.Object(201)).Ucs2(field, u"");
  }
  keys.Add(StringKey(OLESTR("Tag"), OLESTR("1")));
  parser.Understand("CIM_PhysicalMemory.Tag=\"1\"", OLESTR("CIM_PhysicalMemory"), &keys);
  EXPECT_EQ(0, GetByPath(OLESTR("CIM_PhysicalMemory.Tag=\"1\"")));
  EXPECT_EQ(CompletedAfter(1), sink.StatusCalls());
}

TEST_F(GetRequestTest, IgnoresFlagsAndContext) {
  auto* const untouchable = reinterpret_cast<IWbemContext*>(uintptr_t{0x10});
  EXPECT_EQ(0, provider->GetObjectAsync(SysAllocString(OLESTR("VORN_System.Name=\"x\"")), -1,
                                        untouchable, &sink));
  EXPECT_EQ(CompletedAfter(1), sink.StatusCalls());
}

TEST_F(GetRequestTest, AnInstanceThatIsNotFoundCompletesWithSuccess) {
  store.Remove(1);
  EXPECT_EQ(0, GetTheSystem());
  EXPECT_EQ(CompletedAfter(0), sink.StatusCalls());
}

TEST_F(GetRequestTest, WhateverTheClassReturnsCompletesWithSuccess) {
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(0, GetTheSystem());
  EXPECT_EQ(CompletedAfter(1), sink.StatusCalls());
}

TEST_F(GetRequestTest, FreesThePathTextOfTheCaller) {
  const Ledger before = CurrentLedger();
  BSTR path = SysAllocString(OLESTR("VORN_System.Name=\"x\""));
  EXPECT_EQ(before.texts + 1, CurrentLedger().texts);
  provider->GetObjectAsync(path, 0, nullptr, &sink);
  EXPECT_EQ(before, CurrentLedger());
}

TEST_F(GetRequestTest, GivesTheKeyListBackBeforeTheClassDefinition) {
  struct LastKeyList final : RefusingKeyList {
    explicit LastKeyList(const FakeClass& itsClass)
        : RefusingKeyList("a key list"), definition(itsClass) {}
    ULONG STDMETHODCALLTYPE Release() override {
      definitionsHeld = definition.References();
      return RefusingKeyList::Release();
    }
    const FakeClass& definition;
    LONG definitionsHeld = 0;
  } last(definition);
  parser.Understand("VORN_System=@", OLESTR("VORN_System"), &last);
  EXPECT_EQ(0, GetByPath(OLESTR("VORN_System=@")));
  EXPECT_EQ(1, last.definitionsHeld);
  EXPECT_EQ(0, definition.References());
}

TEST_F(GetRequestTest, WithoutKeysTheClassGetsNoKeyList) {
  parser.Understand("VORN_System=@", OLESTR("VORN_System"), nullptr);
  EXPECT_EQ(0, GetByPath(OLESTR("VORN_System=@")));
  EXPECT_EQ(CompletedAfter(1), sink.StatusCalls());
}

TEST_F(GetRequestTest, AClassThatTheNamespaceDoesNotDefineIsItsFailureWithoutStatus) {
  store.RecordCalls();
  parser.Understand("CIM_Processor.DeviceID=\"0\"", OLESTR("CIM_Processor"), &keys);
  EXPECT_EQ(Hr(0x80041002), GetByPath(OLESTR("CIM_Processor.DeviceID=\"0\"")));
  ExpectNothingSent();
  EXPECT_TRUE(store.Calls().empty());
}

TEST_F(GetRequestTest, AnyResultButZeroOfTheNamespaceIsReturnedWithoutStatus) {
  services.SetGetObjectResult(S_FALSE);
  EXPECT_EQ(S_FALSE, GetTheSystem());
  ExpectNothingSent();
}

TEST_F(GetRequestTest, AClassThatIsNotRegisteredFailsBeforeItsDefinitionIsFetched) {
  services.Define("CIM_System", definition);
  parser.Understand("CIM_System=@", OLESTR("CIM_System"), &keys);
  EXPECT_EQ(Hr(0x80041001), GetByPath(OLESTR("CIM_System=@")));
  EXPECT_TRUE(services.ObjectCalls().empty());
  ExpectNothingSent();
}

TEST_F(GetRequestTest, APathThatDoesNotParseFails) {
  EXPECT_EQ(Hr(0x80041001), GetByPath(OLESTR("no path")));
  EXPECT_EQ((std::vector<std::string>{"SetText 4 no path"}), parser.Calls());
  ExpectNothingSent();
}

TEST_F(GetRequestTest, APathWithoutAClassFails) {
  parser.Understand("root\\cimv2", nullptr, &keys);
  EXPECT_EQ(Hr(0x80041001), GetByPath(OLESTR("root\\cimv2")));
  EXPECT_EQ(
      (std::vector<std::string>{"SetText 4 root\\cimv2", "GetClassName length", "GetKeyList"}),
      parser.Calls());
  ExpectNothingSent();
}

TEST_F(GetRequestTest, APathThatDoesNotTellItsClassFails) {
  parser.SetClassNameResults(Hr(0x80041001), S_OK);
  EXPECT_EQ(Hr(0x80041001), GetTheSystem());
  parser.SetClassNameResults(S_OK, Hr(0x80041001));
  EXPECT_EQ(Hr(0x80041001), GetTheSystem());
  ExpectNothingSent();
}

TEST_F(GetRequestTest, TheOperationBehindTheInterfaceLetsTheOutOfRangeFailurePass) {
  try {
    DeliverInstance(SysAllocString(OLESTR("no path")), &sink);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const std::out_of_range& failure) {
    EXPECT_STREQ("invalid map<K, T> key", failure.what());
  }
}

TEST_F(GetRequestTest, WithoutAPathParserReturnsSuccessAndSendsNothing) {
  parser.SetCreateResult(E_FAIL);
  EXPECT_EQ(0, GetTheSystem());
  ExpectNothingSent();
  EXPECT_TRUE(services.ObjectCalls().empty());
}

TEST_F(GetRequestTest, EntersTheMultithreadedApartmentForTheRequestOnly) {
  int64_t during = -1;
  parser.OnParse([&] { during = CurrentLedger().initialisations; });
  std::thread([&] {
    EXPECT_EQ(0, CurrentLedger().initialisations);
    EXPECT_EQ(0, GetTheSystem());
    EXPECT_EQ(0, CurrentLedger().initialisations);
  }).join();
  EXPECT_EQ(1, during);
  EXPECT_EQ(CompletedAfter(1), sink.StatusCalls());
}

/// A thread that is in a single-threaded apartment can't enter the multithreaded one.
TEST_F(GetRequestTest, WhereComCannotBeEnteredReturnsSuccessAndLeavesComAllTheSame) {
  BSTR path = SysAllocString(OLESTR("VORN_System.Name=\"x\""));
  std::thread([&] {
    EXPECT_EQ(S_OK, CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    EXPECT_EQ(0, provider->GetObjectAsync(path, 0, nullptr, &sink));
    EXPECT_EQ(0, CurrentLedger().initialisations);
  }).join();
  ExpectNothingSent();
  EXPECT_TRUE(parser.Calls().empty());
  // The path is still the caller's.
  EXPECT_EQ(20u, SysStringLen(path));
  SysFreeString(path);
}

}  // namespace
}  // namespace tqcim::testing
