// Natively COM takes each class of the host once.
#include "tests/host/fake_host.h"

namespace tqcim::host {
namespace {

using SecondHost = FakeProviderTest;

TEST_F(SecondHost, IsRefusedWhileTheFirstIsOpen) {
  auto first = Open();
  const HostError error = ErrorOfOpening(FakeClsid::kWorks);
  EXPECT_EQ(HostError::Kind::kPlatform, error.kind());
  EXPECT_STREQ("COM refuses to register a class of the host: CO_E_OBJISREG (0x800401FC)",
               error.what());
  first.reset();
  EXPECT_NE(nullptr, Open());
}

}  // namespace
}  // namespace tqcim::host
