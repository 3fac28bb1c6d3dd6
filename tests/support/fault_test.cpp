// That a fault fails the call that it is told to fail, and no other.
#include "tests/support/fault.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <stdexcept>
#include <thread>

#include "platform/libraries.h"
#include "tests/support/failing_new.h"
#include "tests/support/fake_class.h"
#include "tests/support/fake_store.h"

namespace tqcim::testing {
namespace {

bool LibraryCallFails() {
  return OutsideCall(Call::kLibrary).Fails();
}

TEST(Fault, FailsTheCallAtItsPositionAlone) {
  const Fault fault({FaultKind::kLibraryCalls, 1});
  EXPECT_FALSE(LibraryCallFails());
  EXPECT_FALSE(fault.FailedCall());
  EXPECT_TRUE(LibraryCallFails());
  EXPECT_FALSE(LibraryCallFails());
  EXPECT_EQ(3u, fault.Calls());
  ASSERT_TRUE(fault.FailedCall());
  EXPECT_EQ(Call::kLibrary, fault.FailedCall()->call);
}

TEST(Fault, FailsAllCallsFromItsPositionOn) {
  const Fault fault({FaultKind::kLibraryCalls, 1, FaultPlan::kAll});
  EXPECT_FALSE(LibraryCallFails());
  EXPECT_TRUE(LibraryCallFails());
  EXPECT_TRUE(LibraryCallFails());
}

TEST(Fault, OtherKindsDoNotCount) {
  const Fault fault({FaultKind::kComCalls, 1});
  EXPECT_FALSE(LibraryCallFails());
  EXPECT_FALSE(OutsideCall(Call::kSpawn).Fails());
  EXPECT_TRUE(OutsideCall(Call::kPut).Fails());
  EXPECT_EQ(0u, fault.FailedCall()->index);
  EXPECT_EQ(2u, fault.Calls());
}

TEST(Fault, WhatAFakeDoesDoesNotCount) {
  const Fault fault({FaultKind::kAllocations, 0});
  {
    const OutsideCall answer;
    EXPECT_FALSE(LibraryCallFails());
    EXPECT_NO_THROW(std::make_unique<int>());
  }
  EXPECT_THROW(std::make_unique<int>(), std::bad_alloc);
}

TEST(Fault, OtherThreadsDoNotCount) {
  std::thread other;
  const Fault fault({FaultKind::kLibraryCalls, 0});
  {
    const OutsideCall starting;
    other = std::thread([] { EXPECT_FALSE(LibraryCallFails()); });
  }
  other.join();
  EXPECT_EQ(0u, fault.Calls());
}

TEST(Fault, CallsWithoutEndFailAndEndWithAnException) {
  const Fault fault({FaultKind::kLibraryCalls});
  const auto callForever = [] {
    while (true) LibraryCallFails();
  };
  EXPECT_NONFATAL_FAILURE(EXPECT_THROW(callForever(), std::runtime_error), "calls without end");
}

TEST(Fault, FailsEveryKindOfAllocation) {
  for (const uint32_t position : {0, 1, 2, 3, 4, 5}) {
    const Fault fault({FaultKind::kAllocations, position});
    const std::unique_ptr<int> nothrown(new (std::nothrow) int);
    const BSTR text = SysAllocString(OLESTR("text"));
    const BSTR buffer = SysAllocStringLen(nullptr, 4);
    SAFEARRAY* const array = SafeArrayCreateVector(VT_BSTR, 0, 1);
    LONG index = 0;
    const HRESULT put = SafeArrayPutElement(array, &index, text);
    bool thrown = false;
    try {
      std::make_unique<char[]>(8);
    } catch (const std::bad_alloc&) {
      thrown = true;
    }
    EXPECT_EQ(position == 0, !nothrown);
    EXPECT_EQ(position == 1, !text);
    EXPECT_EQ(position == 2, !buffer);
    EXPECT_EQ(position == 3, !array);
    EXPECT_EQ(position == 3 || position == 4, FAILED(put));
    EXPECT_EQ(position == 5, thrown);
    SysFreeString(text);
    SysFreeString(buffer);
    SafeArrayDestroy(array);
  }
}

TEST(Fault, WhatIsAllocatedAndNotFreedIsTold) {
  ForgetNews();
  size_t whileKept;
  size_t afterwards;
  {
    const Fault fault({FaultKind::kAllocations});
    auto kept = std::make_unique<int>();
    whileKept = LiveNews();
    kept.reset();
    afterwards = LiveNews();
  }
  EXPECT_EQ(1u, whileKept);
  EXPECT_EQ(0u, afterwards);
}

TEST(Fault, TheLibrariesGiveNothing) {
  FakeStore store;
  store.Add(7, 19);
  uint32_t oid = 7;
  const Fault fault({FaultKind::kLibraryCalls, 0});
  EXPECT_EQ(nullptr, SMILGetObjByOID(&oid));
  SMILFreeGeneric(SMILGetObjByOID(&oid));
}

TEST(Fault, ASpawnFailsOrGivesNothing) {
  for (const FaultKind kind : {FaultKind::kComCalls, FaultKind::kEmptySpawns}) {
    FakeClass definition;
    IWbemClassObject* instance = nullptr;
    const Fault fault({kind, 0});
    EXPECT_EQ(kind == FaultKind::kComCalls ? Fault::kResult : S_OK,
              definition.SpawnInstance(0, &instance));
    EXPECT_EQ(nullptr, instance);
  }
}

}  // namespace
}  // namespace tqcim::testing
