#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <set>
#include <vector>

#include "core/module.h"
#include "platform/com.h"
#include "tests/core/windows/loaded_module.h"
#include "tests/support/fake_class.h"
#include "tests/support/fake_services.h"
#include "tests/support/fake_sink.h"

namespace tqcim::testing {
namespace {

std::string LowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

TEST(ModuleImage, ExportsExactlyTheFourFunctions) {
  const LoadedModule module;
  const auto* const exports = module.Directory<IMAGE_EXPORT_DIRECTORY>(0);
  ASSERT_NE(nullptr, exports);
  EXPECT_STREQ("tqcim64.dll", module.At<char>(exports->Name));
  EXPECT_EQ(4u, exports->NumberOfFunctions);
  std::vector<std::string> names;
  for (DWORD i = 0; i < exports->NumberOfNames; ++i) {
    names.push_back(module.At<char>(module.At<DWORD>(exports->AddressOfNames)[i]));
  }
  EXPECT_EQ((std::vector<std::string>{"DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer",
                                      "DllUnregisterServer"}),
            names);
}

std::set<std::string> ImportedModules(const LoadedModule& module) {
  std::set<std::string> names;
  const auto* entry = module.Directory<IMAGE_IMPORT_DESCRIPTOR>(1);
  for (; entry && entry->Name != 0; ++entry) {
    names.insert(LowerCase(module.At<char>(entry->Name)));
  }
  return names;
}

TEST(ModuleImage, ImportsNothingButTheSystem) {
  const std::set<std::string> system = {"advapi32.dll", "kernel32.dll", "msvcrt.dll",
                                        "ole32.dll",    "oleaut32.dll", "shell32.dll"};
  const std::set<std::string> imported = ImportedModules(LoadedModule());
  EXPECT_EQ(1u, imported.count("kernel32.dll"));
  for (const std::string& name : imported) EXPECT_EQ(1u, system.count(name)) << name;
}

TEST(ModuleImage, LoadsTheLibrariesAtTheirFirstCall) {
  // The libraries lie beside the module: their folder need not be looked up.
  _putenv_s("SKLIBPATH_ADDED_TO_PATH", "TRUE");
  const LoadedModule module;
  for (const char* library : {"tqsgen64.dll", "tqsupt64.dll", "tqsxep64.dll"}) {
    EXPECT_EQ(nullptr, GetModuleHandleA(library)) << library;
  }

  FakeServices services;
  FakeClass definition;
  services.Define("VORN_System", definition);
  FakeLocator locator(services);
  FakeFactory factory(
      [&](REFIID iid, void** object) { return locator.QueryInterface(iid, object); });
  const ClassRegistration registration(CLSID_WbemAdministrativeLocator, factory);

  const auto getClassObject =
      module.Export<HRESULT WINAPI(REFCLSID, REFIID, void**)>("DllGetClassObject");
  Com<IClassFactory> classFactory;
  ASSERT_EQ(S_OK, getClassObject(ProviderClsid(), IID_IClassFactory, classFactory.ReceiveVoid()));
  Com<IWbemProviderInit> init;
  ASSERT_EQ(S_OK, classFactory->CreateInstance(nullptr, IID_IWbemProviderInit, init.ReceiveVoid()));
  Com<IWbemServices> provider;
  ASSERT_EQ(S_OK, init->QueryInterface(IID_IWbemServices, provider.ReceiveVoid()));

  class : public ComFake<IWbemProviderInitSink, IID_IWbemProviderInitSink> {
   public:
    using ComFake::ComFake;
    HRESULT STDMETHODCALLTYPE SetStatus(LONG, LONG) override { return S_OK; }
  } initSink{"an init sink"};
  init->Initialize(nullptr, 0, nullptr, nullptr, nullptr, nullptr, &initSink);
  EXPECT_EQ(nullptr, GetModuleHandleA("tqsgen64.dll"));

  FakeSink sink;
  const Bstr name(OLESTR("VORN_System"));
  EXPECT_EQ(S_OK, provider->CreateInstanceEnumAsync(name.get(), 0, nullptr, &sink));
  EXPECT_EQ(1u, sink.Delivered().size());
  EXPECT_NE(nullptr, GetModuleHandleA("tqsgen64.dll"));
  EXPECT_EQ(nullptr, GetModuleHandleA("tqsxep64.dll"));

  // The module never releases its connection.
  EXPECT_EQ(1, services.References());
  services.Release();
}

}  // namespace
}  // namespace tqcim::testing
