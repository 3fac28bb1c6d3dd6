#include <gtest/gtest.h>

#include <thread>

#include "platform/wmi.h"
#include "tests/platform/com_thread.h"

namespace {

using tqcim::testing::ComOnThread;
using tqcim::testing::OnNewThread;

/// Whether COM can be used on this thread: no such class is a result that only COM gives.
bool CanUseCom() {
  const CLSID unknown = {0x0B0E7A11, 0x5C1D, 0x4F3A, {0x9D, 0x77, 1, 2, 3, 4, 5, 6}};
  void* object = &object;
  const HRESULT result =
      CoCreateInstance(unknown, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, &object);
  EXPECT_TRUE(result == REGDB_E_CLASSNOTREG || result == CO_E_NOTINITIALIZED) << result;
  EXPECT_EQ(nullptr, object);
  return result != CO_E_NOTINITIALIZED;
}

TEST(ComInitialisation, IsNeeded) {
  OnNewThread([] { EXPECT_FALSE(CanUseCom()); });
}

TEST(ComInitialisation, IsCountedPerThread) {
  OnNewThread([] {
    EXPECT_EQ(S_OK, CoInitializeEx(nullptr, COINIT_MULTITHREADED));
    EXPECT_EQ(S_FALSE, CoInitializeEx(nullptr, COINIT_MULTITHREADED));
    CoUninitialize();
    EXPECT_TRUE(CanUseCom());
    CoUninitialize();
    EXPECT_FALSE(CanUseCom());
    EXPECT_EQ(S_OK, CoInitializeEx(nullptr, COINIT_MULTITHREADED));
    CoUninitialize();
  });
}

TEST(ComInitialisation, KeepsItsMode) {
  OnNewThread([] {
    EXPECT_EQ(S_OK, CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    EXPECT_EQ(RPC_E_CHANGED_MODE, CoInitializeEx(nullptr, COINIT_MULTITHREADED));
    EXPECT_EQ(S_FALSE, CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    CoUninitialize();
    CoUninitialize();
    EXPECT_EQ(S_OK, CoInitializeEx(nullptr, COINIT_MULTITHREADED));
    EXPECT_EQ(RPC_E_CHANGED_MODE, CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    CoUninitialize();
  });
}

TEST(ComInitialisation, OnceTooOftenUndoneDoesNothing) {
  OnNewThread([] {
    CoUninitialize();
    EXPECT_EQ(S_OK, CoInitializeEx(nullptr, COINIT_MULTITHREADED));
    EXPECT_TRUE(CanUseCom());
    CoUninitialize();
  });
}

TEST(ComInitialisation, TheMultithreadedApartmentServesEveryThread) {
  OnNewThread([] {
    const ComOnThread com(COINIT_MULTITHREADED);
    OnNewThread([] { EXPECT_TRUE(CanUseCom()); });
  });
}

TEST(ComInitialisation, ASingleThreadedApartmentServesItsThreadOnly) {
  OnNewThread([] {
    const ComOnThread com(COINIT_APARTMENTTHREADED);
    EXPECT_TRUE(CanUseCom());
    OnNewThread([] { EXPECT_FALSE(CanUseCom()); });
  });
}

TEST(ComInitialisation, EndsWithItsThread) {
  OnNewThread([] {
    OnNewThread([] { EXPECT_EQ(S_OK, CoInitializeEx(nullptr, COINIT_MULTITHREADED)); });
    EXPECT_FALSE(CanUseCom());
  });
}

}  // namespace
