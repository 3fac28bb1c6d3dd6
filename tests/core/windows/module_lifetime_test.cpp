// The module loaded and unloaded, and when it says that it may be. In a program of its own: COM
// holds on to a module that it loaded.
#include <array>
#include <functional>
#include <thread>

#include "platform/com.h"
#include "tests/core/windows/loaded_module.h"
#include "tests/support/windows/open_handles.h"

namespace tqcim::testing {
namespace {

Com<IClassFactory> FactoryOf(const LoadedModule& module) {
  CLSID clsid{};
  CLSIDFromString(OLESTR("{5e3a9c17-4b2d-41f0-9a6e-2c7d81b0e4f3}"), &clsid);
  Com<IClassFactory> factory;
  EXPECT_EQ(S_OK, module.Export<HRESULT WINAPI(REFCLSID, REFIID, void**)>("DllGetClassObject")(
                      clsid, IID_IClassFactory, factory.ReceiveVoid()));
  return factory;
}

template <typename Interface>
Com<Interface> ProviderOf(IClassFactory& factory, REFIID iid) {
  Com<Interface> provider;
  EXPECT_EQ(S_OK, factory.CreateInstance(nullptr, iid, provider.ReceiveVoid()));
  return provider;
}

HRESULT CanUnload(const LoadedModule& module) {
  return module.Export<HRESULT WINAPI()>("DllCanUnloadNow")();
}

TEST(ModuleLifetime, MayGoOnlyWithoutProviders) {
  const LoadedModule module;
  EXPECT_EQ(S_OK, CanUnload(module));
  Com<IClassFactory> factory = FactoryOf(module);
  // A factory is no provider.
  EXPECT_EQ(S_OK, CanUnload(module));
  auto first = ProviderOf<IWbemProviderInit>(*factory, IID_IWbemProviderInit);
  EXPECT_EQ(S_FALSE, CanUnload(module));
  auto second = ProviderOf<IWbemServices>(*factory, IID_IWbemServices);
  first.Release();
  EXPECT_EQ(S_FALSE, CanUnload(module));
  Com<IUnknown> other;
  EXPECT_EQ(S_OK, second->QueryInterface(IID_IUnknown, other.ReceiveVoid()));
  second.Release();
  EXPECT_EQ(S_FALSE, CanUnload(module));
  other.Release();
  EXPECT_EQ(S_OK, CanUnload(module));
}

TEST(ModuleLifetime, MayGoAfterProvidersThatWereRefused) {
  const LoadedModule module;
  const Com<IClassFactory> factory = FactoryOf(module);
  void* object = nullptr;
  EXPECT_EQ(E_NOINTERFACE, factory->CreateInstance(nullptr, IID_IWbemLocator, &object));
  EXPECT_EQ(CLASS_E_NOAGGREGATION,
            factory->CreateInstance(factory.get(), IID_IWbemServices, &object));
  EXPECT_EQ(S_OK, CanUnload(module));
}

TEST(ModuleLifetime, MayGoOnlyWithoutLocks) {
  const LoadedModule module;
  const Com<IClassFactory> factory = FactoryOf(module);
  EXPECT_EQ(S_OK, factory->LockServer(TRUE));
  EXPECT_EQ(S_OK, factory->LockServer(TRUE));
  EXPECT_EQ(S_FALSE, CanUnload(module));
  auto provider = ProviderOf<IWbemServices>(*factory, IID_IWbemServices);
  provider.Release();
  factory->LockServer(FALSE);
  EXPECT_EQ(S_FALSE, CanUnload(module));
  factory->LockServer(FALSE);
  EXPECT_EQ(S_OK, CanUnload(module));
}

/// What a process holds.
struct Holdings {
  size_t handles = 0;
  size_t blocks = 0;
  size_t bytes = 0;
};

Holdings Measure() {
  Holdings holdings;
  std::array<HANDLE, 64> heaps{};
  const DWORD count = GetProcessHeaps(heaps.size(), heaps.data());
  for (DWORD i = 0; i < count; ++i) {
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heaps[i]);
    while (HeapWalk(heaps[i], &entry)) {
      if (!(entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)) continue;
      ++holdings.blocks;
      holdings.bytes += entry.cbData;
    }
    HeapUnlock(heaps[i]);
  }
  holdings.handles = CountOpenHandles();
  return holdings;
}

/// An exception, inside the module.
void AskForNoSuchClass(IWbemServices& provider) {
  // The provider frees the text of the path.
  EXPECT_EQ(WBEM_E_FAILED,
            provider.GetObjectAsync(SysAllocString(OLESTR("No_SuchClass")), 0, nullptr, nullptr));
}

/// Loads the module, uses a provider on this thread and on another, and unloads the module.
void LiveOnce() {
  {
    const LoadedModule module;
    {
      const Com<IClassFactory> factory = FactoryOf(module);
      const auto provider = ProviderOf<IWbemServices>(*factory, IID_IWbemServices);
      AskForNoSuchClass(*provider);
      std::thread(AskForNoSuchClass, std::ref(*provider)).join();
      ASSERT_EQ(S_FALSE, CanUnload(module));
    }
    ASSERT_EQ(S_OK, CanUnload(module));
  }
  ASSERT_EQ(nullptr, GetModuleHandleA("tqcim64.dll"));
}

TEST(ModuleLifetime, AThousandLoadsLeaveNothingBehindButWhatIsKnown) {
  constexpr size_t kLoads = 1000;
  ASSERT_EQ(S_OK, CoInitializeEx(nullptr, COINIT_MULTITHREADED));
  for (int i = 0; i < 50; ++i) LiveOnce();
  const Holdings before = Measure();
  for (size_t i = 0; i < kLoads; ++i) LiveOnce();
  const Holdings after = Measure();
  // The system makes one of its own now and then; a leak comes with every load.
  EXPECT_LT(after.handles, before.handles + 10);
  // One handler stays each time, of a class that is registered twice: an object without any fields;
  // and the text of a CLSID.
  constexpr size_t kStaying = 8 + 39 * 2;
  EXPECT_GE(after.blocks, before.blocks + 2 * kLoads - 20);
  EXPECT_LE(after.blocks, before.blocks + 2 * kLoads + 20);
  EXPECT_LE(after.bytes, before.bytes + kLoads * kStaying + 16384);
  CoUninitialize();
}

}  // namespace
}  // namespace tqcim::testing
