/// Requests made through the provider's interface, as the management service makes them.
#pragma once

#include "tests/classes/faults/requests.h"
#include "tests/core/provider_fixture.h"

namespace tqcim::testing {

/// A provider over the store with three chassis.
class ProviderFaultsTest : public ConnectedProviderFixture {
 protected:
  ProviderFaultsTest();

  Answer AskProvider(const Request& request, IWbemObjectSink& responseSink,
                     const FaultPlan& plan = {FaultKind::kComCalls});
  /// With a sink that takes everything.
  Answer AskProvider(const Request& request, const FaultPlan& plan);
};

}  // namespace tqcim::testing
