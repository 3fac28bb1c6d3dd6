// What -o makes of the kinds of files that may stand there.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>

#include "tests/tools/store_files.h"
#include "tests/tools/tool_test.h"

namespace tqcim::testing {
namespace {

namespace fs = std::filesystem;

class OutputFiles : public ToolTest {
 protected:
  /// The exit status of an export to that file.
  int ExportTo(const fs::path& path) const {
    const ToolRun run =
        Run({"export", "--store", Write("machine.json", StoreFile(kMemory)), "-o", path.string()});
    EXPECT_EQ(run.error, "");
    return run.status;
  }
  fs::path Place(const std::string& name) const { return Folder().Path() / name; }
};

TEST_F(OutputFiles, ALinksFileIsWrittenAndTheLinkStays) {
  const std::string file = Write("real.json", "what stood here before");
  fs::create_symlink(file, Place("link.json"));
  EXPECT_EQ(ExportTo(Place("link.json")), 0);
  EXPECT_TRUE(fs::is_symlink(Place("link.json")));
  EXPECT_TRUE(ContentsOf(file).starts_with("{\n  \"VORN_System\": [\n"));
}

TEST_F(OutputFiles, AFileKeepsItsPermissions) {
  const fs::path file = Write("private.json", "");
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(ExportTo(file), 0);
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_NE(fs::file_size(file), 0U);
}

TEST_F(OutputFiles, APipeIsWrittenTo) {
  const fs::path pipe = Place("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  // A pipe open at both ends holds what is written: less than its 64 KiB.
  const int reader = open(pipe.c_str(), O_RDWR);
  EXPECT_EQ(ExportTo(pipe), 0);
  std::array<char, 16> text{};
  EXPECT_EQ(read(reader, text.data(), 5), 5);
  EXPECT_STREQ(text.data(), "{\n  \"");
  close(reader);
  EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(OutputFiles, ANameMayBeAsLongAsTheFileSystemTakes) {
  const fs::path file = Place(std::string(255, 'n'));
  EXPECT_EQ(ExportTo(file), 0);
  EXPECT_NE(fs::file_size(file), 0U);
}

}  // namespace
}  // namespace tqcim::testing
