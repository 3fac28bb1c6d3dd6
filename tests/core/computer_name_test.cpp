#include "core/computer_name.h"

#include "core/object_path.h"
#include "tests/support/handler_test.h"
#include "tests/support/recorded_put.h"

namespace tqcim::testing {
namespace {

using ComputerNameTest = BalancedTest;

TEST_F(ComputerNameTest, ANameOf15CharactersIsCarriedWhole) {
  EXPECT_STREQ("RACK42-NODE0007", ComputerName());
}

TEST_F(ComputerNameTest, AChangeIsNotSeenUntilTheNameIsReadAgain) {
  SetComputerName("RENAMED");
  EXPECT_STREQ("RACK42-NODE0007", ComputerName());
  EXPECT_TRUE(ReadComputerName());
  EXPECT_STREQ("RENAMED", ComputerName());
  SetComputerName(kComputerName);
  EXPECT_TRUE(ReadComputerName());
  EXPECT_STREQ("RACK42-NODE0007", ComputerName());
}

TEST_F(ComputerNameTest, APlatformWithoutANameIsAFailure) {
  SetComputerName(nullptr);
  EXPECT_FALSE(ReadComputerName());
  SetComputerName(kComputerName);
  EXPECT_TRUE(ReadComputerName());
}

TEST_F(ComputerNameTest, TheShortFormStopsAfter16Characters) {
  EXPECT_EQ("ABCDEFGHIJKLMNO", Printable(ShortWideName("ABCDEFGHIJKLMNO").get()));
  EXPECT_EQ("ABCDEFGHIJKLMNOP", Printable(ShortWideName("ABCDEFGHIJKLMNOP").get()));
  EXPECT_EQ("ABCDEFGHIJKLMNOP", Printable(ShortWideName("ABCDEFGHIJKLMNOPQ").get()));
  EXPECT_EQ("", Printable(ShortWideName("").get()));
}

TEST_F(ComputerNameTest, TheShortFormWidensCharacterByCharacter) {
  EXPECT_EQ("N\\u00C3\\u00A9", Printable(ShortWideName("N\xC3\xA9").get()));
}

TEST_F(ComputerNameTest, PathsCarryTheNameAsTheSupportLibraryConvertsIt) {
  FakeStore store;
  store.RecordCalls();
  EXPECT_EQ("RACK42-NODE0007", Printable(PathComputerName().text()));
  EXPECT_EQ(std::vector<std::string>{"convert RACK42-NODE0007"}, store.Calls());
}

}  // namespace
}  // namespace tqcim::testing
