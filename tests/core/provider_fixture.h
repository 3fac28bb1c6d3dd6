/// A provider in its surroundings: store, management service and sink.
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "core/module.h"
#include "platform/com.h"
#include "tests/support/fake_path_parser.h"
#include "tests/support/fake_services.h"
#include "tests/support/fault.h"
#include "tests/support/handler_test.h"

namespace tqcim::testing {

/// The sink of IWbemProviderInit::Initialize.
class FakeInitSink final : public ComFake<IWbemProviderInitSink, IID_IWbemProviderInitSink> {
 public:
  FakeInitSink() : ComFake("an init sink") {}

  HRESULT STDMETHODCALLTYPE SetStatus(LONG status, LONG flags) override {
    const OutsideCall call(Call::kStatus);
    calls_.push_back({status, flags});
    return call.Result();
  }

  /// Status and flags of every call.
  const std::vector<std::pair<LONG, LONG>>& Calls() const { return calls_; }

 private:
  std::vector<std::pair<LONG, LONG>> calls_;
};

/// Makes the object that the module's class factory makes.
template <typename Interface>
Com<Interface> MakeProvider(REFIID iid) {
  Com<IClassFactory> factory;
  EXPECT_EQ(S_OK, DllGetClassObject(ProviderClsid(), IID_IClassFactory, factory.ReceiveVoid()));
  Com<Interface> provider;
  EXPECT_EQ(S_OK, factory->CreateInstance(nullptr, iid, provider.ReceiveVoid()));
  return provider;
}

/// The class identifier that clients know, in its text form.
inline constexpr const OLECHAR* kProviderClsidText =
    OLESTR("{5E3A9C17-4B2D-41F0-9A6E-2C7D81B0E4F3}");

/// Expects of every test that it leaves no provider and no lock behind.
class ModuleTest : public BalancedTest {
 protected:
  ~ModuleTest() override {
    EXPECT_EQ(0, objectCounter);
    EXPECT_EQ(0, lockCounter);
  }
};

/// Everything registered that a provider needs.
class ProviderFixture : public ModuleTest {
 protected:
  /// Initialize with a namespace connection to `services`.
  void Connect() {
    FakeInitSink initSink;
    const auto init = MakeProvider<IWbemProviderInit>(IID_IWbemProviderInit);
    EXPECT_EQ(S_OK, init->Initialize(nullptr, 0, nullptr, nullptr, nullptr, nullptr, &initSink));
  }

  FakeStore store;
  FakeServices services;
  FakeLocator locator{services};
  /// What making a locator returns, and what is done when one is made.
  HRESULT locatorCreation = S_OK;
  std::function<void()> onLocatorCreation = [] {};
  FakeFactory locatorFactory{[this](REFIID iid, void** object) {
    onLocatorCreation();
    return SUCCEEDED(locatorCreation) ? locator.QueryInterface(iid, object) : locatorCreation;
  }};
  FakePathParser parser;
  ClassRegistration locatorRegistration{CLSID_WbemAdministrativeLocator, locatorFactory};
  ClassRegistration parserRegistration{CLSID_WbemDefPath, parser.Factory()};
};

/// A provider that is connected to `services`, where VORN_System is defined.
class ConnectedProviderFixture : public ProviderFixture {
 protected:
  ConnectedProviderFixture() {
    store.Add(1, 1);
    services.Define("VORN_System", definition);
    Connect();
  }
  ~ConnectedProviderFixture() override {
    provider.Release();
    // The connection is never released by the module.
    EXPECT_EQ(1, services.References());
    services.Release();
  }

  HRESULT Enumerate(const OLECHAR* className) {
    const Bstr name(className);
    return provider->CreateInstanceEnumAsync(name.get(), 0, nullptr, &sink);
  }

  /// The provider takes over the path text.
  HRESULT GetByPath(const OLECHAR* path) {
    return provider->GetObjectAsync(SysAllocString(path), 0, nullptr, &sink);
  }

  FakeClass definition;
  FakeSink sink;
  Com<IWbemServices> provider = MakeProvider<IWbemServices>(IID_IWbemServices);
};

/// The one SetStatus call of a request that succeeded.
inline std::vector<FakeSink::StatusCall> CompletedAfter(size_t delivered) {
  return {{WBEM_STATUS_COMPLETE, S_OK, false, false, delivered}};
}

}  // namespace tqcim::testing
