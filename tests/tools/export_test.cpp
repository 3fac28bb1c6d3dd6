// All classes as one JSON object.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/tools/installation.h"
#include "tests/tools/store_files.h"

namespace tqcim::testing {
namespace {

using Json = nlohmann::ordered_json;

using Export = InstallationTest;

TEST_F(Export, HasEveryClassInTheOrderOfTheClassesAndWithItsList) {
  const std::string file = Write("store.json", StoreFile(kMemory));
  const ToolRun run = Run({"export", "--store", file});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "");
  const Json exported = Json::parse(run.output);
  const Json classes = Json::parse(Run({"classes", "--store", file, "--format", "json"}).output);
  ASSERT_EQ(exported.size(), classes.size());
  ASSERT_EQ(exported.size(), 47U);
  auto entry = exported.items().begin();
  for (const Json& summary : classes) {
    EXPECT_EQ(entry.key(), summary.at("class").get<std::string>());
    EXPECT_EQ(entry.value().size(), summary.at("instances").get<size_t>()) << entry.key();
    ++entry;
  }
  for (const char* name : {"VORN_System", "CIM_PhysicalMemory", "CIM_Fan"}) {
    const ToolRun list = Run({"list", name, "--store", file, "--format", "json"});
    EXPECT_EQ(exported.at(name), Json::parse(list.output)) << name;
  }
}

TEST_F(Export, IsIndentedByTwoAndShowsAClassWithoutInstancesAsAnEmptyArray) {
  const std::string file = Write("store.json", StoreFile(kOddFirmware));
  const std::string output = Run({"export", "--store", file}).output;
  EXPECT_TRUE(output.starts_with("{\n  \"VORN_System\": [\n    {\n      \"Caption\": null,\n"))
      << output;
  EXPECT_NE(output.find("\n  \"CIM_Fan\": [],\n"), std::string::npos) << output;
  EXPECT_NE(output.find("  \"VORN_Firmware\": [\n"
                        "    {\n"
                        "      \"Caption\": null,\n"),
            std::string::npos)
      << output;
  EXPECT_TRUE(output.ends_with("]\n}\n"));
}

TEST_F(Export, SaysOnStandardErrorThatTheSampleIsInvented) {
  EXPECT_EQ(Run({"export"}).error,
            "tqcim: this is the embedded sample, an invented server; --store, --firmware-table and "
            "--firmware choose another source\n");
}

TEST_F(Export, WritesTheSameBytesIntoAFile) {
  const std::string store = Write("store.json", StoreFile(kMemory));
  const std::string file = Write("inventory.json", "what was there before");
  const ToolRun run = Run({"export", "--store", store, "-o", file});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "");
  EXPECT_EQ(run.output, file + ": 47 classes, 6 instances\n");
  EXPECT_EQ(ContentsOf(Folder().Path() / "inventory.json"),
            Run({"export", "--store", store}).output);
}

TEST_F(Export, OfADamagedSourceLeavesTheFileAlone) {
  const std::string store = Write("store.json", "{\n  oops\n}\n");
  const std::string file = Write("inventory.json", "what was there before");
  const ToolRun run = Run({"export", "--store", store, "-o", file});
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.output, "");
  EXPECT_TRUE(run.error.starts_with("tqcim: " + store + ":2: ")) << run.error;
  EXPECT_EQ(ContentsOf(Folder().Path() / "inventory.json"), "what was there before");
}

TEST_F(Export, ToAPlaceThatCantBeWrittenIsAnOutputFailure) {
  const std::string store = Write("store.json", StoreFile(""));
  const std::string file = Write("file", "not a folder") + "/inventory.json";
  const ToolRun run = Run({"export", "--store", store, "-o", file});
  EXPECT_EQ(run.status, 5);
  EXPECT_EQ(run.output, "");
  EXPECT_TRUE(run.error.starts_with("tqcim: " + file + ": ")) << run.error;
}

TEST_F(Export, ShowsAClassThatFailedAsNullAndTellsIt) {
  InstallWithoutProvider();
  InstallProvider(FAILING_PROVIDER_NAME);
  const std::string store = Write("store.json", StoreFile(""));
  const ToolRun run = RunInstalled({"export", "--store", store});
  EXPECT_EQ(run.status, 4);
  EXPECT_EQ(run.error, "tqcim: CIM_FRU: the provider answered WBEM_E_FAILED (0x80041001)\n");
  const Json exported = Json::parse(run.output);
  EXPECT_EQ(exported.size(), 47U);
  EXPECT_EQ(exported.at("CIM_FRU"), Json());
  EXPECT_EQ(exported.at("CIM_Fan"), Json::array());
}

TEST_F(Export, OfTheSampleWithAFailedClassTellsBoth) {
  InstallWithoutProvider();
  InstallProvider(FAILING_PROVIDER_NAME);
  for (const auto& arguments :
       {std::vector<std::string>{"export"}, {"classes", "--format", "json"}}) {
    const ToolRun run = RunInstalled(arguments);
    EXPECT_EQ(run.status, 4);
    EXPECT_EQ(run.error,
              "tqcim: this is the embedded sample, an invented server; --store, --firmware-table "
              "and --firmware choose another source; CIM_FRU: the provider answered "
              "WBEM_E_FAILED (0x80041001)\n");
  }
}

}  // namespace
}  // namespace tqcim::testing
