#include "tests/support/fake_services.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

#include "tests/support/fault.h"
#include "tests/support/recorded_put.h"

namespace tqcim::testing {

HRESULT FakeServices::GetObject(const BSTR path, LONG flags, IWbemContext* context,
                                IWbemClassObject** object, IWbemCallResult** result) {
  const OutsideCall call(testing::Call::kClassDefinition);
  if (call.Fails()) return call.Result();
  ExpectHeld("GetObject");
  objectCalls_.push_back({Printable(path), flags, context != nullptr, result != nullptr});
  const auto definition = definitions_.find(Printable(path));
  if (definition == definitions_.end()) return static_cast<HRESULT>(WBEM_E_NOT_FOUND);
  *object = definition->second;
  (*object)->AddRef();
  return getObjectResult_;
}

HRESULT FakeServices::DeleteInstance(const BSTR path, LONG flags, IWbemContext* context,
                                     IWbemCallResult** result) {
  ExpectHeld("DeleteInstance");
  deleteCalls_.push_back({Printable(path), flags, context != nullptr, result != nullptr});
  return deleteResult_;
}

std::ostream& operator<<(std::ostream& out, const FakeServices::Call& call) {
  return out << "(\"" << call.path << "\", " << call.flags << ", "
             << (call.hasContext ? "context" : "null") << ", "
             << (call.wantsCallResult ? "call result" : "null") << ")";
}

HRESULT FakeLocator::QueryInterface(REFIID iid, void** object) {
  const OutsideCall call;
  askedFor_.push_back(iid);
  return ComFake::QueryInterface(iid, object);
}

HRESULT FakeLocator::ConnectServer(const BSTR path, const BSTR user, const BSTR password,
                                   const BSTR locale, LONG securityFlags, const BSTR authority,
                                   IWbemContext* context, IWbemServices** services) {
  const OutsideCall call(Call::kConnection);
  if (call.Fails()) return call.Result();
  ExpectHeld("ConnectServer");
  EXPECT_EQ(nullptr, user);
  EXPECT_EQ(nullptr, password);
  EXPECT_EQ(nullptr, locale);
  EXPECT_EQ(0, securityFlags);
  EXPECT_EQ(nullptr, authority);
  EXPECT_EQ(nullptr, context);
  paths_.push_back(Printable(path));
  if (FAILED(connectResult_)) return connectResult_;
  services_.AddRef();
  *services = &services_;
  return connectResult_;
}

bool FakeLocator::WasAskedFor(REFIID iid) const {
  return std::any_of(askedFor_.begin(), askedFor_.end(),
                     [&](const IID& asked) { return IsEqualGUID(asked, iid); });
}

HRESULT FakeFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) {
  const OutsideCall call(Call::kActivation);
  EXPECT_EQ(nullptr, outer);
  *object = nullptr;
  if (call.Fails()) return call.Result();
  return make_(iid, object);
}

ClassRegistration::ClassRegistration(REFCLSID clsid, IClassFactory& factory, DWORD context) {
  EXPECT_EQ(S_OK, CoRegisterClassObject(clsid, &factory, context, REGCLS_MULTIPLEUSE, &cookie_));
}

ClassRegistration::~ClassRegistration() {
  EXPECT_EQ(S_OK, CoRevokeClassObject(cookie_));
}

}  // namespace tqcim::testing
