// The main program of the tests of the provider: the module attached, COM entered as the management
// service's threads enter it.
#include <gtest/gtest.h>

#include "core/module.h"
#include "platform/wmi.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  CoInitializeEx(nullptr, COINIT_MULTITHREADED);
  tqcim::AttachModule();
  const int result = RUN_ALL_TESTS();
  tqcim::DetachModule();
  CoUninitialize();
  return result;
}
