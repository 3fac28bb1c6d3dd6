// Many threads at once ask one provider, as the management service does. The fakes share nothing
// that orders the threads, so that ThreadSanitizer sees every race of the provider itself.
#include <array>
#include <thread>

#include "tests/core/provider_fixture.h"

namespace tqcim::testing {
namespace {

constexpr int kThreads = 8;
constexpr int kRounds = 50;

/// A namespace that gives one definition for every class.
class SharedNamespace final : public RefusingServices {
 public:
  explicit SharedNamespace(FakeClass& definition)
      : RefusingServices("a namespace"), definition_(definition) {}

  HRESULT STDMETHODCALLTYPE GetObject(const BSTR, LONG, IWbemContext*, IWbemClassObject** object,
                                      IWbemCallResult**) override {
    definition_.AddRef();
    *object = &definition_;
    return S_OK;
  }

 private:
  FakeClass& definition_;
};

/// A path parser of each thread.
thread_local FakePathParser* threadParser = nullptr;

class ConcurrencyTest : public BalancedTest {
 protected:
  ConcurrencyTest() {
    store.Add(1, 1);
    store.List(1, 17, {2});
    store.Add(2, 17);
    store.List(2, 32, {32});
    store.Add(32, 32).Ucs2(32, u"Main").Ucs2(40, u"Model").Ucs2(48, u"A00");
    store.List(2, 196, {100});
    store.Add(100, 196).Ucs2(28, u"CPU1");
    store.List(100, 210, {110});
    store.Add(110, 210).U32(40, 3).Ucs2(76, u"Model");
    store.List(2, 212, {40});
    store.Add(40, 212).Ucs2(32, u"Maker").Ucs2(36, u"1.0").Utf8(40, "03/15/2012");
    FakeInitSink initSink;
    const auto init = MakeProvider<IWbemProviderInit>(IID_IWbemProviderInit);
    init->Initialize(nullptr, 0, nullptr, nullptr, nullptr, nullptr, &initSink);
  }
  ~ConcurrencyTest() override { services.Release(); }

  /// Every round asks for each class once, and once for an instance.
  void Ask(IWbemServices* provider) {
    FakeSink sink;
    FakePathParser parser;
    threadParser = &parser;
    FakeKeyList keys;
    keys.Add(StringKey(OLESTR("DeviceID"), OLESTR("0")));
    parser.Understand("CIM_Processor.DeviceID=\"0\"", OLESTR("CIM_Processor"), &keys);
    for (int round = 0; round < kRounds; ++round) {
      for (const OLECHAR* name : {OLESTR("VORN_System"), OLESTR("VORN_Chassis"),
                                  OLESTR("CIM_Processor"), OLESTR("CIM_BIOSElement")}) {
        const Bstr className(name);
        EXPECT_EQ(0, provider->CreateInstanceEnumAsync(className.get(), 0, nullptr, &sink));
      }
      EXPECT_EQ(0, provider->GetObjectAsync(SysAllocString(OLESTR("CIM_Processor.DeviceID=\"0\"")),
                                            0, nullptr, &sink));
      const Bstr unknown(OLESTR("No_SuchClass"));
      EXPECT_EQ(Hr(0x80041001),
                provider->CreateInstanceEnumAsync(unknown.get(), 0, nullptr, &sink));
    }
    EXPECT_EQ(size_t{5 * kRounds}, sink.Delivered().size());
    EXPECT_EQ(size_t{5 * kRounds}, sink.StatusCalls().size());
    EXPECT_EQ("1", sink.Delivered().back()[2].value) << "CPUStatus, written back on a private copy";
  }

  FakeStore store;
  FakeClass definition;
  SharedNamespace services{definition};
  FakeLocator locator{services};
  FakeFactory locatorFactory{
      [this](REFIID iid, void** object) { return locator.QueryInterface(iid, object); }};
  FakeFactory parserFactory{[](REFIID iid, void** object) {
    return threadParser->Factory().CreateInstance(nullptr, iid, object);
  }};
  ClassRegistration locatorRegistration{CLSID_WbemAdministrativeLocator, locatorFactory};
  ClassRegistration parserRegistration{CLSID_WbemDefPath, parserFactory};
};

TEST_F(ConcurrencyTest, ManyThreadsShareOneProvider) {
  const auto provider = MakeProvider<IWbemServices>(IID_IWbemServices);
  std::array<std::thread, kThreads> threads;
  for (std::thread& thread : threads) thread = std::thread([&] { Ask(provider.get()); });
  for (std::thread& thread : threads) thread.join();
}

TEST_F(ConcurrencyTest, EveryThreadHasAProviderOfItsOwn) {
  std::array<std::thread, kThreads> threads;
  for (std::thread& thread : threads) {
    thread = std::thread([&] {
      const auto provider = MakeProvider<IWbemServices>(IID_IWbemServices);
      Ask(provider.get());
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(S_OK, DllCanUnloadNow());
}

}  // namespace
}  // namespace tqcim::testing
