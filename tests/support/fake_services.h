/// The management service as the provider meets it: a namespace with class definitions, and the
/// locators that connect to it.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/support/refusing_interfaces.h"

namespace tqcim::testing {

/// A namespace. Notes what it is asked for; belongs to one thread.
class FakeServices final : public RefusingServices {
 public:
  FakeServices() : RefusingServices("a namespace") {}

  /// A request as it came in; absent optional arguments are null pointers.
  struct Call {
    std::string path;
    LONG flags;
    bool hasContext;
    bool wantsCallResult;

    bool operator==(const Call&) const = default;
  };

  /// Gives the definition that the name was told with, or Hr(0x80041002) for one that was not.
  HRESULT STDMETHODCALLTYPE GetObject(const BSTR path, LONG flags, IWbemContext* context,
                                      IWbemClassObject** object, IWbemCallResult** result) override;
  HRESULT STDMETHODCALLTYPE DeleteInstance(const BSTR path, LONG flags, IWbemContext* context,
                                           IWbemCallResult** result) override;

  void Define(const std::string& className, IWbemClassObject& definition) {
    definitions_[className] = &definition;
  }
  /// What GetObject returns for a class that is defined; the definition comes with it.
  void SetGetObjectResult(HRESULT result) { getObjectResult_ = result; }
  void SetDeleteResult(HRESULT result) { deleteResult_ = result; }

  const std::vector<Call>& ObjectCalls() const { return objectCalls_; }
  const std::vector<Call>& DeleteCalls() const { return deleteCalls_; }

 private:
  std::map<std::string, IWbemClassObject*> definitions_;
  HRESULT getObjectResult_ = S_OK;
  HRESULT deleteResult_ = S_OK;
  std::vector<Call> objectCalls_;
  std::vector<Call> deleteCalls_;
};

std::ostream& operator<<(std::ostream& out, const FakeServices::Call& call);

/// Connects to a namespace.
class FakeLocator final : public ComFake<IWbemLocator, IID_IWbemLocator> {
 public:
  explicit FakeLocator(IWbemServices& services) : ComFake("a locator"), services_(services) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  /// Expects no user, password, locale, flags, authority and context.
  HRESULT STDMETHODCALLTYPE ConnectServer(const BSTR path, const BSTR user, const BSTR password,
                                          const BSTR locale, LONG securityFlags,
                                          const BSTR authority, IWbemContext* context,
                                          IWbemServices** services) override;

  /// With a failure there is no connection.
  void SetConnectResult(HRESULT result) { connectResult_ = result; }

  /// The paths that were connected to.
  const std::vector<std::string>& Paths() const { return paths_; }
  /// Whether the locator was asked for this interface.
  bool WasAskedFor(REFIID iid) const;

 private:
  IWbemServices& services_;
  HRESULT connectResult_ = S_OK;
  std::vector<std::string> paths_;
  std::vector<IID> askedFor_;
};

/// A class factory that makes objects as the test says.
class FakeFactory final : public ComFake<IClassFactory, IID_IClassFactory> {
 public:
  using Make = std::function<HRESULT(REFIID iid, void** object)>;
  explicit FakeFactory(Make make) : ComFake("a class factory"), make_(std::move(make)) {}

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  Make make_;
};

/// Registers a class factory with COM for this process, as long as it lives.
class ClassRegistration {
 public:
  ClassRegistration(REFCLSID clsid, IClassFactory& factory, DWORD context = CLSCTX_INPROC_SERVER);
  ~ClassRegistration();
  ClassRegistration(const ClassRegistration&) = delete;
  ClassRegistration& operator=(const ClassRegistration&) = delete;

 private:
  DWORD cookie_ = 0;
};

}  // namespace tqcim::testing
