// Registration in the machine's registry, and its removal.
#include <functional>
#include <thread>

#include "platform/com.h"
#include "tests/core/windows/loaded_module.h"
#include "tests/core/windows/registered_server.h"
#include "tests/support/fake_services.h"
#include "tests/support/handler_test.h"
#include "tests/support/windows/open_handles.h"

namespace tqcim::testing {
namespace {

/// A locator stands where the management service's stands, so that no test touches a real
/// namespace.
class RegistrationTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (AnotherServerIsRegistered(module.FileName())) GTEST_SKIP() << kAnotherServer;
  }
  ~RegistrationTest() override {
    if (!IsSkipped()) module.UnregisterServer();
    // The connections to root\cimv2 are left to the end of the process.
    for (LONG i = services.References(); i > 0; --i) services.Release();
  }

  FakeServices services;
  FakeLocator locator{services};
  HRESULT locatorCreation = S_OK;
  std::function<void()> atLocatorCreation = [] {};
  FakeFactory factory{[this](REFIID iid, void** object) {
    atLocatorCreation();
    return SUCCEEDED(locatorCreation) ? locator.QueryInterface(iid, object) : locatorCreation;
  }};
  ClassRegistration locatorRegistration{CLSID_WbemLocator, factory};
  LoadedModule module;
};

TEST_F(RegistrationTest, WritesTheServerOfTheClass) {
  EXPECT_EQ(S_OK, module.RegisterServer());
  EXPECT_EQ(Text(""), ReadValue(kClsidKey, nullptr));
  EXPECT_EQ(Text(module.FileName()), ReadValue(kServerKey, nullptr));
  EXPECT_EQ(Text("Both"), ReadValue(kServerKey, "ThreadingModel"));
}

TEST_F(RegistrationTest, MayBeRepeated) {
  EXPECT_EQ(S_OK, module.RegisterServer());
  EXPECT_EQ(S_OK, module.RegisterServer());
  EXPECT_EQ(Text(module.FileName()), ReadValue(kServerKey, nullptr));
}

TEST_F(RegistrationTest, LetsComMakeTheProvider) {
  module.RegisterServer();
  CLSID clsid{};
  CLSIDFromString(OLESTR("{5e3a9c17-4b2d-41f0-9a6e-2c7d81b0e4f3}"), &clsid);
  Com<IWbemProviderInit> provider;
  EXPECT_EQ(S_OK, CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IWbemProviderInit,
                                   provider.ReceiveVoid()));
}

TEST_F(RegistrationTest, DoesNotTouchTheManagementService) {
  module.RegisterServer();
  EXPECT_TRUE(locator.Paths().empty());
}

TEST_F(RegistrationTest, IsRemovedWhole) {
  module.RegisterServer();
  EXPECT_TRUE(Exists(kServerKey));
  EXPECT_EQ(S_OK, module.UnregisterServer());
  EXPECT_FALSE(Exists(kServerKey));
  EXPECT_FALSE(Exists(kClsidKey));
  EXPECT_TRUE(Exists("SOFTWARE\\CLASSES\\CLSID"));
}

TEST_F(RegistrationTest, RemovingWhatIsNotThereIsSuccess) {
  EXPECT_EQ(S_OK, module.UnregisterServer());
  EXPECT_EQ(S_OK, module.UnregisterServer());
}

TEST_F(RegistrationTest, RemovalDeletesTheNamespace) {
  EXPECT_EQ(S_OK, module.UnregisterServer());
  EXPECT_EQ((std::vector<std::string>{"\\\\.\\root\\cimv2"}), locator.Paths());
  EXPECT_EQ((std::vector<FakeServices::Call>{{"__NameSpace.Name=\"Vorn\"", 0, false, false}}),
            services.DeleteCalls());
  EXPECT_TRUE(locator.WasAskedFor(IID_IWbemLocator));
}

TEST_F(RegistrationTest, RemovalReleasesTheLocatorAndNotTheConnection) {
  module.UnregisterServer();
  EXPECT_EQ(0, locator.References());
  EXPECT_EQ(1, services.References());
}

TEST_F(RegistrationTest, ANamespaceThatCannotBeDeletedIsNotReported) {
  services.SetDeleteResult(Hr(0x80041002));
  EXPECT_EQ(S_OK, module.UnregisterServer());
}

TEST_F(RegistrationTest, WithoutAConnectionNothingIsDeleted) {
  for (const HRESULT result : {Hr(0x8004100E), S_FALSE}) {
    locator.SetConnectResult(result);
    EXPECT_EQ(S_OK, module.UnregisterServer());
  }
  EXPECT_EQ(2u, locator.Paths().size());
  EXPECT_TRUE(services.DeleteCalls().empty());
}

TEST_F(RegistrationTest, RemovalCleansTheRegistryBeforeItAsksForTheNamespace) {
  module.RegisterServer();
  bool registered = true;
  atLocatorCreation = [&] { registered = Exists(kClsidKey); };
  module.UnregisterServer();
  EXPECT_FALSE(registered);
}

TEST_F(RegistrationTest, LeavesNoKeyOpen) {
  const auto repeat = [this] {
    for (int i = 0; i < 20; ++i) {
      module.RegisterServer();
      module.UnregisterServer();
    }
  };
  repeat();
  const size_t before = CountOpenHandles();
  repeat();
  EXPECT_EQ(before, CountOpenHandles());
}

TEST_F(RegistrationTest, WithoutALocatorTheRegistryIsCleanedAllTheSame) {
  module.RegisterServer();
  locatorCreation = E_FAIL;
  EXPECT_EQ(S_OK, module.UnregisterServer());
  EXPECT_FALSE(Exists(kClsidKey));
  EXPECT_TRUE(services.DeleteCalls().empty());
}

TEST_F(RegistrationTest, DoesNotEnterCom) {
  std::thread([&] {
    EXPECT_EQ(S_OK, module.UnregisterServer());
    // The first one on this thread.
    EXPECT_EQ(S_OK, CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    CoUninitialize();
  }).join();
  EXPECT_EQ(1u, services.DeleteCalls().size());
}

}  // namespace
}  // namespace tqcim::testing
