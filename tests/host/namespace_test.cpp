// The namespace gives class definitions and nothing else; the locator leads to it alone.
#include "host/name_space.h"

#include "tests/host/com_test.h"

namespace tqcim::host {
namespace {

class NamespaceTest : public HostObjectsTest {
 protected:
  HRESULT GetClass(const OLECHAR* path, LONG flags = 0) {
    const Bstr text(path);
    IWbemClassObject* object = nullptr;
    const HRESULT result = name_space_->GetObject(text.get(), flags, nullptr, &object, nullptr);
    object_ = Com(object);
    return result;
  }
  HRESULT Connect(const OLECHAR* resource) {
    const Com<Locator> locator(new Locator(name_space_));
    const Bstr text(resource);
    IWbemServices* services = nullptr;
    const HRESULT result = locator->ConnectServer(text.get(), nullptr, nullptr, nullptr, 0, nullptr,
                                                  nullptr, &services);
    EXPECT_EQ(SUCCEEDED(result), services == name_space_.get());
    EXPECT_EQ(SUCCEEDED(result), services != nullptr);
    if (services) services->Release();
    EXPECT_EQ(0u, name_space_->References());
    return result;
  }

  std::shared_ptr<Namespace> name_space_ =
      std::make_shared<Namespace>(SchemaFromText("class VORN_Thing { [Key] string Name; };"));
  Com<IWbemClassObject> object_;
};

TEST_F(NamespaceTest, GivesDefinitionsInAnyCaseUnderTheDeclaredName) {
  for (const OLECHAR* path :
       {OLESTR("VORN_Thing"), OLESTR("vorn_thing"), OLESTR("\\\\.\\ROOT\\CimV2\\Vorn:VORN_THING"),
        OLESTR("root\\cimv2\\vorn:VORN_Thing")}) {
    ASSERT_EQ(S_OK, GetClass(path)) << ToUtf8(path);
    EXPECT_EQ("VORN_Thing", InstanceBehind(object_).definition->name);
  }
}

TEST_F(NamespaceTest, AnswersWhatItDoesNotHave) {
  EXPECT_EQ(kMissing, GetClass(OLESTR("VORN_Nothing")));
  EXPECT_EQ(kMissing, GetClass(OLESTR("__Win32Provider")));
  EXPECT_EQ(kRefused, GetClass(OLESTR("VORN_Thing.Name=\"x\"")));
  EXPECT_EQ(kRefused, GetClass(OLESTR("VORN_Thing=@")));
  EXPECT_EQ(kRefused, GetClass(OLESTR("VORN_Thing"), 0x20000));
  EXPECT_EQ(kBadPath, GetClass(OLESTR("VORN_Thing.")));
  EXPECT_EQ(kBadPath, GetClass(OLESTR("")));
  EXPECT_EQ(kBadPath, GetClass(OLESTR("root\\cimv2\\vorn")));
  EXPECT_EQ(kBadPath, GetClass(OLESTR("root\\cimv2:VORN_Thing")));
  EXPECT_EQ(kBadPath, GetClass(OLESTR("\\\\elsewhere\\root\\cimv2\\vorn:VORN_Thing")));
  EXPECT_FALSE(object_);
  IWbemClassObject* object = nullptr;
  EXPECT_EQ(kBadArgument, name_space_->GetObject(nullptr, 0, nullptr, &object, nullptr));
}

TEST_F(NamespaceTest, RefusesEveryOtherOperation) {
  IWbemServices& services = *name_space_;
  EXPECT_EQ(kRefused, services.OpenNamespace(nullptr, 0, nullptr, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.CancelAsyncCall(nullptr));
  EXPECT_EQ(kRefused, services.QueryObjectSink(0, nullptr));
  EXPECT_EQ(kRefused, services.GetObjectAsync(nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.PutClass(nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.PutClassAsync(nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.DeleteClass(nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.DeleteClassAsync(nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.CreateClassEnum(nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.CreateClassEnumAsync(nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.PutInstance(nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.PutInstanceAsync(nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.DeleteInstance(nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.DeleteInstanceAsync(nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.CreateInstanceEnum(nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.CreateInstanceEnumAsync(nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.ExecQuery(nullptr, nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.ExecQueryAsync(nullptr, nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.ExecNotificationQuery(nullptr, nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.ExecNotificationQueryAsync(nullptr, nullptr, 0, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.ExecMethod(nullptr, nullptr, 0, nullptr, nullptr, nullptr, nullptr));
  EXPECT_EQ(kRefused, services.ExecMethodAsync(nullptr, nullptr, 0, nullptr, nullptr, nullptr));
}

TEST_F(NamespaceTest, CountsReferencesAndStaysWithItsOwner) {
  void* object = nullptr;
  EXPECT_EQ(S_OK, name_space_->QueryInterface(IID_IWbemServices, &object));
  EXPECT_EQ(static_cast<IWbemServices*>(name_space_.get()), object);
  EXPECT_EQ(1u, name_space_->References());
  EXPECT_EQ(0u, name_space_->Release());
  EXPECT_EQ(S_OK, GetClass(OLESTR("VORN_Thing")));
  EXPECT_EQ(E_NOINTERFACE, name_space_->QueryInterface(IID_IWbemLocator, &object));
  EXPECT_EQ(nullptr, object);
}

TEST_F(NamespaceTest, LocatorConnectsInAnyCaseWithAndWithoutServer) {
  EXPECT_EQ(S_OK, Connect(OLESTR("root\\CIMV2\\vorn")));
  EXPECT_EQ(S_OK, Connect(OLESTR("ROOT\\cimv2\\VORN")));
  EXPECT_EQ(S_OK, Connect(OLESTR("\\\\.\\root\\cimv2\\vorn")));
  EXPECT_EQ(S_OK, Connect(OLESTR("//./root/cimv2/vorn")));
  EXPECT_EQ(S_OK, Connect(OLESTR("\\\\localhost\\root\\cimv2\\vorn")));
  EXPECT_EQ(S_OK, Connect(ToWide("\\\\" + ComputerName() + "\\root\\cimv2\\vorn").c_str()));
}

TEST(Server, OfAPathIsThisComputerUnderAnyOfItsNames) {
  const auto is_local = [](const std::string& server, std::string_view computer_name) {
    return IsInNamespace(ParseObjectPath("\\\\" + server + "\\root\\cimv2\\vorn"), computer_name);
  };
  for (const char* server : {".", "localhost", "LocalHost", "BUILD-SERVER-01", "build-server-01",
                             "build-server-01.example.org"}) {
    EXPECT_TRUE(is_local(server, "BUILD-SERVER-01")) << server;
  }
  EXPECT_TRUE(is_local("build-server-0123", "BUILD-SERVER-01")) << "cut by the platform";
  EXPECT_TRUE(is_local("build-server-0123.example.org", "BUILD-SERVER-01"));
  for (const char* server : {"localhost.example.org", "BUILD-SERVER-0", "BUILD-SERVER-02",
                             "example.BUILD-SERVER-01", "BUILD-SERVER-0.1"}) {
    EXPECT_FALSE(is_local(server, "BUILD-SERVER-01")) << server;
  }
  EXPECT_FALSE(is_local("HOST2", "HOST"));
}

TEST_F(NamespaceTest, LocatorRefusesEveryOtherNamespace) {
  EXPECT_EQ(kBadNamespace, Connect(OLESTR("root\\cimv2")));
  EXPECT_EQ(kBadNamespace, Connect(OLESTR("\\\\.\\root\\cimv2")));
  EXPECT_EQ(kBadNamespace, Connect(OLESTR("root\\cimv2\\vorn\\x")));
  EXPECT_EQ(kBadNamespace, Connect(OLESTR("\\\\elsewhere\\root\\cimv2\\vorn")));
  EXPECT_EQ(kBadNamespace, Connect(OLESTR("vorn")));
  EXPECT_EQ(kBadNamespace, Connect(OLESTR("root\\cimv2\\vorn:VORN_Thing")));
  EXPECT_EQ(kBadNamespace, Connect(OLESTR("")));
  EXPECT_EQ(kBadNamespace, Connect(OLESTR("\\\\")));
}

TEST_F(NamespaceTest, LocatorIsOneTableForItsInterfaceAndIUnknown) {
  const Com<Locator> locator(new Locator(name_space_));
  void* unknown = nullptr;
  void* own = nullptr;
  ASSERT_EQ(S_OK, locator->QueryInterface(IID_IUnknown, &unknown));
  ASSERT_EQ(S_OK, locator->QueryInterface(IID_IWbemLocator, &own));
  EXPECT_EQ(unknown, own);
  EXPECT_EQ(2u, locator->Release());
  EXPECT_EQ(1u, locator->Release());
}

}  // namespace
}  // namespace tqcim::host
