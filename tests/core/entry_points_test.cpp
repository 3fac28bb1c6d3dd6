#include "core/module.h"
#include "tests/core/provider_fixture.h"
#include "tests/support/fault.h"

namespace tqcim::testing {
namespace {

CLSID ClsidOf(const OLECHAR* text) {
  CLSID clsid{};
  EXPECT_EQ(S_OK, CLSIDFromString(text, &clsid));
  return clsid;
}

class EntryPointsTest : public ModuleTest {
 protected:
  static Com<IClassFactory> Factory() {
    Com<IClassFactory> factory;
    EXPECT_EQ(S_OK, DllGetClassObject(ClsidOf(kProviderClsidText), IID_IClassFactory,
                                      factory.ReceiveVoid()));
    return factory;
  }

  /// Not a null pointer, so that it can be seen to be set to one.
  int something = 0;
  void* object = &something;
};

TEST_F(EntryPointsTest, GivesTheClassFactoryOfTheProvider) {
  for (const IID& iid : {IID_IUnknown, IID_IClassFactory}) {
    EXPECT_EQ(S_OK, DllGetClassObject(ClsidOf(kProviderClsidText), iid, &object));
    ASSERT_NE(nullptr, object);
    EXPECT_EQ(0u, static_cast<IUnknown*>(object)->Release());
  }
}

TEST_F(EntryPointsTest, AnyOtherClassIsEFail) {
  for (const OLECHAR* text : {OLESTR("{5E3A9C17-4B2D-41F0-9A6E-2C7D81B0E4F4}"),
                              OLESTR("{00000000-0000-0000-0000-000000000000}")}) {
    object = &something;
    EXPECT_EQ(Hr(0x80004005), DllGetClassObject(ClsidOf(text), IID_IClassFactory, &object));
    EXPECT_EQ(nullptr, object);
  }
}

TEST_F(EntryPointsTest, AnInterfaceThatTheFactoryLacksIsRefused) {
  EXPECT_EQ(Hr(0x80004002),
            DllGetClassObject(ClsidOf(kProviderClsidText), IID_IWbemServices, &object));
  EXPECT_EQ(nullptr, object);
}

TEST_F(EntryPointsTest, AFactoryThatFindsNoMemoryIsRefused) {
  const Fault noMemory({FaultKind::kAllocations, 0});
  EXPECT_EQ(Hr(0x8007000E),
            DllGetClassObject(ClsidOf(kProviderClsidText), IID_IClassFactory, &object));
  EXPECT_EQ(nullptr, object);
}

TEST_F(EntryPointsTest, TheFactoryIsItsOwnIdentity) {
  const auto factory = Factory();
  for (const IID& iid : {IID_IUnknown, IID_IClassFactory}) {
    EXPECT_EQ(S_OK, factory->QueryInterface(iid, &object));
    EXPECT_EQ(factory.get(), object);
    EXPECT_EQ(1u, factory->Release());
  }
  EXPECT_EQ(Hr(0x80004002), factory->QueryInterface(IID_IWbemProviderInit, &object));
  EXPECT_EQ(nullptr, object);
}

TEST_F(EntryPointsTest, TheFactoryCountsItsReferences) {
  auto factory = Factory();
  EXPECT_EQ(2u, factory->AddRef());
  EXPECT_EQ(3u, factory->AddRef());
  EXPECT_EQ(2u, factory->Release());
  EXPECT_EQ(1u, factory->Release());
  EXPECT_EQ(0u, factory.Release());
}

TEST_F(EntryPointsTest, TheFactoryMakesProviders) {
  const auto factory = Factory();
  for (const IID& iid : {IID_IUnknown, IID_IWbemServices, IID_IWbemProviderInit}) {
    EXPECT_EQ(S_OK, factory->CreateInstance(nullptr, iid, &object));
    ASSERT_NE(nullptr, object);
    EXPECT_EQ(1, objectCounter);
    EXPECT_EQ(0u, static_cast<IUnknown*>(object)->Release());
    EXPECT_EQ(0, objectCounter);
  }
}

TEST_F(EntryPointsTest, ProvidersAreNotAggregated) {
  const auto factory = Factory();
  EXPECT_EQ(Hr(0x80040110), factory->CreateInstance(factory.get(), IID_IUnknown, &object));
  EXPECT_EQ(nullptr, object);
  EXPECT_EQ(0, objectCounter);
}

TEST_F(EntryPointsTest, AProviderThatLacksTheInterfaceIsDestroyed) {
  const auto factory = Factory();
  EXPECT_EQ(Hr(0x80004002), factory->CreateInstance(nullptr, IID_IClassFactory, &object));
  EXPECT_EQ(nullptr, object);
  EXPECT_EQ(0, objectCounter);
}

TEST_F(EntryPointsTest, AProviderThatFindsNoMemoryIsRefused) {
  const auto factory = Factory();
  const Fault noMemory({FaultKind::kAllocations, 0});
  EXPECT_EQ(Hr(0x8007000E), factory->CreateInstance(nullptr, IID_IWbemServices, &object));
  EXPECT_EQ(nullptr, object);
}

TEST_F(EntryPointsTest, TheModuleStaysWhileAProviderLives) {
  EXPECT_EQ(S_OK, DllCanUnloadNow());
  {
    const auto provider = MakeProvider<IUnknown>(IID_IUnknown);
    EXPECT_EQ(S_FALSE, DllCanUnloadNow());
  }
  EXPECT_EQ(S_OK, DllCanUnloadNow());
}

TEST_F(EntryPointsTest, AFactoryAloneDoesNotKeepTheModule) {
  const auto factory = Factory();
  EXPECT_EQ(S_OK, DllCanUnloadNow());
}

TEST_F(EntryPointsTest, TheModuleStaysUntilEveryLockIsUndone) {
  const auto factory = Factory();
  EXPECT_EQ(S_OK, factory->LockServer(TRUE));
  EXPECT_EQ(S_OK, factory->LockServer(7));
  EXPECT_EQ(S_FALSE, DllCanUnloadNow());
  EXPECT_EQ(S_OK, factory->LockServer(FALSE));
  EXPECT_EQ(S_FALSE, DllCanUnloadNow());
  EXPECT_EQ(S_OK, factory->LockServer(FALSE));
  EXPECT_EQ(S_OK, DllCanUnloadNow());
}

}  // namespace
}  // namespace tqcim::testing
