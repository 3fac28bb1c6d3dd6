// Where the module looks for the classes of the management service. On Windows a class that is
// registered for another process would be reached through a proxy, so this is seen here only.
#include <runtime_ledger.h>

#include "core/module.h"
#include "tests/core/provider_fixture.h"

namespace tqcim::testing {
namespace {

class ActivationTest : public ModuleTest {
 protected:
  ~ActivationTest() override {
    for (LONG i = services.References(); i > 0; --i) services.Release();
  }

  void Initialize() {
    FakeInitSink initSink;
    const auto provider = MakeProvider<IWbemProviderInit>(IID_IWbemProviderInit);
    provider->Initialize(nullptr, 0, nullptr, nullptr, nullptr, nullptr, &initSink);
  }

  FakeServices services;
  FakeLocator locator{services};
  FakeFactory locatorFactory{
      [this](REFIID iid, void** object) { return locator.QueryInterface(iid, object); }};
};

TEST_F(ActivationTest, EachLeavesTheTextOfItsClsid) {
  const int64_t before = CurrentRuntimeLedger().taskBlocks;
  void* factory = nullptr;
  EXPECT_EQ(Hr(0x80004005), DllGetClassObject(CLSID_WbemLocator, IID_IClassFactory, &factory));
  EXPECT_EQ(before + 1, CurrentRuntimeLedger().taskBlocks);
}

TEST_F(ActivationTest, TheLocatorMayLiveInThisProcessOrInAnother) {
  for (const DWORD context : {CLSCTX_INPROC_SERVER, CLSCTX_LOCAL_SERVER}) {
    const ClassRegistration registration(CLSID_WbemAdministrativeLocator, locatorFactory, context);
    Initialize();
  }
  EXPECT_EQ(2u, locator.Paths().size());
}

TEST_F(ActivationTest, ThePathParserLivesInThisProcess) {
  FakePathParser parser;
  const ClassRegistration registration(CLSID_WbemDefPath, parser.Factory(), CLSCTX_LOCAL_SERVER);
  const auto provider = MakeProvider<IWbemServices>(IID_IWbemServices);
  FakeSink sink;
  EXPECT_EQ(0,
            provider->GetObjectAsync(SysAllocString(OLESTR("VORN_System=@")), 0, nullptr, &sink));
  EXPECT_TRUE(parser.Calls().empty());
  EXPECT_TRUE(sink.StatusCalls().empty());
}

}  // namespace
}  // namespace tqcim::testing
