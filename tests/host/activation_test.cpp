// Providers are activated as the management service does it, and what fails is told in a sentence.
#include "host/activation.h"

#include "tests/host/fake_host.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::host {
namespace {

using Activation = FakeProviderTest;

std::string RegistrationErrorOf(std::string_view schema) {
  try {
    FindRegistration(*SchemaFromText(std::string(schema)));
  } catch (const HostError& error) {
    EXPECT_EQ(HostError::Kind::kSchema, error.kind());
    return error.what();
  }
  return "no error";
}

TEST_F(Activation, FollowsTheServicesOrderAndUndoesItBackwards) {
  auto host = Open();
  EXPECT_EQ("made\ninitialise 0 root\\cimv2\\vorn with namespace\nconnected\n", Trace());
  host.reset();
  EXPECT_EQ("made\ninitialise 0 root\\cimv2\\vorn with namespace\nconnected\ngone\nmay go\n",
            Trace());
}

TEST(ActivationOfAModule, EndsWithItsUnloading) {
  ManagementHost::Open({FakeModule(), FakeSchema(FakeClsid::kWorks)}).reset();
  const Module again(FakeModule());
  void* text = nullptr;
  ASSERT_EQ(S_OK, again.GetClassObject(ClsidOf(FakeClsid::kTrace), IID_IUnknown, &text));
  EXPECT_STREQ("", static_cast<const char*>(text));
}

TEST_F(Activation, CanBeRepeated) {
  for (int i = 0; i < 3; ++i) EXPECT_EQ(7u, Open()->ClassNames().size());
}

TEST_F(Activation, AFactoryThatRefusesIsTold) {
  const HostError error = ErrorOfOpening(FakeClsid::kFactoryRefuses);
  EXPECT_EQ(HostError::Kind::kModule, error.kind());
  EXPECT_STREQ("the provider module makes no provider: E_OUTOFMEMORY (0x8007000E)", error.what());
}

TEST_F(Activation, AProviderThatFailsToInitialiseIsToldAndReleased) {
  EXPECT_STREQ("the provider module cannot be initialised: WBEM_E_FAILED (0x80041001)",
               ErrorOfOpening(FakeClsid::kReportsFailure).what());
  EXPECT_STREQ("the provider module cannot be initialised: WBEM_E_PROVIDER_FAILURE (0x80041004)",
               ErrorOfOpening(FakeClsid::kReportsNothing).what());
  EXPECT_STREQ("the provider module cannot be initialised: 0x80041003",
               ErrorOfOpening(FakeClsid::kInitialiseFails).what());
  EXPECT_NE(std::string::npos, Trace().find("gone\nmay go\n"));
  EXPECT_EQ(std::string::npos, Trace().find("may not go"));
}

TEST_F(Activation, AProviderWithoutInstancesIsTold) {
  EXPECT_STREQ(
      "the provider module has a provider that serves no instances: E_NOINTERFACE "
      "(0x80004002)",
      ErrorOfOpening(FakeClsid::kServesNoInstances).what());
}

TEST_F(Activation, AModuleThatDoesNotKnowTheProviderIsTold) {
  const HostError error = ErrorOfOpening(static_cast<FakeClsid>(9));
  EXPECT_EQ(HostError::Kind::kModule, error.kind());
  EXPECT_STREQ("the provider module gives no class factory: E_FAIL (0x80004005)", error.what());
}

TEST_F(Activation, AMissingModuleIsToldByName) {
  const auto missing = ProgramFolder() / "missing-module";
  const HostError error = ErrorOfOpening({missing, FakeSchema(FakeClsid::kWorks)});
  EXPECT_EQ(HostError::Kind::kModule, error.kind());
  const std::string text = error.what();
  EXPECT_EQ(0u, text.find("the provider module cannot be loaded: " + missing.string()));
}

TEST_F(Activation, AFileThatIsNoModuleIsToldByName) {
  const testing::TemporaryFolder folder;
  const auto file = folder.Write("text", "no module");
  const std::string text = ErrorOfOpening({file, FakeSchema(FakeClsid::kWorks)}).what();
  EXPECT_EQ(0u, text.find("the provider module cannot be loaded: " + file.string()));
}

TEST_F(Activation, AModuleWithoutTheFunctionsIsTold) {
  const auto module = ProgramFolder() / module_without_functions_FILE;
  const HostError error = ErrorOfOpening({module, FakeSchema(FakeClsid::kWorks)});
  EXPECT_EQ(HostError::Kind::kModule, error.kind());
  EXPECT_NE(std::string::npos, std::string(error.what()).find("DllGetClassObject"));
}

TEST(ProviderRegistrationOfASchema, IsFoundByTheNameThatTheClassesGive) {
  const auto registration = FindRegistration(*FakeSchema(FakeClsid::kTrace));
  EXPECT_EQ("fake", registration.name);
  EXPECT_TRUE(IsEqualGUID(ClsidOf(FakeClsid::kTrace), registration.clsid));
}

TEST(ProviderRegistrationOfASchema, MustBeCompleteAndTheOnlyOne) {
  const std::string served = "[Provider(\"p\")] class A {}; ";
  const std::string provider =
      "instance of __Win32Provider as $P { Name = \"p\"; "
      "CLSID = \"{00000001-0000-0000-0000-000000000000}\"; }; ";
  EXPECT_EQ("the schema cannot be served: none of its classes names a provider",
            RegistrationErrorOf("class A {};"));
  EXPECT_EQ("the schema cannot be served: its classes name two providers, p and q",
            RegistrationErrorOf(served + "[Provider(\"q\")] class B {};"));
  EXPECT_EQ("the schema cannot be served: provider p is not registered",
            RegistrationErrorOf(served));
  EXPECT_EQ("the schema cannot be served: provider p has no CLSID",
            RegistrationErrorOf(served + "instance of __Win32Provider { Name = \"p\"; };"));
  EXPECT_EQ("the schema cannot be served: provider p has no CLSID",
            RegistrationErrorOf(
                served + "instance of __Win32Provider { Name = \"p\"; CLSID = \"5e3a\"; };"));
  const char* const incomplete =
      "the schema cannot be served: provider p is not registered to get and to enumerate instances";
  EXPECT_EQ(incomplete, RegistrationErrorOf(served + provider));
  EXPECT_EQ(incomplete,
            RegistrationErrorOf(served + provider +
                                "instance of __InstanceProviderRegistration { Provider = $P; "
                                "SupportsGet = TRUE; SupportsEnumeration = FALSE; };"));
}

class RegistrationsOfTwoProviders : public ::testing::Test {
 protected:
  static std::string Registration(const std::string& provider, const std::string& supports) {
    return "instance of __InstanceProviderRegistration { Provider = " + provider +
           "; SupportsGet = " + supports + "; SupportsEnumeration = TRUE; }; ";
  }

  const std::string providers_ =
      "[Provider(\"p\")] class A {}; "
      "instance of __Win32Provider as $Other { Name = \"q\"; }; "
      "instance of __Win32Provider as $Own { Name = \"p\"; "
      "CLSID = \"{00000001-0000-0000-0000-000000000000}\"; }; ";
  const std::string incomplete_ =
      "the schema cannot be served: provider p is not registered to get and to enumerate instances";
};

TEST_F(RegistrationsOfTwoProviders, AnothersDoesNotStandForThisOnes) {
  const std::string others = Registration("$Other", "TRUE");
  EXPECT_EQ(incomplete_, RegistrationErrorOf(providers_ + others));
  EXPECT_EQ(incomplete_, RegistrationErrorOf(providers_ + others + Registration("$Own", "FALSE")));
}

TEST_F(RegistrationsOfTwoProviders, AnothersIsPassedOver) {
  EXPECT_EQ("no error", RegistrationErrorOf(providers_ + Registration("$Other", "FALSE") +
                                            Registration("$Own", "TRUE")));
}

}  // namespace
}  // namespace tqcim::host
