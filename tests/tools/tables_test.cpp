// Tables and blocks, for people.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "tests/tools/store_files.h"
#include "tests/tools/tool_test.h"

namespace tqcim::testing {
namespace {

/// How many characters a line of UTF-8 has.
size_t ColumnCount(const std::string& line) {
  return static_cast<size_t>(std::count_if(line.begin(), line.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
  }));
}

/// The lines of a text that was wrapped, as one.
std::string Joined(std::string text) {
  text.pop_back();
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text;
}

class Tables : public ToolTest {
 protected:
  std::string List(const char* class_name, std::string_view objects,
                   std::vector<std::string> options = {}) const {
    const std::string file = Write("store.json", StoreFile(objects));
    std::vector<std::string> arguments = {"list", class_name, "--store", file};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const ToolRun run = Run(arguments);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.error, "");
    // The first line names the source, whose path is another one in every run.
    EXPECT_NE(run.output.find("store.json\n"), std::string::npos);
    return run.output.substr(run.output.find("store.json\n") + 11);
  }
};

TEST_F(Tables, ShowInColumnsWhatDiffersAndOnceWhatIsTheSame) {
  EXPECT_EQ(List("CIM_PhysicalMemory", kMemory),
            "\n"
            "Tag  Status   Name     BankLabel                                    SerialNumber\n"
            "  0  OK       DIMM_A1  Bank A                                               0001\n"
            "  1  Unknown  DIMM_A2  Bank A                                               0002\n"
            "  2  Error    DIMM_A3  A bank with a label that is a whole senten…          0003\n"
            "\n"
            "The same in all of them:\n"
            "  CreationClassName  CIM_PhysicalMemory\n"
            "  MemoryType         26 (DDR4)\n"
            "  TotalWidth         0 Bits\n"
            "  DataWidth          0 Bits\n"
            "  Speed              0\n"
            "  Capacity           34359738368 Bytes (32 GiB)\n"
            "  Rank               0 (Unknown)\n"
            "  SpeedAsString      2933 MT/s\n"
            "  Manufacturer       Maker\n"
            "  FormFactor         0 (Unknown)\n");
}

TEST_F(Tables, NameTheColumnsForWhichThereIsNoRoom) {
  SetEnvironment("COLUMNS", "40");
  EXPECT_TRUE(List("CIM_PhysicalMemory", kMemory)
                  .starts_with("\n"
                               "Tag  Status   Name     SerialNumber\n"
                               "  0  OK       DIMM_A1          0001\n"
                               "  1  Unknown  DIMM_A2          0002\n"
                               "  2  Error    DIMM_A3          0003\n"
                               "\n"
                               "No room for BankLabel; --full shows\n"
                               "everything.\n"
                               "\n"));
}

TEST_F(Tables, KeepKeysAndStatusInTheNarrowestTerminal) {
  SetEnvironment("COLUMNS", "1");
  const std::string table = List("CIM_PhysicalMemory", kMemory);
  EXPECT_NE(table.find("\n"
                       "Tag  Sta\u2026\n"
                       "  0  OK\n"
                       "  1  Unk\u2026\n"
                       "  2  Err\u2026\n"),
            std::string::npos)
      << table;
}

TEST_F(Tables, KeepToTheWidthOfEveryTerminal) {
  for (const char* class_name : {"CIM_PhysicalMemory", "VORN_Chassis", "VORN_Firmware"}) {
    for (const size_t width : {60U, 80U, 132U}) {
      SetEnvironment("COLUMNS", std::to_string(width).c_str());
      std::istringstream lines(Run({"list", class_name}).output);
      for (std::string line; std::getline(lines, line);) {
        // Object paths stay whole: they are there to be copied.
        if (line.starts_with(class_name) && line.find('"') != std::string::npos) continue;
        EXPECT_LE(ColumnCount(line), width) << line;
      }
    }
  }
}

TEST_F(Tables, IgnoreAWidthThatIsNone) {
  const std::string table = List("CIM_PhysicalMemory", kMemory);
  for (const char* width : {"0", "-5", "wide", "80x", "99999999999999999999"}) {
    SetEnvironment("COLUMNS", width);
    EXPECT_EQ(List("CIM_PhysicalMemory", kMemory), table) << width;
  }
}

TEST_F(Tables, HaveNoColumnsWhereNothingDiffers) {
  const std::string file = Write("store.json", StoreFile(R"(
      {"oid": 5, "type": "pointingDevice", "parents": [2]},
      {"oid": 6, "type": "pointingDevice", "parents": [2]})"));
  const std::string output = Run({"list", "CIM_PointingDevice", "--store", file}).output;
  EXPECT_EQ(output.find("\n\n\n"), std::string::npos) << output;
  EXPECT_NE(
      output.find("\n\nThe same in all of them:\n  SystemCreationClassName  CIM_ComputerSystem\n"),
      std::string::npos)
      << output;
}

TEST_F(Tables, ShowASingleInstanceAsABlockWithKeysAndStatusFirst) {
  EXPECT_EQ(List("CIM_PhysicalMemory", R"(
      {"oid": 5, "type": "memoryDevice", "status": "ok", "parents": [2],
       "fields": {"name": "DIMM_A1", "manufacturer": "Maker", "extendedSizeMB": 1024,
                  "memoryType": 26, "rank": 2}})"),
            "\n"
            "CIM_PhysicalMemory.Tag=\"0\",CreationClassName=\"CIM_PhysicalMemory\"\n"
            "  Tag                0\n"
            "  CreationClassName  CIM_PhysicalMemory\n"
            "  Status             OK\n"
            "  Name               DIMM_A1\n"
            "  MemoryType         26 (DDR4)\n"
            "  TotalWidth         0 Bits\n"
            "  DataWidth          0 Bits\n"
            "  Speed              0\n"
            "  Capacity           1073741824 Bytes (1 GiB)\n"
            "  BankLabel\n"
            "  Rank               2 (Dual)\n"
            "  SpeedAsString\n"
            "  Manufacturer       Maker\n"
            "  SerialNumber\n"
            "  FormFactor         0 (Unknown)\n");
}

TEST_F(Tables, ShowEveryInstanceAsABlockInFull) {
  const std::string blocks = List("VORN_Firmware", kOddFirmware, {"--full"});
  EXPECT_EQ(blocks,
            "\n"
            "VORN_Firmware.Name=\"\u00DCnit, \\\"A\\\"\\x0A\\x1B[31m\",Version=\"1.0\","
            "SoftwareElementState=4,SoftwareElementID=\"1.0\",TargetOperatingSystem=1\n"
            "  Name                   \u00DCnit, \"A\"\\x0A\\x1B[31m\n"
            "  Version                1.0\n"
            "  SoftwareElementState   4\n"
            "  SoftwareElementID      1.0\n"
            "  TargetOperatingSystem  1\n"
            "  SoftwareElementType    8\n"
            "\n"
            "VORN_Firmware.Name=\"B\",Version=\"\",SoftwareElementState=4,SoftwareElementID=\"\","
            "TargetOperatingSystem=1\n"
            "  Name                   B\n"
            "  Version\n"
            "  SoftwareElementState   4\n"
            "  SoftwareElementID\n"
            "  TargetOperatingSystem  1\n"
            "  SoftwareElementType    11\n");
}

TEST_F(Tables, LeaveOutAStatusThatNoInstanceHas) {
  const std::string table = List("VORN_Firmware", kOddFirmware);
  EXPECT_TRUE(table.starts_with(R"(
Name                   Version  SoftwareElementID  SoftwareElementType
Ünit, "A"\x0A\x1B[31m  1.0      1.0                                  8
B                                                                   11

)")) << table;
}

constexpr std::string_view kProbes = R"(
    {"oid": 4, "type": "chassisDescription", "parents": [2], "fields": {"name": "The Box"}},
    {"oid": 5, "type": "temperatureProbe", "parents": [2], "fields": {"name": "Inlet"}},
    {"oid": 6, "type": "temperatureProbe", "parents": [2], "fields": {"name": "Outlet"}},
    {"oid": 7, "type": "fanProbe", "parents": [2], "fields": {"name": "Fan A"}},
    {"oid": 8, "type": "fanProbe", "parents": [2], "fields": {"name": "Fan B"}})";

TEST_F(Tables, ShowReferencesByClassAndIdentifyingKeys) {
  EXPECT_EQ(List("VORN_FanSensor", kProbes),
            "\n"
            "Antecedent        Dependent\n"
            "CIM_Tachometer 0  CIM_Fan 0\n"
            "CIM_Tachometer 1  CIM_Fan 1\n");
  EXPECT_EQ(List("CIM_PackageTempSensor", kProbes),
            "\n"
            "Antecedent\n"
            "CIM_TemperatureSensor 0\n"
            "CIM_TemperatureSensor 1\n"
            "\n"
            "The same in all of them:\n"
            "  Dependent  VORN_Chassis The Box\n");
  EXPECT_EQ(List("VORN_FanSensor", kProbes, {"--full"}),
            "\n"
            "  Antecedent  CIM_Tachometer 0\n"
            "  Dependent   CIM_Fan 0\n"
            "\n"
            "  Antecedent  CIM_Tachometer 1\n"
            "  Dependent   CIM_Fan 1\n");
}

// The provider puts names into references as they are, quotes and all.
TEST_F(Tables, ShowAReferenceThatIsNoPathAsItIs) {
  SetEnvironment("COLUMNS", "200");
  EXPECT_EQ(List("CIM_PackageTempSensor", R"(
      {"oid": 4, "type": "chassisDescription", "parents": [2], "fields": {"name": "\"Box\""}},
      {"oid": 5, "type": "temperatureProbe", "parents": [2], "fields": {"name": "Inlet"}})"),
            "\n"
            "  Antecedent  CIM_TemperatureSensor 0\n"
            "  Dependent   \\\\.\\root\\cimv2\\vorn:VORN_Chassis.CreationClassName="
            "\"VORN_Chassis\",Tag=\"\"Box\"\"\n");
}

TEST_F(Tables, ShowBareNamesAsTheyAreAndASystemByTheOnlyKeyThatTellsIt) {
  SetEnvironment("COLUMNS", "300");
  const std::string block = List("VORN_AssociatedSystemPCData", R"(
      {"oid": 5, "type": "powerConsumption", "parents": [2], "fields": {"name": "System Power"}})");
  EXPECT_NE(block.find("\n  Antecedent  System Power\n  Dependent   VORN_SYSTEM "),
            std::string::npos)
      << block;
  EXPECT_EQ(block.find("CVORN_System\n"), std::string::npos) << block;
}

TEST_F(Tables, GiveWayToBlocksWhereReferencesWouldBeCut) {
  SetEnvironment("COLUMNS", "26");
  EXPECT_NE(List("VORN_FanSensor", kProbes)
                .find("\n"
                      "  Antecedent  CIM_Tachometer\n"
                      "              0\n"),
            std::string::npos);
  SetEnvironment("COLUMNS", "27");
  EXPECT_TRUE(List("VORN_FanSensor", kProbes).starts_with("\nAntecedent        Dependent\n"));
}

TEST_F(Tables, OfReferencesLeaveJsonAndCsvAsTheyAre) {
  const std::string file = Write("store.json", StoreFile(kProbes));
  const std::string path =
      R"(\\\\.\\root\\cimv2\\vorn:CIM_Tachometer.CreationClassName=\"CIM_Tachometer\")";
  const ToolRun json = Run({"list", "VORN_FanSensor", "--store", file, "--format", "json"});
  EXPECT_NE(json.output.find("\"Antecedent\": \"" + path), std::string::npos) << json.output;
  const ToolRun csv = Run({"list", "VORN_FanSensor", "--store", file, "--format", "csv"});
  EXPECT_NE(csv.output.find(R"("\\.\root\cimv2\vorn:CIM_Tachometer.CreationClassName=)"),
            std::string::npos)
      << csv.output;
}

TEST_F(Tables, SayThatAClassHasNoInstances) {
  const std::string file = Write("store.json", StoreFile(""));
  const ToolRun run = Run({"list", "CIM_PhysicalMemory", "--store", file});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(Joined(run.output), "CIM_PhysicalMemory: no instances, from the store file " + file);
}

TEST_F(Tables, OfClassesHaveOneLineForEach) {
  const std::string file = Write("store.json", StoreFile(kMemory));
  const ToolRun run = Run({"classes", "--store", file});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "");
  EXPECT_NE(run.output.find("store.json\n\nClass "), std::string::npos) << run.output;
  std::istringstream lines(run.output);
  std::vector<std::string> memory;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string name, instances, status;
    words >> name >> instances >> status;
    if (name == "CIM_PhysicalMemory") memory = {instances, status};
  }
  EXPECT_EQ(memory, (std::vector<std::string>{"3", "Error"}));
}

TEST_F(Tables, HaveNoColourInAFile) {
  SetEnvironment("TERM", "xterm-256color");
  EXPECT_EQ(Run({"list", "CIM_PhysicalMemory"}).output.find('\x1B'), std::string::npos);
  EXPECT_EQ(Run({"get", "CIM_Processor.DeviceID=\"0\""}).output.find('\x1B'), std::string::npos);
  EXPECT_EQ(Run({"classes"}).output.find('\x1B'), std::string::npos);
}

}  // namespace
}  // namespace tqcim::testing
