// What this platform, without a registry or other processes, settles by itself.
#include <gtest/gtest.h>

#include "platform/wmi.h"
#include "tests/platform/com_thread.h"
#include "tests/platform/counted_object.h"

namespace {

using tqcim::testing::ComOnThread;
using tqcim::testing::CountedObject;
using tqcim::testing::OnNewThread;
using tqcim::testing::Serve;

constexpr CLSID kClass = {0x3D2A60B1, 0x7C40, 0x4E55, {0x8A, 0x01, 1, 2, 3, 4, 5, 7}};

TEST(ClassActivation, AClassIsServedInItsContextOnly) {
  OnNewThread([] {
    const ComOnThread com;
    CountedObject factory;
    DWORD cookie = 0;
    ASSERT_EQ(S_OK, Serve(kClass, &factory, &cookie));
    void* object = &object;
    EXPECT_EQ(REGDB_E_CLASSNOTREG,
              CoGetClassObject(kClass, CLSCTX_LOCAL_SERVER, nullptr, IID_IUnknown, &object));
    EXPECT_EQ(nullptr, object);
    EXPECT_EQ(S_OK, CoRevokeClassObject(cookie));
  });
}

TEST(ClassActivation, AClassIsRegisteredOnce) {
  OnNewThread([] {
    const ComOnThread com;
    CountedObject factory;
    DWORD cookie = 0;
    DWORD second = 0;
    ASSERT_EQ(S_OK, Serve(kClass, &factory, &cookie));
    EXPECT_EQ(CO_E_OBJISREG, Serve(kClass, &factory, &second));
    EXPECT_EQ(1u, factory.References());
    EXPECT_EQ(S_OK, CoRevokeClassObject(cookie));
    EXPECT_EQ(S_OK, Serve(kClass, &factory, &second));
    EXPECT_NE(cookie, second);
    EXPECT_EQ(S_OK, CoRevokeClassObject(second));
  });
}

TEST(ClassActivation, OtherRegistrationFlagsAreRefused) {
  OnNewThread([] {
    const ComOnThread com;
    CountedObject factory;
    DWORD cookie = 0;
    EXPECT_EQ(E_INVALIDARG,
              CoRegisterClassObject(kClass, &factory, CLSCTX_INPROC_SERVER, 0, &cookie));
    EXPECT_EQ(0u, factory.References());
  });
}

/// Notes how often it was held when it was last asked for an interface.
class AskedFactory final : public CountedObject {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    referencesWhenAsked = References();
    return CountedObject::QueryInterface(iid, object);
  }

  ULONG referencesWhenAsked = 0;
};

TEST(ClassActivation, AFactoryIsHeldWhileItIsAsked) {
  OnNewThread([] {
    const ComOnThread com;
    AskedFactory factory;
    DWORD cookie = 0;
    ASSERT_EQ(S_OK, Serve(kClass, &factory, &cookie));
    void* object = nullptr;
    EXPECT_EQ(E_NOINTERFACE,
              CoGetClassObject(kClass, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, &object));
    EXPECT_EQ(2u, factory.referencesWhenAsked) << "by its registration and for the call";
    EXPECT_EQ(S_OK, CoRevokeClassObject(cookie));
  });
}

TEST(Guid, NullIsRefused) {
  EXPECT_EQ(E_INVALIDARG, StringFromCLSID(kClass, nullptr));
  EXPECT_EQ(E_INVALIDARG,
            CLSIDFromString(OLESTR("{3D2A60B1-7C40-4E55-8A01-010203040507}"), nullptr));
}

TEST(ComInitialisation, ReservedArgumentHasToBeNull) {
  OnNewThread([] {
    int something = 0;
    EXPECT_EQ(E_INVALIDARG, CoInitializeEx(&something, COINIT_MULTITHREADED));
    EXPECT_EQ(S_OK, CoInitializeEx(nullptr, COINIT_MULTITHREADED));
    CoUninitialize();
  });
}

}  // namespace
