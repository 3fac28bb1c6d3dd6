#include <gtest/gtest.h>

#include "tests/store/smbios_bytes.h"
#include "tests/tools/store_files.h"
#include "tests/tools/tool_test.h"

namespace tqcim::testing {
namespace {

using StoreCommands = ToolTest;

/// A dump with one BIOS structure (DSP0134 7.1): vendor, version and release date.
std::string BiosDump() {
  const ByteVector bios =
      WithStrings({0, 0x18, 0, 0, 1, 2, 0, 0xE0, 3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
                  {"Maker", "1.2.3", "04/05/2026"});
  return std::string(TextOf(Dump64(Joined({bios, kEndOfTable}))));
}

TEST_F(StoreCommands, CheckCountsTheObjectsOfAGoodFile) {
  const std::string file = Write("store.json", StoreFile(kMemory));
  const ToolRun run = Run({"store", "check", file});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.output, file + ": 5 objects\n");
  EXPECT_EQ(run.error, "");
}

TEST_F(StoreCommands, CheckNamesTheLineOfTheFirstFault) {
  const std::string file = Write("store.json", "{\n  \"format\": \"tqcim-store\",\n  oops\n}\n");
  const ToolRun run = Run({"store", "check", file});
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.output, "");
  EXPECT_TRUE(run.error.starts_with("tqcim: " + file + ":3: ")) << run.error;
}

TEST_F(StoreCommands, ConvertWritesAFileThatShowsTheSameMachine) {
  const std::string dump = Write("dump.bin", BiosDump());
  const std::string file = Write("store.json", "what was there before");
  const ToolRun convert = Run({"store", "convert", "--firmware-table", dump, "-o", file});
  EXPECT_EQ(convert.status, 0);
  EXPECT_EQ(convert.error, "");
  EXPECT_TRUE(convert.output.starts_with(file + ": ")) << convert.output;
  EXPECT_TRUE(convert.output.ends_with(" objects\n")) << convert.output;
  EXPECT_EQ(Run({"store", "check", file}).output, convert.output);

  const ToolRun from_table =
      Run({"list", "CIM_BIOSElement", "--firmware-table", dump, "--format", "json"});
  EXPECT_EQ(from_table.status, 0);
  EXPECT_NE(from_table.output.find("\"Manufacturer\": \"Maker\""), std::string::npos)
      << from_table.output;
  EXPECT_NE(from_table.output.find("\"Version\": \"1.2.3\""), std::string::npos);
  EXPECT_EQ(Run({"list", "CIM_BIOSElement", "--store", file, "--format", "json"}).output,
            from_table.output);
}

TEST_F(StoreCommands, ConvertOfADamagedTableLeavesTheFileAlone) {
  const std::string dump = Write("dump.bin", BiosDump().substr(0, 60));
  const std::string file = Write("store.json", "what was there before");
  const ToolRun run = Run({"store", "convert", "--firmware-table", dump, "-o", file});
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.output, "");
  EXPECT_TRUE(run.error.starts_with("tqcim: " + dump + ": ")) << run.error;
  EXPECT_EQ(ContentsOf(Folder().Path() / "store.json"), "what was there before");
}

TEST_F(StoreCommands, ConvertToAPlaceThatCantBeWrittenIsAnOutputFailure) {
  const std::string dump = Write("dump.bin", BiosDump());
  const std::string file = Write("file", "not a folder") + "/store.json";
  const ToolRun run = Run({"store", "convert", "--firmware-table", dump, "-o", file});
  EXPECT_EQ(run.status, 5);
  EXPECT_EQ(run.output, "");
  EXPECT_TRUE(run.error.starts_with("tqcim: " + file + ": ")) << run.error;
}

}  // namespace
}  // namespace tqcim::testing
