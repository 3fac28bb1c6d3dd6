// The life of the module, from before it is attached until after it is detached. In a program of
// its own: it can be told once in a process.
#include <stdexcept>

#include "core/class_registry.h"
#include "core/computer_name.h"
#include "tests/core/provider_fixture.h"

namespace tqcim::testing {
namespace {

/// Enters COM before anything of the fixture needs it.
struct ComEntry {
  ComEntry() { CoInitializeEx(nullptr, COINIT_MULTITHREADED); }
  ~ComEntry() { CoUninitialize(); }
};

class LifecycleTest : private ComEntry, public ProviderFixture {
 protected:
  LifecycleTest() {
    store.Add(1, 1);
    services.Define("VORN_System", definition);
    parser.Understand("VORN_System=@", OLESTR("VORN_System"), nullptr);
  }

  static HRESULT AskForFactory() {
    Com<IClassFactory> factory;
    return DllGetClassObject(ProviderClsid(), IID_IClassFactory, factory.ReceiveVoid());
  }

  HRESULT Enumerate() {
    const auto provider = MakeProvider<IWbemServices>(IID_IWbemServices);
    const Bstr name(OLESTR("VORN_System"));
    return provider->CreateInstanceEnumAsync(name.get(), 0, nullptr, &sink);
  }

  HRESULT GetByPath() {
    const auto provider = MakeProvider<IWbemServices>(IID_IWbemServices);
    return provider->GetObjectAsync(SysAllocString(OLESTR("VORN_System=@")), 0, nullptr, &sink);
  }

  FakeClass definition;
  FakeSink sink;
};

TEST_F(LifecycleTest, FromBeforeAttachToAfterDetach) {
  // A module that isn't attached, or found no computer name, serves no class.
  EXPECT_EQ(Hr(0x80004005), AskForFactory());
  SetComputerName(nullptr);
  EXPECT_FALSE(AttachModule());
  EXPECT_EQ(Hr(0x80004005), AskForFactory());

  SetComputerName(kComputerName);
  EXPECT_TRUE(AttachModule());
  EXPECT_EQ(S_OK, AskForFactory());
  EXPECT_STREQ("RACK42-NODE0007", ComputerName());

  // Without a connection no class definition can be fetched.
  EXPECT_EQ(Hr(0x80041001), Enumerate());
  EXPECT_EQ(Hr(0x80041001), GetByPath());
  EXPECT_TRUE(sink.StatusCalls().empty());

  Connect();
  EXPECT_EQ(S_OK, Enumerate());
  EXPECT_EQ(S_OK, GetByPath());
  EXPECT_EQ(2u, sink.Delivered().size());
  EXPECT_EQ(2u, sink.StatusCalls().size());

  // Detached, the names stay without handlers: there is nothing to enumerate or get.
  DetachModule();
  EXPECT_EQ(nullptr, Lookup("VORN_System"));
  EXPECT_THROW(Lookup("No_SuchClass"), std::out_of_range);
  EXPECT_EQ(S_OK, Enumerate());
  EXPECT_EQ(2u, sink.StatusCalls().size());
  EXPECT_EQ(S_OK, GetByPath());
  EXPECT_EQ(3u, sink.StatusCalls().size());
  EXPECT_EQ(2u, sink.Delivered().size());

  EXPECT_EQ(1, services.References());
  services.Release();
}

}  // namespace
}  // namespace tqcim::testing
