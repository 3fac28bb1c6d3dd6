/// Hosts over the fake provider module.
#pragma once

#include <memory>
#include <string>

#include "host/management_host.h"
#include "host/module.h"
#include "tests/host/com_test.h"
#include "tests/host/fake_provider.h"

namespace tqcim::host {

inline std::filesystem::path FakeModule() {
  return ProgramFolder() / fake_provider_FILE;
}

/// The schema of the fake provider's classes, registered under one of its CLSIDs.
inline std::shared_ptr<const Schema> FakeSchema(FakeClsid which) {
  const std::string clsid =
      "{0000000" + std::to_string(static_cast<ULONG>(which)) + "-1234-5678-0001-020304050607}";
  std::string schema =
      "class Fake_Base { [Key] string Name; uint32 Number; };\n"
      "instance of __Win32Provider as $P { Name = \"fake\"; CLSID = \"" +
      clsid +
      "\"; };\n"
      "instance of __InstanceProviderRegistration { Provider = $P; SupportsGet = TRUE;\n"
      "  SupportsEnumeration = TRUE; };\n";
  for (const char* name :
       {"Two", "Fails", "FinalFailure", "Silent", "KeepsSink", "RefusedPuts", "Many"}) {
    schema +=
        std::string("[Dynamic, Provider(\"fake\")] class Fake_") + name + " : Fake_Base {};\n";
  }
  return SchemaFromText(schema);
}

/// Tests over the fake provider. The module is held for the length of the test, so that its trace
/// can be read after a host has let it go.
class FakeProviderTest : public HostObjectsTest {
 protected:
  std::unique_ptr<ManagementHost> Open(FakeClsid which = FakeClsid::kWorks) {
    return ManagementHost::Open({FakeModule(), FakeSchema(which)});
  }

  HostError ErrorOfOpening(const HostOptions& options) {
    try {
      ManagementHost::Open(options);
    } catch (const HostError& error) {
      return error;
    }
    ADD_FAILURE() << "the host opened";
    return HostError(HostError::Kind::kPlatform, "");
  }
  HostError ErrorOfOpening(FakeClsid which) {
    return ErrorOfOpening({FakeModule(), FakeSchema(which)});
  }

  std::string Trace() const {
    void* text = nullptr;
    EXPECT_EQ(S_OK, module_.GetClassObject(ClsidOf(FakeClsid::kTrace), IID_IUnknown, &text));
    return static_cast<const char*>(text);
  }

  Module module_{FakeModule()};
};

}  // namespace tqcim::host
