#include <stdexcept>
#include <thread>

#include "core/provider_requests.h"
#include "tests/core/provider_fixture.h"

namespace tqcim::testing {
namespace {

using EnumerateRequestTest = ConnectedProviderFixture;

TEST_F(EnumerateRequestTest, DeliversTheInstancesThenCompletes) {
  EXPECT_EQ(0, Enumerate(OLESTR("VORN_System")));
  ASSERT_EQ(1u, sink.Delivered().size());
  EXPECT_EQ((Puts{{"Status", VT_BSTR, 0, "OK"},
                  {"Name", VT_BSTR, 0, "RACK42-NODE0007"},
                  {"CreationClassName", VT_BSTR, 0, "VORN_System"}}),
            sink.Delivered()[0]);
  EXPECT_EQ(CompletedAfter(1), sink.StatusCalls());
}

TEST_F(EnumerateRequestTest, FetchesTheClassDefinition) {
  Enumerate(OLESTR("VORN_System"));
  EXPECT_EQ((std::vector<FakeServices::Call>{{"VORN_System", 0, false, false}}),
            services.ObjectCalls());
}

TEST_F(EnumerateRequestTest, IgnoresFlagsAndContext) {
  const Bstr name(OLESTR("VORN_System"));
  auto* const untouchable = reinterpret_cast<IWbemContext*>(uintptr_t{0x10});
  EXPECT_EQ(0, provider->CreateInstanceEnumAsync(name.get(), -1, untouchable, &sink));
  EXPECT_EQ(CompletedAfter(1), sink.StatusCalls());
}

TEST_F(EnumerateRequestTest, NothingToDeliverCompletesToo) {
  services.Define("CIM_Processor", definition);
  EXPECT_EQ(0, Enumerate(OLESTR("CIM_Processor")));
  EXPECT_EQ(CompletedAfter(0), sink.StatusCalls());
}

TEST_F(EnumerateRequestTest, AClassThatTheNamespaceDoesNotDefineIsItsFailureWithoutStatus) {
  store.RecordCalls();
  EXPECT_EQ(Hr(0x80041002), Enumerate(OLESTR("CIM_Processor")));
  EXPECT_EQ(Hr(0x80041002), Enumerate(OLESTR("No_SuchClass")));
  EXPECT_TRUE(sink.StatusCalls().empty());
  EXPECT_TRUE(store.Calls().empty());
}

TEST_F(EnumerateRequestTest, AnyResultButZeroOfTheNamespaceIsReturnedWithoutStatus) {
  services.SetGetObjectResult(S_FALSE);
  EXPECT_EQ(S_FALSE, Enumerate(OLESTR("VORN_System")));
  EXPECT_TRUE(sink.Delivered().empty());
  EXPECT_TRUE(sink.StatusCalls().empty());
}

TEST_F(EnumerateRequestTest, AFailureOfTheHandlerIsReturnedWithoutStatus) {
  store.Remove(1);
  EXPECT_EQ(Hr(0x80041002), Enumerate(OLESTR("VORN_System")));
  EXPECT_TRUE(sink.StatusCalls().empty());
}

TEST_F(EnumerateRequestTest, APositiveResultOfTheHandlerIsReturnedWithoutStatus) {
  services.Define("VORN_BIOSExtensions", definition);
  store.Add(40, 212);
  store.List(2, 212, {40});
  sink.KeepInstances();
  EXPECT_EQ(1, Enumerate(OLESTR("VORN_BIOSExtensions")));
  EXPECT_EQ(1u, sink.Delivered().size());
  EXPECT_TRUE(sink.StatusCalls().empty());
  sink.GiveInstancesBack();
}

TEST_F(EnumerateRequestTest, AClassThatIsNotRegisteredIsAFailureWithoutStatus) {
  services.Define("CIM_System", definition);
  EXPECT_EQ(Hr(0x80041001), Enumerate(OLESTR("CIM_System")));
  EXPECT_EQ(1u, services.ObjectCalls().size());
  EXPECT_TRUE(sink.StatusCalls().empty());
}

TEST_F(EnumerateRequestTest, TheClassNameIsMatchedWithItsCase) {
  services.Define("vorn_system", definition);
  EXPECT_EQ(Hr(0x80041001), Enumerate(OLESTR("vorn_system")));
  EXPECT_TRUE(sink.Delivered().empty());
}

TEST_F(EnumerateRequestTest, NoClassNameIsAFailure) {
  services.Define("<null>", definition);
  EXPECT_EQ(Hr(0x80041001), Enumerate(nullptr));
  EXPECT_TRUE(sink.StatusCalls().empty());
}

TEST_F(EnumerateRequestTest, TheOperationBehindTheInterfaceLetsTheOutOfRangeFailurePass) {
  services.Define("CIM_System", definition);
  const Bstr name(OLESTR("CIM_System"));
  try {
    EnumerateClass(name.get(), &sink);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const std::out_of_range& failure) {
    EXPECT_STREQ("invalid map<K, T> key", failure.what());
  }
}

TEST_F(EnumerateRequestTest, LeavesTheClassNameToTheCaller) {
  const Bstr name(OLESTR("VORN_System"));
  const Ledger before = CurrentLedger();
  provider->CreateInstanceEnumAsync(name.get(), 0, nullptr, &sink);
  EXPECT_EQ(before, CurrentLedger());
}

TEST_F(EnumerateRequestTest, WorksInASinglethreadedApartmentToo) {
  std::thread([&] {
    EXPECT_EQ(S_OK, CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    EXPECT_EQ(0, Enumerate(OLESTR("VORN_System")));
    EXPECT_EQ(1, CurrentLedger().initialisations);
    CoUninitialize();
  }).join();
  EXPECT_EQ(CompletedAfter(1), sink.StatusCalls());
}

}  // namespace
}  // namespace tqcim::testing
