#include "tests/classes/faults/provider_requests.h"

#include "tests/classes/faults/three_chassis.h"

namespace tqcim::testing {

ProviderFaultsTest::ProviderFaultsTest() {
  FillThreeChassis(store);
}

Answer ProviderFaultsTest::AskProvider(const Request& request, IWbemObjectSink& responseSink,
                                       const FaultPlan& plan) {
  FakeClass instances;
  instances.RecordNothing();
  FakeKeyList keys;
  AddKeys(request, keys);
  const std::string_view name = request.row->name;
  const std::basic_string<OLECHAR> className(name.begin(), name.end());
  services.Define(request.row->name, instances);
  parser.Understand("path", className.c_str(), &keys);
  const Bstr enumeratedName(className.c_str());
  RequestBooks books(store);
  // The provider takes it over.
  const BSTR path = request.enumerates ? nullptr : SysAllocString(OLESTR("path"));
  Answer answer{};
  {
    const Fault fault(plan);
    answer.result = request.enumerates ? provider->CreateInstanceEnumAsync(enumeratedName.get(), 0,
                                                                           nullptr, &responseSink)
                                       : provider->GetObjectAsync(path, 0, nullptr, &responseSink);
    answer.calls = fault.Calls();
    answer.failed = fault.FailedCall();
  }
  books.Close(request);
  return answer;
}

Answer ProviderFaultsTest::AskProvider(const Request& request, const FaultPlan& plan) {
  FakeSink responseSink;
  Answer answer = AskProvider(request, responseSink, plan);
  answer.delivered = responseSink.Delivered().size();
  answer.statusCalls = responseSink.StatusCalls();
  return answer;
}

}  // namespace tqcim::testing
