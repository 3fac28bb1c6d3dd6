// The computer's name for host names of every shape: this program's own gethostname stands in for
// the system's.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <string>

#include "platform/wmi.h"

namespace {

std::string hostName = "rack7";
bool hostNameFails = false;

}  // namespace

extern "C" __attribute__((visibility("default"))) int gethostname(char* name,
                                                                  size_t size) noexcept {
  if (hostNameFails) return -1;
  std::strncpy(name, hostName.c_str(), size);
  return 0;
}

namespace {

class ComputerNameOfHost : public ::testing::Test {
 protected:
  ~ComputerNameOfHost() override {
    hostName = "rack7";
    hostNameFails = false;
  }

  /// The computer's name on such a host; "<none>" when there is none.
  static std::string NameOn(const std::string& host) {
    hostName = host;
    char name[16];
    DWORD size = 16;
    if (!GetComputerNameA(name, &size)) return "<none>";
    EXPECT_EQ(size, std::strlen(name));
    return name;
  }
};

TEST_F(ComputerNameOfHost, EndsBeforeTheFirstDot) {
  EXPECT_EQ("rack7", NameOn("rack7"));
  EXPECT_EQ("rack7", NameOn("rack7.example.org"));
  EXPECT_EQ("r", NameOn("r.example.org"));
}

TEST_F(ComputerNameOfHost, IsCutAfterFifteenCharacters) {
  EXPECT_EQ("storage-node-12", NameOn("storage-node-12"));
  EXPECT_EQ("storage-node-12", NameOn("storage-node-123"));
  EXPECT_EQ("storage-node-12", NameOn("storage-node-123.example.org"));
  EXPECT_EQ("storage-node-12", NameOn("storage-node-12" + std::string(300, 'x')));
}

TEST_F(ComputerNameOfHost, DoesNotExistWithoutAHostName) {
  EXPECT_EQ("<none>", NameOn(""));
  EXPECT_EQ("<none>", NameOn(".example.org"));
  hostNameFails = true;
  EXPECT_EQ("<none>", NameOn("rack7"));
}

TEST_F(ComputerNameOfHost, NeedsSomewhereToGo) {
  DWORD size = 16;
  EXPECT_FALSE(GetComputerNameA(nullptr, &size));
  EXPECT_EQ(6u, size);
  char name[16];
  EXPECT_FALSE(GetComputerNameA(name, nullptr));
}

}  // namespace
