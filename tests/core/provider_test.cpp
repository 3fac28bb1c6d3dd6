#include "tests/core/provider_fixture.h"

namespace tqcim::testing {
namespace {

class ProviderTest : public ModuleTest {
 protected:
  /// The interface as a bare pointer; its reference is given back at once.
  void* Ask(REFIID iid) {
    void* object = nullptr;
    if (SUCCEEDED(provider->QueryInterface(iid, &object)))
      static_cast<IUnknown*>(object)->Release();
    return object;
  }

  Com<IWbemServices> provider = MakeProvider<IWbemServices>(IID_IWbemServices);
};

TEST_F(ProviderTest, TheIdentityIsTheSecondInterfaceTable) {
  EXPECT_EQ(provider.get(), Ask(IID_IWbemServices));
  EXPECT_EQ(Ask(IID_IWbemProviderInit), Ask(IID_IUnknown));
  EXPECT_NE(Ask(IID_IWbemServices), Ask(IID_IUnknown));
  EXPECT_EQ(static_cast<char*>(Ask(IID_IWbemServices)) + sizeof(void*), Ask(IID_IUnknown));
}

TEST_F(ProviderTest, BothTablesGiveTheSameInterfaces) {
  const auto init = MakeProvider<IWbemProviderInit>(IID_IWbemProviderInit);
  Com<IUnknown> identity;
  EXPECT_EQ(S_OK, init->QueryInterface(IID_IUnknown, identity.ReceiveVoid()));
  EXPECT_EQ(static_cast<IUnknown*>(init.get()), identity.get());
  Com<IWbemServices> services;
  EXPECT_EQ(S_OK, identity->QueryInterface(IID_IWbemServices, services.ReceiveVoid()));
  EXPECT_EQ(reinterpret_cast<char*>(init.get()) - sizeof(void*),
            reinterpret_cast<char*>(services.get()));
}

TEST_F(ProviderTest, AnyOtherInterfaceIsRefused) {
  int something = 0;
  void* object = &something;
  EXPECT_EQ(Hr(0x80004002), provider->QueryInterface(IID_IClassFactory, &object));
  EXPECT_EQ(nullptr, object);
}

TEST_F(ProviderTest, BothTablesCountTheSameReferences) {
  auto* const init = static_cast<IWbemProviderInit*>(Ask(IID_IWbemProviderInit));
  EXPECT_EQ(2u, provider->AddRef());
  EXPECT_EQ(3u, init->AddRef());
  EXPECT_EQ(2u, provider->Release());
  EXPECT_EQ(1u, init->Release());
}

TEST_F(ProviderTest, GoesWithItsLastReference) {
  EXPECT_EQ(1, objectCounter);
  EXPECT_EQ(0u, provider.Release());
  EXPECT_EQ(0, objectCounter);
}

TEST_F(ProviderTest, EachProviderIsCounted) {
  const auto second = MakeProvider<IUnknown>(IID_IUnknown);
  EXPECT_EQ(2, objectCounter);
}

/// An operation as the function in its slot of the table, with pointers that no one may follow for
/// arguments.
HRESULT CallSlot(IWbemServices* provider, size_t slot) {
  using Operation =
      HRESULT(STDMETHODCALLTYPE*)(void*, void*, void*, void*, void*, void*, void*, void*);
  auto* const untouchable = reinterpret_cast<void*>(uintptr_t{0x10});
  auto* const operation = (*reinterpret_cast<Operation**>(provider))[slot];
  return operation(provider, untouchable, untouchable, untouchable, untouchable, untouchable,
                   untouchable, untouchable);
}

TEST_F(ProviderTest, EveryOtherOperationIsNotSupported) {
  constexpr size_t kGetObjectAsync = 7;
  constexpr size_t kCreateInstanceEnumAsync = 19;
  constexpr size_t kLast = 25;
  size_t refusals = 0;
  for (size_t slot = 3; slot <= kLast; ++slot) {
    if (slot == kGetObjectAsync || slot == kCreateInstanceEnumAsync) continue;
    EXPECT_EQ(Hr(0x8004100C), CallSlot(provider.get(), slot)) << "slot " << slot;
    ++refusals;
  }
  EXPECT_EQ(21u, refusals);
}

TEST_F(ProviderTest, RefusesTheSinkUntouched) {
  FakeSink sink;
  const Bstr text(OLESTR("VORN_System"));
  EXPECT_EQ(Hr(0x8004100C), provider->CancelAsyncCall(&sink));
  EXPECT_EQ(Hr(0x8004100C), provider->DeleteClassAsync(text.get(), 0, nullptr, &sink));
  EXPECT_EQ(Hr(0x8004100C), provider->CreateClassEnumAsync(text.get(), 0, nullptr, &sink));
  EXPECT_EQ(Hr(0x8004100C), provider->DeleteInstanceAsync(text.get(), 0, nullptr, &sink));
  EXPECT_EQ(Hr(0x8004100C), provider->ExecQueryAsync(text.get(), text.get(), 0, nullptr, &sink));
  EXPECT_EQ(Hr(0x8004100C),
            provider->ExecMethodAsync(text.get(), text.get(), 0, nullptr, nullptr, &sink));
  EXPECT_TRUE(sink.Delivered().empty());
  EXPECT_TRUE(sink.StatusCalls().empty());
}

TEST_F(ProviderTest, ARefusedGetObjectLeavesTheResultAsItWas) {
  FakeClass before;
  IWbemClassObject* object = &before;
  const Bstr text(OLESTR("VORN_System"));
  EXPECT_EQ(Hr(0x8004100C), provider->GetObject(text.get(), 0, nullptr, &object, nullptr));
  EXPECT_EQ(&before, object);
}

}  // namespace
}  // namespace tqcim::testing
