// JSON and CSV, byte for byte: both platforms write the same for the same store file.
#include <gtest/gtest.h>

#include "tests/tools/store_files.h"
#include "tests/tools/tool_test.h"

namespace tqcim::testing {
namespace {

class Formats : public ToolTest {
 protected:
  /// The output of a list over these objects, which must succeed without a remark.
  std::string List(const char* class_name, std::string_view objects, const char* format) const {
    const std::string file = Write("store.json", StoreFile(objects));
    const ToolRun run = Run({"list", class_name, "--store", file, "--format", format});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.error, "");
    return run.output;
  }
};

TEST_F(Formats, JsonHasEveryDeclaredPropertyInOrderAndNullForWhatIsAbsent) {
  EXPECT_EQ(List("VORN_Firmware", kOddFirmware, "json"),
            "[\n"
            "  {\n"
            "    \"Caption\": null,\n"
            "    \"Description\": null,\n"
            "    \"InstallDate\": null,\n"
            "    \"Name\": \"\u00DCnit, \\\"A\\\"\\n\\u001b[31m\",\n"
            "    \"Status\": null,\n"
            "    \"Version\": \"1.0\",\n"
            "    \"SoftwareElementState\": 4,\n"
            "    \"SoftwareElementID\": \"1.0\",\n"
            "    \"TargetOperatingSystem\": 1,\n"
            "    \"OtherTargetOS\": null,\n"
            "    \"Manufacturer\": null,\n"
            "    \"BuildNumber\": null,\n"
            "    \"SerialNumber\": null,\n"
            "    \"CodeSet\": null,\n"
            "    \"IdentificationCode\": null,\n"
            "    \"LanguageEdition\": null,\n"
            "    \"SoftwareElementType\": 8\n"
            "  },\n"
            "  {\n"
            "    \"Caption\": null,\n"
            "    \"Description\": null,\n"
            "    \"InstallDate\": null,\n"
            "    \"Name\": \"B\",\n"
            "    \"Status\": null,\n"
            "    \"Version\": \"\",\n"
            "    \"SoftwareElementState\": 4,\n"
            "    \"SoftwareElementID\": \"\",\n"
            "    \"TargetOperatingSystem\": 1,\n"
            "    \"OtherTargetOS\": null,\n"
            "    \"Manufacturer\": null,\n"
            "    \"BuildNumber\": null,\n"
            "    \"SerialNumber\": null,\n"
            "    \"CodeSet\": null,\n"
            "    \"IdentificationCode\": null,\n"
            "    \"LanguageEdition\": null,\n"
            "    \"SoftwareElementType\": 11\n"
            "  }\n"
            "]\n");
}

TEST_F(Formats, CsvQuotesWhatNeedsQuotesAndEndsLinesWithBothCharacters) {
  EXPECT_EQ(List("VORN_Firmware", kOddFirmware, "csv"),
            "Caption,Description,InstallDate,Name,Status,Version,SoftwareElementState,"
            "SoftwareElementID,TargetOperatingSystem,OtherTargetOS,Manufacturer,BuildNumber,"
            "SerialNumber,CodeSet,IdentificationCode,LanguageEdition,SoftwareElementType\r\n"
            ",,,\"\u00DCnit, \"\"A\"\"\n\x1B[31m\",,1.0,4,1.0,1,,,,,,,,8\r\n"
            ",,,B,,\"\",4,\"\",1,,,,,,,,11\r\n");
}

TEST_F(Formats, JsonNumbersOfSixtyFourBitsKeepAllTheirDigits) {
  const std::string output = List("CIM_PhysicalMemory", R"(
      {"oid": 5, "type": "memoryDevice", "parents": [2],
       "fields": {"extendedSizeMB": 4294967295}})",
                                  "json");
  EXPECT_NE(output.find("\n    \"Capacity\": 4503599626321920,\n"), std::string::npos) << output;
}

TEST_F(Formats, AClassWithoutInstancesIsAnEmptyArrayOrAHeaderAlone) {
  EXPECT_EQ(List("VORN_Firmware", "", "json"), "[]\n");
  EXPECT_EQ(List("VORN_Firmware", "", "csv"),
            "Caption,Description,InstallDate,Name,Status,Version,SoftwareElementState,"
            "SoftwareElementID,TargetOperatingSystem,OtherTargetOS,Manufacturer,BuildNumber,"
            "SerialNumber,CodeSet,IdentificationCode,LanguageEdition,SoftwareElementType\r\n");
}

TEST_F(Formats, TheSampleIsCalledInventedOnStandardErrorWhereTheOutputCantSayIt) {
  const char* remark =
      "tqcim: this is the embedded sample, an invented server; --store, --firmware-table and "
      "--firmware choose another source\n";
  EXPECT_EQ(Run({"list", "VORN_System", "--format", "json"}).error, remark);
  EXPECT_EQ(Run({"list", "VORN_System", "--format", "csv"}).error, remark);
  EXPECT_EQ(Run({"classes", "--format", "csv"}).error, remark);
  const ToolRun table = Run({"list", "VORN_System"});
  EXPECT_EQ(table.error, "");
  EXPECT_TRUE(table.output.starts_with(
      "VORN_System: 1 instance, from the embedded sample, an invented server\n"))
      << table.output;
}

class ClassSummaries : public ToolTest {
 protected:
  /// The summary of one class over these objects, as CSV.
  std::string LineOf(const std::string& class_name, std::string_view objects) const {
    const std::string file = Write("store.json", StoreFile(objects));
    const ToolRun run = Run({"classes", "--store", file, "--format", "csv"});
    EXPECT_EQ(run.status, 0) << run.error;
    EXPECT_TRUE(run.output.starts_with("class,instances,status\r\n")) << run.output;
    const size_t begin = run.output.find("\r\n" + class_name + ",") + 2;
    return run.output.substr(begin, run.output.find("\r\n", begin) - begin);
  }
};

TEST_F(ClassSummaries, CountInstancesAndTakeTheWorstStatus) {
  EXPECT_EQ(LineOf("CIM_PhysicalMemory", kMemory), "CIM_PhysicalMemory,3,Error");
}

TEST_F(ClassSummaries, RankEveryStatusAsTheStoreDoes) {
  // From better to worse, each beside its predecessor.
  const std::pair<const char*, const char*> pairs[] = {{"other", "unknown"},
                                                       {"unknown", "ok"},
                                                       {"ok", "nonCritical"},
                                                       {"nonCritical", "critical"},
                                                       {"critical", "nonRecoverable"}};
  const char* texts[] = {"Unknown", "OK", "Stressed", "Error", "NonRecover"};
  for (size_t i = 0; i < std::size(pairs); ++i) {
    const auto device = [](int oid, const char* status) {
      return "{\"oid\": " + std::to_string(oid) + ", \"type\": \"memoryDevice\", \"status\": \"" +
             status + "\", \"parents\": [2], \"fields\": {\"extendedSizeMB\": 1}}";
    };
    const std::string expected = std::string("CIM_PhysicalMemory,2,") + texts[i];
    EXPECT_EQ(
        LineOf("CIM_PhysicalMemory", device(5, pairs[i].first) + "," + device(6, pairs[i].second)),
        expected);
    EXPECT_EQ(
        LineOf("CIM_PhysicalMemory", device(5, pairs[i].second) + "," + device(6, pairs[i].first)),
        expected);
  }
}

TEST_F(ClassSummaries, HaveNoStatusWhereNoInstanceHasOne) {
  EXPECT_EQ(LineOf("VORN_Firmware", kOddFirmware), "VORN_Firmware,2,");
  EXPECT_EQ(LineOf("CIM_PhysicalMemory", ""), "CIM_PhysicalMemory,0,");
}

TEST_F(ClassSummaries, AreObjectsInJson) {
  const std::string file = Write("store.json", StoreFile(kMemory));
  const ToolRun run = Run({"classes", "--store", file, "--format", "json"});
  EXPECT_EQ(run.error, "");
  EXPECT_NE(run.output.find("  {\n"
                            "    \"class\": \"CIM_PhysicalMemory\",\n"
                            "    \"instances\": 3,\n"
                            "    \"status\": \"Error\"\n"
                            "  }"),
            std::string::npos)
      << run.output;
  EXPECT_NE(run.output.find("  {\n"
                            "    \"class\": \"VORN_Firmware\",\n"
                            "    \"instances\": 0,\n"
                            "    \"status\": null\n"
                            "  }"),
            std::string::npos)
      << run.output;
}

}  // namespace
}  // namespace tqcim::testing
