#include "tests/core/provider_fixture.h"

namespace tqcim::testing {
namespace {

class ProviderInitializeTest : public ProviderFixture {
 protected:
  ProviderInitializeTest() {
    store.Add(1, 1);
    services.Define("VORN_System", definition);
  }
  ~ProviderInitializeTest() override {
    provider.Release();
    // Connections are never released by the module.
    for (LONG i = services.References(); i > 0; --i) services.Release();
  }

  HRESULT Initialize(IWbemServices* given) {
    return provider->Initialize(nullptr, 0, nullptr, nullptr, given, nullptr, &initSink);
  }

  /// Whether a class definition can be fetched.
  bool IsConnected() {
    Com<IWbemServices> requests;
    provider->QueryInterface(IID_IWbemServices, requests.ReceiveVoid());
    const Bstr name(OLESTR("VORN_System"));
    FakeSink sink;
    return requests->CreateInstanceEnumAsync(name.get(), 0, nullptr, &sink) == S_OK;
  }

  FakeClass definition;
  FakeInitSink initSink;
  FakeServices initialNamespace;
  Com<IWbemProviderInit> provider = MakeProvider<IWbemProviderInit>(IID_IWbemProviderInit);
};

TEST_F(ProviderInitializeTest, ReportsSuccessWithANamespace) {
  EXPECT_EQ(0, Initialize(&initialNamespace));
  EXPECT_EQ((std::vector<std::pair<LONG, LONG>>{{0, 0}}), initSink.Calls());
}

TEST_F(ProviderInitializeTest, ReportsAFailureWithoutANamespaceAndReturnsSuccess) {
  EXPECT_EQ(0, Initialize(nullptr));
  EXPECT_EQ((std::vector<std::pair<LONG, LONG>>{{Hr(0x80041001), 0}}), initSink.Calls());
}

TEST_F(ProviderInitializeTest, KeepsTheNamespaceUntilTheProviderGoes) {
  Initialize(&initialNamespace);
  EXPECT_EQ(1, initialNamespace.References());
  provider.Release();
  EXPECT_EQ(0, initialNamespace.References());
}

/// Notes how many providers are counted when it is released.
class CountingNamespace final : public RefusingServices {
 public:
  CountingNamespace() : RefusingServices("a namespace") {}
  ULONG STDMETHODCALLTYPE Release() override {
    countedAtRelease = objectCounter;
    return RefusingServices::Release();
  }

  LONG countedAtRelease = -1;
};

TEST_F(ProviderInitializeTest, TheNamespaceGoesWhileTheProviderIsStillCounted) {
  CountingNamespace kept;
  Initialize(&kept);
  provider.Release();
  EXPECT_EQ(1, kept.countedAtRelease);
}

TEST_F(ProviderInitializeTest, DoesNotReleaseAnEarlierNamespace) {
  FakeServices later;
  Initialize(&initialNamespace);
  Initialize(&later);
  EXPECT_EQ(1, later.References());
  provider.Release();
  EXPECT_EQ(0, later.References());
  EXPECT_EQ(1, initialNamespace.References());
  initialNamespace.Release();
}

TEST_F(ProviderInitializeTest, WithoutANamespaceAnEarlierOneStays) {
  Initialize(&initialNamespace);
  Initialize(nullptr);
  EXPECT_EQ(1, initialNamespace.References());
}

TEST_F(ProviderInitializeTest, NeverUsesTheNamespaceForARequest) {
  Initialize(&initialNamespace);
  EXPECT_TRUE(IsConnected());
  EXPECT_TRUE(initialNamespace.ObjectCalls().empty());
}

TEST_F(ProviderInitializeTest, ConnectsToTheNamespaceOfItsClasses) {
  Initialize(&initialNamespace);
  EXPECT_EQ((std::vector<std::string>{"root\\CIMV2\\vorn"}), locator.Paths());
  EXPECT_EQ(0, locator.References());
  EXPECT_EQ(1, services.References());
  EXPECT_TRUE(IsConnected());
}

TEST_F(ProviderInitializeTest, ConnectsWithoutANamespaceToo) {
  Initialize(nullptr);
  EXPECT_TRUE(IsConnected());
}

TEST_F(ProviderInitializeTest, AsksTheLocatorForItsIdentityOnly) {
  Initialize(&initialNamespace);
  EXPECT_TRUE(locator.WasAskedFor(IID_IUnknown));
  EXPECT_FALSE(locator.WasAskedFor(IID_IWbemLocator));
}

TEST_F(ProviderInitializeTest, IgnoresItsOtherArguments) {
  auto* const untouchable = reinterpret_cast<void*>(uintptr_t{0x10});
  auto* const text = static_cast<LPWSTR>(untouchable);
  EXPECT_EQ(0, provider->Initialize(text, -1, text, text, &initialNamespace,
                                    static_cast<IWbemContext*>(untouchable), &initSink));
  EXPECT_TRUE(IsConnected());
}

TEST_F(ProviderInitializeTest, ConnectsAnewEveryTimeWithoutReleasingTheEarlierConnection) {
  Initialize(&initialNamespace);
  Initialize(nullptr);
  EXPECT_EQ(2u, locator.Paths().size());
  EXPECT_EQ(2, services.References());
}

TEST_F(ProviderInitializeTest, WithoutALocatorTheEarlierConnectionStays) {
  Initialize(nullptr);
  locatorCreation = E_FAIL;
  EXPECT_EQ(0, Initialize(&initialNamespace));
  EXPECT_EQ((std::pair<LONG, LONG>{0, 0}), initSink.Calls().back());
  EXPECT_EQ(1u, locator.Paths().size());
  EXPECT_TRUE(IsConnected());
}

TEST_F(ProviderInitializeTest, ARefusedConnectionIsNotReported) {
  Initialize(nullptr);
  locator.SetConnectResult(Hr(0x8004100E));
  EXPECT_EQ(0, Initialize(&initialNamespace));
  EXPECT_EQ((std::pair<LONG, LONG>{0, 0}), initSink.Calls().back());
  EXPECT_EQ(0, locator.References());
  EXPECT_TRUE(IsConnected());
}

/// What was done, in order.
using Journal = std::vector<std::string>;

class JournalingNamespace final : public RefusingServices {
 public:
  explicit JournalingNamespace(Journal& journal)
      : RefusingServices("a namespace"), journal_(journal) {}
  ULONG STDMETHODCALLTYPE AddRef() override {
    journal_.push_back("namespace kept");
    return RefusingServices::AddRef();
  }

 private:
  Journal& journal_;
};

class JournalingSink final : public ComFake<IWbemProviderInitSink, IID_IWbemProviderInitSink> {
 public:
  explicit JournalingSink(Journal& journal) : ComFake("an init sink"), journal_(journal) {}
  HRESULT STDMETHODCALLTYPE SetStatus(LONG, LONG) override {
    journal_.push_back("status set");
    return S_OK;
  }

 private:
  Journal& journal_;
};

TEST_F(ProviderInitializeTest, ConnectsThenKeepsTheNamespaceThenReports) {
  Journal journal;
  JournalingNamespace kept(journal);
  JournalingSink reported(journal);
  onLocatorCreation = [&] { journal.push_back("locator created"); };
  provider->Initialize(nullptr, 0, nullptr, nullptr, &kept, nullptr, &reported);
  EXPECT_EQ((Journal{"locator created", "namespace kept", "status set"}), journal);
  provider.Release();
}

}  // namespace
}  // namespace tqcim::testing
