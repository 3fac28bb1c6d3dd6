#include <gtest/gtest.h>

#include <cstring>

#include "platform/wmi.h"

namespace {

TEST(ComputerName, HasAtMostFifteenCharacters) {
  char name[16];
  DWORD size = 16;
  ASSERT_TRUE(GetComputerNameA(name, &size));
  EXPECT_GE(size, 1u);
  EXPECT_LE(size, 15u);
  EXPECT_EQ(size, std::strlen(name));
  EXPECT_EQ(nullptr, std::strchr(name, '.'));
}

TEST(ComputerName, TooLittleRoomTellsTheNeededRoom) {
  char name[16];
  DWORD length = 16;
  ASSERT_TRUE(GetComputerNameA(name, &length));
  DWORD size = length;
  EXPECT_FALSE(GetComputerNameA(name, &size));
  EXPECT_EQ(length + 1, size);
  EXPECT_TRUE(GetComputerNameA(name, &size));
  EXPECT_EQ(length, size);
}

}  // namespace
