// Sinks that are no easy guests: they refuse everything, keep what they get, take their time, and
// call back into the provider.
#include <chrono>
#include <functional>
#include <future>
#include <thread>

#include "tests/classes/faults/provider_requests.h"

namespace tqcim::testing {
namespace {

constexpr HRESULT kRefused = Hr(0x80041032);

class HandlerSinksTest : public HandlerFaultsTest {
 protected:
  /// Makes every request with a sink that is prepared first.
  template <typename Prepare, typename Check>
  void AskAll(Prepare prepare, Check check) {
    for (const Request& request : AllRequests()) {
      SCOPED_TRACE(request.Name());
      FakeSink sink;
      prepare(sink);
      check(request, AskHandler(store, request, sink));
    }
  }
};

TEST_F(HandlerSinksTest, ASinkMayRefuseEveryInstance) {
  AskAll([](FakeSink& sink) { sink.SetIndicateResult(kRefused); },
         [](const Request& request, const Answer& answer) {
           const Outcome& expected = request.Expected();
           const bool stops = expected.delivery == Delivery::kStops;
           EXPECT_EQ(stops ? 1u : expected.instances, answer.delivered);
           if (expected.instances == 0) return;
           EXPECT_EQ(stops || expected.delivery == Delivery::kLast ? kRefused : S_OK,
                     answer.result);
         });
}

TEST_F(HandlerSinksTest, ASinkMayKeepEveryInstance) {
  AskAll([](FakeSink& sink) { sink.KeepInstances(); },
         [](const Request& request, const Answer& answer) {
           const Outcome& expected = request.Expected();
           EXPECT_EQ(expected.instances, answer.delivered);
           if (expected.instances == 0) return;
           EXPECT_EQ(expected.delivery == Delivery::kRelease ? 1 : S_OK, answer.result);
         });
}

class ActingSinksTest : public ProviderFaultsTest {
 protected:
  /// Every request, to a sink that acts at each instance. It gets what a quick sink gets.
  void AskAllWith(const std::function<void()>& act) {
    for (const Request& request : AllRequests()) {
      SCOPED_TRACE(request.Name());
      FakeSink acting;
      acting.AtIndicate(act);
      const Answer answer = AskProvider(request, acting);
      EXPECT_EQ(request.Expected().instances, acting.Delivered().size());
      EXPECT_EQ(S_OK, answer.result);
      EXPECT_EQ(1u, acting.StatusCalls().size());
    }
  }

  /// Enumerates a class with 11 instances.
  void EnumerateAnother() {
    services.Define("CIM_DiscreteSensor", anotherDefinition);
    const Bstr name(OLESTR("CIM_DiscreteSensor"));
    FakeSink another;
    EXPECT_EQ(S_OK, provider->CreateInstanceEnumAsync(name.get(), 0, nullptr, &another));
    EXPECT_EQ(11u, another.Delivered().size());
    EXPECT_EQ(CompletedAfter(11), another.StatusCalls());
  }

  FakeClass anotherDefinition;
};

TEST_F(ActingSinksTest, ASinkMaySleep) {
  AskAllWith([] { std::this_thread::sleep_for(std::chrono::milliseconds(2)); });
}

TEST_F(ActingSinksTest, ASinkMayCallBackIntoTheProvider) {
  AskAllWith([this] { EnumerateAnother(); });
}

/// The provider holds nothing while it waits for a sink.
TEST_F(ActingSinksTest, ASlowSinkHoldsUpNoOtherThread) {
  AskAllWith([this] {
    auto answered = std::async(std::launch::async, [this] {
      CoInitializeEx(nullptr, COINIT_MULTITHREADED);
      EnumerateAnother();
      CoUninitialize();
    });
    ASSERT_EQ(std::future_status::ready, answered.wait_for(std::chrono::seconds(30)));
  });
}

}  // namespace
}  // namespace tqcim::testing
