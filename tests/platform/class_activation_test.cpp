#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "platform/wmi.h"
#include "tests/platform/com_thread.h"
#include "tests/platform/counted_object.h"

namespace {

using tqcim::testing::ComOnThread;
using tqcim::testing::CountedObject;
using tqcim::testing::OnNewThread;
using tqcim::testing::Serve;

constexpr CLSID kClass = {0x3D2A60B1, 0x7C40, 0x4E55, {0x8A, 0x01, 1, 2, 3, 4, 5, 6}};

/// Hands out one object and counts its own references.
class Factory : public IClassFactory {
 public:
  explicit Factory(IUnknown* product) : product_(product) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    *object = iid == IID_IUnknown || iid == IID_IClassFactory ? this : nullptr;
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override { return --references_; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    return product_->QueryInterface(iid, object);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

  ULONG References() const { return references_; }

 private:
  IUnknown* product_;
  std::atomic<ULONG> references_ = 0;
};

HRESULT Create(void** object) {
  return CoCreateInstance(kClass, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, object);
}

/// COM on this thread, and a class that is registered as long as this lives.
class RegisteredClass {
 public:
  RegisteredClass() { EXPECT_EQ(S_OK, Serve(kClass, &factory, &cookie)); }
  ~RegisteredClass() {
    EXPECT_EQ(S_OK, CoRevokeClassObject(cookie));
    EXPECT_EQ(0u, factory.References());
  }
  RegisteredClass(const RegisteredClass&) = delete;
  RegisteredClass& operator=(const RegisteredClass&) = delete;

  const ComOnThread com;
  CountedObject product;
  Factory factory{&product};
  DWORD cookie = 0;
};

TEST(ClassActivation, ARegisteredClassIsCreatedByItsFactory) {
  OnNewThread([] {
    RegisteredClass registered;
    EXPECT_NE(0u, registered.cookie);
    EXPECT_EQ(1u, registered.factory.References());
    void* object = nullptr;
    EXPECT_EQ(S_OK, Create(&object));
    EXPECT_EQ(static_cast<IUnknown*>(&registered.product), object);
    EXPECT_EQ(1u, registered.product.References());
    EXPECT_EQ(1u, registered.factory.References());
  });
}

TEST(ClassActivation, TheClassObjectIsTheRegisteredFactory) {
  OnNewThread([] {
    RegisteredClass registered;
    void* object = nullptr;
    EXPECT_EQ(S_OK,
              CoGetClassObject(kClass, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, &object));
    EXPECT_EQ(static_cast<IClassFactory*>(&registered.factory), object);
    EXPECT_EQ(2u, registered.factory.References());
    registered.factory.Release();
    EXPECT_EQ(E_NOINTERFACE,
              CoGetClassObject(kClass, CLSCTX_INPROC_SERVER, nullptr, IID_IWbemServices, &object));
    EXPECT_EQ(nullptr, object);
    EXPECT_EQ(1u, registered.factory.References());
  });
}

TEST(ClassActivation, TheFactorysRefusalIsTheResult) {
  OnNewThread([] {
    RegisteredClass registered;
    void* object = &object;
    EXPECT_EQ(E_NOINTERFACE,
              CoCreateInstance(kClass, nullptr, CLSCTX_INPROC_SERVER, IID_IWbemLocator, &object));
    EXPECT_EQ(nullptr, object);
    EXPECT_EQ(1u, registered.factory.References());
    EXPECT_EQ(0u, registered.product.References());
  });
}

TEST(ClassActivation, AnUnknownClassIsNotRegistered) {
  OnNewThread([] {
    const ComOnThread com;
    void* object = &object;
    EXPECT_EQ(REGDB_E_CLASSNOTREG, Create(&object));
    EXPECT_EQ(nullptr, object);
    object = &object;
    EXPECT_EQ(REGDB_E_CLASSNOTREG,
              CoGetClassObject(kClass, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, &object));
    EXPECT_EQ(nullptr, object);
  });
}

TEST(ClassActivation, ARevokedClassIsNotRegistered) {
  OnNewThread([] {
    const ComOnThread com;
    CountedObject product;
    Factory factory(&product);
    DWORD cookie = 0;
    ASSERT_EQ(S_OK, Serve(kClass, &factory, &cookie));
    ASSERT_EQ(S_OK, CoRevokeClassObject(cookie));
    void* object = nullptr;
    EXPECT_EQ(REGDB_E_CLASSNOTREG, Create(&object));
    EXPECT_EQ(E_INVALIDARG, CoRevokeClassObject(cookie));
  });
}

TEST(ClassActivation, ARevokedClassTakesNoOtherWithIt) {
  OnNewThread([] {
    const ComOnThread com;
    constexpr CLSID kOther = {0x3D2A60B1, 0x7C40, 0x4E55, {0x8A, 0x01, 1, 2, 3, 4, 5, 8}};
    CountedObject product;
    Factory other(&product);
    Factory factory(&product);
    DWORD otherCookie = 0;
    DWORD cookie = 0;
    ASSERT_EQ(S_OK, Serve(kOther, &other, &otherCookie));
    ASSERT_EQ(S_OK, Serve(kClass, &factory, &cookie));
    EXPECT_EQ(S_OK, CoRevokeClassObject(otherCookie));
    EXPECT_EQ(0u, other.References());
    EXPECT_EQ(1u, factory.References());
    EXPECT_EQ(S_OK, CoRevokeClassObject(cookie));
  });
}

TEST(ClassActivation, OneOfTheAskedContextsIsEnough) {
  OnNewThread([] {
    RegisteredClass registered;
    void* object = nullptr;
    EXPECT_EQ(S_OK, CoCreateInstance(kClass, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                     IID_IUnknown, &object));
    EXPECT_EQ(1u, registered.product.References());
  });
}

TEST(ClassActivation, NeedsCom) {
  OnNewThread([] {
    CountedObject product;
    Factory factory(&product);
    DWORD cookie = 0;
    EXPECT_EQ(CO_E_NOTINITIALIZED, Serve(kClass, &factory, &cookie));
    EXPECT_EQ(0u, factory.References());
    void* object = &object;
    EXPECT_EQ(CO_E_NOTINITIALIZED, Create(&object));
    EXPECT_EQ(nullptr, object);
    EXPECT_EQ(CO_E_NOTINITIALIZED, CoRevokeClassObject(1));
  });
}

TEST(ClassActivation, AThreadWithoutComUsesTheMultithreadedApartment) {
  OnNewThread([] {
    RegisteredClass registered;
    OnNewThread([&] {
      void* object = nullptr;
      EXPECT_EQ(S_OK, Create(&object));
      EXPECT_EQ(static_cast<IUnknown*>(&registered.product), object);
    });
  });
}

TEST(ClassActivation, TheEndOfComRevokesEveryClass) {
  OnNewThread([] {
    CountedObject product;
    Factory factory(&product);
    {
      const ComOnThread com;
      DWORD cookie = 0;
      ASSERT_EQ(S_OK, Serve(kClass, &factory, &cookie));
    }
    EXPECT_EQ(0u, factory.References());
    const ComOnThread com;
    void* object = nullptr;
    EXPECT_EQ(REGDB_E_CLASSNOTREG, Create(&object));
  });
}

TEST(ClassActivation, NullIsRefused) {
  OnNewThread([] {
    const ComOnThread com;
    CountedObject product;
    Factory factory(&product);
    DWORD cookie = 0;
    EXPECT_EQ(E_INVALIDARG, Serve(kClass, nullptr, &cookie));
    EXPECT_EQ(E_INVALIDARG, Serve(kClass, &factory, nullptr));
    EXPECT_EQ(E_POINTER, Create(nullptr));
    EXPECT_EQ(E_INVALIDARG,
              CoGetClassObject(kClass, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, nullptr));
  });
}

TEST(ClassActivation, ManyThreadsMayActivateAtOnce) {
  OnNewThread([] {
    const ComOnThread com;
    CountedObject unused;
    Factory product(&unused);
    Factory factory(&product);
    DWORD cookie = 0;
    ASSERT_EQ(S_OK, Serve(kClass, &factory, &cookie));
    std::atomic<int> created = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
      threads.emplace_back([&] {
        for (int round = 0; round < 200; ++round) {
          const ComOnThread comOfThread;
          void* object = nullptr;
          if (Create(&object) != S_OK) continue;
          static_cast<IUnknown*>(object)->Release();
          ++created;
        }
      });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(1600, created);
    EXPECT_EQ(0u, product.References());
    EXPECT_EQ(1u, factory.References());
    EXPECT_EQ(S_OK, CoRevokeClassObject(cookie));
  });
}

}  // namespace
