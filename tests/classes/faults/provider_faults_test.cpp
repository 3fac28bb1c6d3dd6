// What the provider does itself, around the classes: it is made, it has paths parsed, fetches class
// definitions and tells the sink when a request is complete. Each of these calls fails once.
#include "tests/classes/faults/provider_requests.h"
#include "tests/support/failing_new.h"

namespace tqcim::testing {
namespace {

/// The position of GetKeyList among the calls of IWbemPath in a get-one.
constexpr uint32_t kKeyListCall = 3;

using ProviderCallsTest = ProviderFaultsTest;

std::vector<FakeSink::StatusCall> Completed(const Answer& answer) {
  return CompletedAfter(answer.delivered);
}

/// What the class makes of its calls is not told by a get-one, and by an enumeration where it is no
/// success.
void ExpectOfTheClass(const Request& request, const Answer& answer) {
  if (!request.enumerates) {
    EXPECT_EQ(S_OK, answer.result);
  }
  EXPECT_EQ(answer.result == S_OK ? Completed(answer) : std::vector<FakeSink::StatusCall>(),
            answer.statusCalls);
}

void CheckProviderCall(const Request& request, const Answer& flawless, const Answer& answer) {
  EXPECT_EQ(S_OK, flawless.result);
  const std::vector<FakeSink::StatusCall> nothing;
  switch (answer.failed->call) {
    case Call::kActivation:
      EXPECT_EQ(S_OK, answer.result);
      EXPECT_EQ(nothing, answer.statusCalls);
      break;
    case Call::kPath:
      if (answer.failed->index == kKeyListCall) return ExpectOfTheClass(request, answer);
      EXPECT_EQ(Hr(0x80041001), answer.result);
      EXPECT_EQ(nothing, answer.statusCalls);
      break;
    case Call::kClassDefinition:
      EXPECT_EQ(Fault::kResult, answer.result);
      EXPECT_EQ(nothing, answer.statusCalls);
      break;
    case Call::kStatus:
      EXPECT_EQ(S_OK, answer.result);
      EXPECT_EQ(flawless.statusCalls, answer.statusCalls);
      break;
    default:
      ExpectOfTheClass(request, answer);
      break;
  }
}

TEST_F(ProviderCallsTest, EachMayFail) {
  uint32_t faults = 0;
  for (const char* className : {"VORN_System", "VORN_Chassis", "CIM_Processor"}) {
    for (const Request& request : RequestsFor(className)) {
      faults += FailEachCall(
          request,
          [&](uint32_t position) {
            return AskProvider(request, {FaultKind::kComCalls, position});
          },
          [&](const Answer& flawless, const Answer& answer) {
            CheckProviderCall(request, flawless, answer);
          });
    }
  }
  TellSurvived("failed COM calls of whole requests", faults, 200);
}

/// What making and initialising a provider came to.
struct Making {
  HRESULT result;
  std::optional<Fault::Failed> failed;
};

class MakingAProviderTest : public ProviderFaultsTest {
 protected:
  /// As the management service does it.
  HRESULT MakeAndInitialize(FakeInitSink& initSink) {
    Com<IClassFactory> factory;
    HRESULT status = DllGetClassObject(ProviderClsid(), IID_IClassFactory, factory.ReceiveVoid());
    if (FAILED(status)) return status;
    Com<IWbemProviderInit> init;
    status = factory->CreateInstance(nullptr, IID_IWbemProviderInit, init.ReceiveVoid());
    if (FAILED(status)) return status;
    return init->Initialize(nullptr, 0, nullptr, nullptr, &services, nullptr, &initSink);
  }

  Making Make(FaultKind kind, uint32_t position) {
    const Ledger before = CurrentLedger();
    FakeInitSink initSink;
    Making making{};
    {
      const Fault fault({kind, position});
      making.result = MakeAndInitialize(initSink);
      making.failed = fault.FailedCall();
    }
    // The fixture's own provider.
    EXPECT_EQ(1, objectCounter);
    EXPECT_EQ(before, CurrentLedger());
    EXPECT_EQ(0u, LiveNews());
    ForgetNews();
    // A connection of the module is replaced without being released.
    while (services.References() > 1) services.Release();
    return making;
  }

  template <typename Check>
  uint32_t FailEach(FaultKind kind, Check check) {
    uint32_t position = 0;
    for (Making making = Make(kind, position); making.failed; making = Make(kind, ++position)) {
      check(making);
      EXPECT_FALSE(HasFailure()) << *making.failed;
    }
    return position;
  }
};

TEST_F(MakingAProviderTest, SucceedsWithoutTheManagementServicesHelp) {
  const uint32_t faults =
      FailEach(FaultKind::kComCalls, [](const Making& making) { EXPECT_EQ(S_OK, making.result); });
  // The locator, its connection, and the sink.
  EXPECT_EQ(3u, faults);
}

TEST_F(MakingAProviderTest, WithoutMemoryIsRefused) {
  const uint32_t faults = FailEach(FaultKind::kAllocations, [](const Making& making) {
    const bool isText = making.failed->call == Call::kAutomation;
    EXPECT_EQ(isText ? S_OK : Hr(0x8007000E), making.result);
  });
  // The factory, the provider, and the namespace's path.
  EXPECT_EQ(3u, faults);
}

}  // namespace
}  // namespace tqcim::testing
