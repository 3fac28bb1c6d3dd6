#include <runtime_ledger.h>

#include <gtest/gtest.h>

#include "platform/wmi.h"
#include "tests/platform/com_thread.h"
#include "tests/platform/counted_object.h"

namespace {

using tqcim::CurrentRuntimeLedger;
using tqcim::RuntimeLedger;
using tqcim::testing::ComOnThread;
using tqcim::testing::CountedObject;
using tqcim::testing::OnNewThread;
using tqcim::testing::Serve;

TEST(RuntimeLedger, CountsTexts) {
  const RuntimeLedger before = CurrentRuntimeLedger();
  BSTR first = SysAllocString(u"one");
  BSTR second = SysAllocStringByteLen("two", 3);
  EXPECT_EQ(before.bstrs + 2, CurrentRuntimeLedger().bstrs);
  SysFreeString(first);
  EXPECT_EQ(before.bstrs + 1, CurrentRuntimeLedger().bstrs);
  SysFreeString(second);
  SysFreeString(nullptr);
  EXPECT_EQ(before, CurrentRuntimeLedger());
}

TEST(RuntimeLedger, CountsArraysAndTheirTexts) {
  const RuntimeLedger before = CurrentRuntimeLedger();
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_ARRAY | VT_BSTR;
  V_ARRAY(&value) = SafeArrayCreateVector(VT_BSTR, 0, 2);
  BSTR text = SysAllocString(u"element");
  LONG index = 0;
  SafeArrayPutElement(V_ARRAY(&value), &index, text);
  SafeArrayPutElement(V_ARRAY(&value), &index, text);
  SysFreeString(text);
  EXPECT_EQ(before.safeArrays + 1, CurrentRuntimeLedger().safeArrays);
  EXPECT_EQ(before.bstrs + 1, CurrentRuntimeLedger().bstrs);
  VARIANT copy;
  VariantInit(&copy);
  VariantCopy(&copy, &value);
  EXPECT_EQ(before.safeArrays + 2, CurrentRuntimeLedger().safeArrays);
  EXPECT_EQ(before.bstrs + 2, CurrentRuntimeLedger().bstrs);
  VariantClear(&copy);
  VariantClear(&value);
  EXPECT_EQ(before, CurrentRuntimeLedger());
}

TEST(RuntimeLedger, CountsTaskMemory) {
  const RuntimeLedger before = CurrentRuntimeLedger();
  void* nothing = CoTaskMemAlloc(0);
  ASSERT_NE(nullptr, nothing);
  LPOLESTR text = nullptr;
  StringFromCLSID(CLSID_WbemLocator, &text);
  EXPECT_EQ(before.taskBlocks + 2, CurrentRuntimeLedger().taskBlocks);
  CoTaskMemFree(text);
  CoTaskMemFree(nothing);
  CoTaskMemFree(nullptr);
  EXPECT_EQ(before, CurrentRuntimeLedger());
}

TEST(RuntimeLedger, CountsInitialisationsOfItsThread) {
  OnNewThread([] {
    EXPECT_EQ(0u, CurrentRuntimeLedger().initialisations);
    const ComOnThread com;
    const ComOnThread again;
    EXPECT_EQ(2u, CurrentRuntimeLedger().initialisations);
    EXPECT_EQ(RPC_E_CHANGED_MODE, CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    EXPECT_EQ(2u, CurrentRuntimeLedger().initialisations);
    OnNewThread([] { EXPECT_EQ(0u, CurrentRuntimeLedger().initialisations); });
  });
}

TEST(RuntimeLedger, CountsClasses) {
  OnNewThread([] {
    const ComOnThread com;
    CountedObject factory;
    const RuntimeLedger before = CurrentRuntimeLedger();
    DWORD cookie = 0;
    Serve(CLSID_WbemLocator, &factory, &cookie);
    EXPECT_EQ(before.classes + 1, CurrentRuntimeLedger().classes);
    CoRevokeClassObject(cookie);
    EXPECT_EQ(before, CurrentRuntimeLedger());
  });
}

}  // namespace
