#include "store/ini_file.h"

#include <gtest/gtest.h>

#include "store/store_error.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::store {
namespace {

std::optional<uint16_t> NumberIn(std::string_view contents) {
  const testing::TemporaryFolder folder;
  return ReadIniNumber(folder.Write("f.ini", contents), "Network Information", "nic.disabled");
}

TEST(IniFile, AKeyOfItsSectionIsFound) {
  EXPECT_EQ(NumberIn("[Network Information]\nnic.disabled=1\n"), 1);
  EXPECT_EQ(NumberIn("; a comment\r\n\r\n[Other]\r\nnic.disabled=2\r\n"
                     "[Network Information]\r\n# another\r\na=3\r\nnic.disabled = 65535 \r\n"),
            65535);
  EXPECT_EQ(NumberIn("[ network information ]\n\tNIC.Disabled\t=\t7"), 7);
}

TEST(IniFile, TheFirstOfSeveralCounts) {
  EXPECT_EQ(NumberIn("[Network Information]\nnic.disabled=1\nnic.disabled=2\n"), 1);
  EXPECT_EQ(NumberIn("[Network Information]\na=1\n[Other]\n[NETWORK information]\n"
                     "NIC.disabled=9\nnic.disabled=2\nNIC.DISABLED=3\n"),
            9)
      << "of several sections together";
  EXPECT_EQ(NumberIn("[Network Information]\nnic.disabled=x\nnic.disabled=2\n"), std::nullopt)
      << "even if it is no number";
}

TEST(IniFile, AByteOrderMarkIsNoPartOfTheFirstLine) {
  EXPECT_EQ(NumberIn("\xEF\xBB\xBF[Network Information]\nnic.disabled=1\n"), 1);
}

TEST(IniFile, LinesMayEndInAnyWay) {
  EXPECT_EQ(NumberIn("; a comment\r[Network Information]\rnic.disabled=1\r"), 1);
  EXPECT_EQ(NumberIn("#\n\r\n;\n\n[Network Information]\r\n;\r\n\r\n#\r\nnic.disabled=1"), 1);
}

TEST(IniFile, OddLinesAreNotTaken) {
  EXPECT_EQ(NumberIn("[Network Information\nnic.disabled=1\n"), std::nullopt);
  EXPECT_EQ(NumberIn("[Network Information]\n=5\n]\n==\nnic.disabled=1\n"), 1);
  EXPECT_EQ(NumberIn("[Network Information]\nnic.disabled=<<<END\n1\nEND\n"), std::nullopt);
  EXPECT_EQ(NumberIn("[Network Information]\nnic.disabled=\"1\"\n"), std::nullopt);
  EXPECT_EQ(NumberIn("["), std::nullopt);
  EXPECT_EQ(NumberIn("[]"), std::nullopt);
  EXPECT_EQ(NumberIn(std::string_view("[Network Information]\n\0nic.disabled=1\n", 38)),
            std::nullopt);
}

TEST(IniFile, WhatIsNotThereIsNothing) {
  EXPECT_EQ(NumberIn(""), std::nullopt);
  EXPECT_EQ(NumberIn("nic.disabled=1\n"), std::nullopt) << "outside every section";
  EXPECT_EQ(NumberIn("[Network Information]\n[Other]\nnic.disabled=1\n"), std::nullopt);
  EXPECT_EQ(NumberIn("[Network Information]\n;nic.disabled=1\n"), std::nullopt);
  EXPECT_EQ(NumberIn("[Network Information]\nnic.disabled\n"), std::nullopt);
  EXPECT_EQ(NumberIn("[Network Information]\nnic.disabled.too=1\n"), std::nullopt);
}

TEST(IniFile, WhatIsNoFileIsRefused) {
  const testing::TemporaryFolder folder;
  EXPECT_THROW(ReadIniNumber(folder.Path(), "s", "k"), StoreError);
  EXPECT_THROW(ReadIniNumber(folder.Path() / "none.ini", "s", "k"), StoreError);
}

TEST(IniFile, WhatIsNoSixteenBitNumberIsNothing) {
  for (const char* value : {"", "x", "1x", "-1", "65536", "0x1", "1 2", "99999999999999999999"}) {
    EXPECT_EQ(NumberIn(std::string("[Network Information]\nnic.disabled=") + value), std::nullopt)
        << value;
  }
}

}  // namespace
}  // namespace tqcim::store
