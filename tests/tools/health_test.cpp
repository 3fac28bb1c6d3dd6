// What `health` finds, and how it tells it.
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <regex>
#include <sstream>

#include "tests/tools/tool_test.h"

namespace tqcim::testing {
namespace {

using Json = nlohmann::ordered_json;

/// A memory module of that name and status.
std::string Memory(int oid, const std::string& name, const std::string& status) {
  return R"({"oid": )" + std::to_string(oid) + R"(, "type": "memoryDevice", "status": ")" + status +
         R"(", "parents": [2], "fields": {"name": ")" + name + R"("}})";
}

std::string Record(long long time, const std::string& severity, const std::string& text) {
  return R"({"time": )" + std::to_string(time) + R"(, "severity": ")" + severity +
         R"(", "text": ")" + text + R"("})";
}

/// The ESM log (kind 1) or the POST log (kind 2).
std::string Log(int oid, int kind, const std::vector<std::string>& records) {
  std::string log = R"({"oid": )" + std::to_string(oid) +
                    R"(, "type": "eventLog", "status": "ok", "parents": [2], "fields": {"kind": )" +
                    std::to_string(kind) + R"(}, "records": [)";
  for (const std::string& record : records) log += (&record == records.data() ? "" : ",") + record;
  return log + "]}";
}

class Health : public ToolTest {
 protected:
  /// A system and its chassis "Box" with these statuses, and these objects.
  std::string Machine(const std::string& system, const std::string& chassis,
                      const std::vector<std::string>& objects) const {
    std::string file =
        R"({"format": "tqcim-store", "version": 1, "objects": [
            {"oid": 1, "type": "system", "status": ")" +
        system + R"("},
            {"oid": 2, "type": "chassis", "status": ")" +
        chassis + R"(", "parents": [1]},
            {"oid": 3, "type": "chassisDescription", "parents": [2], "fields": {"name": "Box"}})";
    for (const std::string& object : objects) file += ",\n" + object;
    return Write("store.json", file + "]}");
  }

  /// The output without its source, which is another one in every run; times become TIME.
  std::string Tell(int status, const std::string& file) const {
    const ToolRun run = Run({"health", "--store", file});
    EXPECT_EQ(run.status, status) << run.output;
    EXPECT_EQ(run.error, "");
    std::string text = run.output;
    const std::string source = ", from the store file " + file + "\n";
    const size_t at = text.find(source);
    EXPECT_EQ(at + source.size(), text.find('\n') + 1) << text;
    text.replace(at, source.size(), "\n");
    return std::regex_replace(text, std::regex(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d)"), "TIME");
  }

  Json TellJson(int status, const std::string& file) const {
    const ToolRun run = Run({"health", "--store", file, "--format", "json"});
    EXPECT_EQ(run.status, status);
    EXPECT_EQ(run.error, "");
    return Json::parse(run.output);
  }
};

TEST_F(Health, OfAFineSystemIsOneLineAndCounts) {
  EXPECT_EQ(Tell(0, Machine("ok", "ok",
                            {Memory(5, "A1", "ok"), Memory(6, "A2", "ok"),
                             Log(7, 1, {Record(1, "critical", "A1: was hot")})})),
            "OK: system status OK; nothing wrong of 2 checked\n"
            "2 OK; log records: 1\n");
}

TEST_F(Health, TakesUnknownAndOtherForNoFaultAndCountsThem) {
  EXPECT_EQ(Tell(0, Machine("ok", "ok",
                            {Memory(5, "A1", "ok"), Memory(6, "A2", "unknown"),
                             Memory(7, "A3", "other")})),
            "OK: system status OK; nothing wrong of 3 checked\n"
            "1 OK, 2 cannot be told; log records: 0\n");
}

TEST_F(Health, CannotBeToldWhereNothingHasAStatusThatSaysSomething) {
  const std::string file = Machine("unknown", "other", {Memory(5, "A1", "unknown")});
  const ToolRun run = Run({"health", "--store", file});
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.output, "UNKNOWN: nothing from the store file " + file +
                            " has a status that tells how it is\n");
  EXPECT_EQ(run.error, "");
}

TEST_F(Health, PutsTheWorstFirst) {
  EXPECT_EQ(Tell(2, Machine("critical", "critical",
                            {Memory(5, "A1", "nonCritical"), Memory(6, "A2", "critical"),
                             Memory(7, "A3", "nonRecoverable"), Memory(8, "A4", "ok")})),
            "CRITICAL: system status Error; 2 critical, 1 degraded of 4 checked\n"
            "\n"
            "CIM_PhysicalMemory A3: NonRecover\n"
            "\n"
            "CIM_PhysicalMemory A2: Error\n"
            "\n"
            "CIM_PhysicalMemory A1: Stressed\n"
            "\n"
            "1 OK; log records: 0\n");
}

TEST_F(Health, HasOneExitStatusForEachVerdict) {
  const std::pair<const char*, int> statuses[] = {
      {"ok", 0}, {"nonCritical", 1}, {"critical", 2}, {"nonRecoverable", 2}};
  for (const auto& [status, exit_status] : statuses) {
    const std::string file = Machine("ok", "ok", {Memory(5, "A1", status)});
    EXPECT_EQ(Run({"health", "--store", file}).status, exit_status) << status;
    EXPECT_EQ(Run({"health", "--store", file, "--format", "json"}).status, exit_status) << status;
  }
}

TEST_F(Health, CountsTheSystemsOwnStatusWhereNoPartShowsTheFault) {
  const Json system = TellJson(2, Machine("critical", "ok", {}));
  ASSERT_EQ(system.at("findings").size(), 1U);
  EXPECT_EQ(system.at("findings")[0].at("class"), "VORN_System");
  EXPECT_EQ(system.at("findings")[0].at("status"), "Error");
  EXPECT_EQ(Tell(1, Machine("ok", "nonCritical", {})),
            "WARNING: system status OK; 1 degraded of 1 checked\n"
            "\n"
            "VORN_Chassis Box: Stressed\n"
            "\n"
            "0 OK; log records: 0\n");
}

TEST_F(Health, TellsAStatusThatIsWorseThanAllItsParts) {
  const Json told =
      TellJson(2, Machine("critical", "nonCritical", {Memory(5, "A", "nonCritical")}));
  ASSERT_EQ(told.at("findings").size(), 2U);
  EXPECT_EQ(told.at("findings")[0].at("class"), "VORN_System");
  EXPECT_EQ(told.at("findings")[1].at("class"), "CIM_PhysicalMemory");
}

// The chassis sums up the processors that hang below itself, too; only those below a socket are
// shown by a class.
TEST_F(Health, TellsARollUpOfTheChassisThatNoPartExplains) {
  EXPECT_EQ(
      Tell(2, Machine("ok", "ok",
                      {R"({"oid": 5, "type": "processor", "status": "critical", "parents": [2]})",
                       R"({"oid": 6, "type": "eventLog", "status": "nonCritical", "parents": [2],
                           "fields": {"kind": 1}})"})),
      "CRITICAL: system status OK; 1 critical, 1 degraded of 2 checked\n"
      "\n"
      "VORN_Chassis Box: ProcStatus Error\n"
      "\n"
      "VORN_Chassis Box: EsmLogStatus Stressed\n"
      "\n"
      "0 OK; log records: 0\n");
}

TEST_F(Health, ShowsAReadingAgainstTheThresholdsThatItHasCrossed) {
  const auto told = Tell(2, Machine("ok", "ok",
                                    {R"(
      {"oid": 5, "type": "temperatureProbe", "status": "critical", "parents": [2],
       "fields": {"name": "Inlet", "currentReading": 750, "upperFatal": 850, "upperCritical": 800,
                  "upperNonCritical": 750, "lowerNonCritical": 80, "lowerCritical": 30,
                  "lowerFatal": -20}})",
                                     R"(
      {"oid": 6, "type": "fanProbe", "status": "nonCritical", "parents": [2],
       "fields": {"name": "Fan", "currentReading": 2160, "lowerNonCritical": 2160,
                  "lowerCritical": 1320, "upperCritical": 9000}})",
                                     R"(
      {"oid": 7, "type": "voltageProbe", "status": "nonCritical", "parents": [2],
       "fields": {"name": "5 V", "currentReading": 5000, "upperCritical": 5500,
                  "lowerCritical": 4500}})",
                                     R"(
      {"oid": 8, "type": "currentProbe", "status": "nonCritical", "parents": [2],
       "fields": {"name": "Bare", "currentReading": -3}})"}));
  EXPECT_EQ(told,
            "CRITICAL: system status OK; 1 critical, 3 degraded of 4 checked\n"
            "\n"
            "CIM_TemperatureSensor Inlet: Error\n"
            "  reading 750; warning at or above 750, critical at or above 800, fatal at or\n"
            "    above 850\n"
            "\n"
            "CIM_VoltageSensor 5 V: Stressed\n"
            "  reading 5000; critical at or above 5500; critical at or below 4500\n"
            "\n"
            "CIM_CurrentSensor Bare: Stressed\n"
            "  reading -3\n"
            "\n"
            "CIM_Tachometer Fan: Stressed\n"
            "  reading 2160; warning at or below 2160, critical at or below 1320\n"
            "\n"
            "0 OK; log records: 0\n");
}

TEST_F(Health, TellsAProbeOnceThatSeveralClassesShow) {
  // A discrete voltage probe, a probe of power consumption and a fan probe.
  const auto told = Tell(2, Machine("ok", "ok",
                                    {R"(
      {"oid": 5, "type": "voltageProbe", "status": "critical", "parents": [2],
       "fields": {"name": "Power Good", "subtype": 17, "currentReading": 2}})",
                                     R"(
      {"oid": 6, "type": "currentProbe", "status": "critical", "parents": [2],
       "fields": {"name": "System Power", "subtype": 24, "currentReading": 9}})",
                                     R"(
      {"oid": 7, "type": "fanProbe", "status": "critical", "parents": [2],
       "fields": {"name": "Fan", "currentReading": 0}})"}));
  EXPECT_EQ(told,
            "CRITICAL: system status OK; 3 critical of 3 checked\n"
            "\n"
            "CIM_DiscreteSensor Power Good: Error\n"
            "  reading Bad\n"
            "\n"
            "CIM_CurrentSensor System Power: Error\n"
            "  reading 9\n"
            "\n"
            "CIM_Tachometer Fan: Error\n"
            "  reading 0\n"
            "\n"
            "0 OK; log records: 0\n");
}

TEST_F(Health, KeepsAProbeThatSharesItsNameWithADiscreteOne) {
  const Json told = TellJson(2, Machine("ok", "ok",
                                        {R"(
      {"oid": 5, "type": "voltageProbe", "status": "critical", "parents": [2],
       "fields": {"name": "VCORE", "subtype": 17, "currentReading": 2}})",
                                         R"(
      {"oid": 6, "type": "voltageProbe", "status": "nonCritical", "parents": [2],
       "fields": {"name": "VCORE", "currentReading": 900}})"}));
  EXPECT_EQ(told.at("checked"), 2);
  ASSERT_EQ(told.at("findings").size(), 2U);
  EXPECT_EQ(told.at("findings")[0].at("reading"), "Bad");
  EXPECT_EQ(told.at("findings")[1].at("reading"), 900);
}

TEST_F(Health, TellsWhatASupplyReportsAndTheStateOfItsGroupOnce) {
  // The second chassis makes the group appear twice.
  const auto told = Tell(1, Machine("nonCritical", "ok",
                                    {R"(
      {"oid": 4, "type": "chassis", "status": "ok", "parents": [1]})",
                                     R"(
      {"oid": 5, "type": "redundancyGroup", "status": "nonCritical", "parents": [2],
       "fields": {"name": "Supplies", "state": 6}})",
                                     R"(
      {"oid": 6, "type": "powerSupply", "status": "nonCritical", "parents": [2, 5],
       "fields": {"name": "PSU 1", "state": 8}})"}));
  EXPECT_EQ(told,
            "WARNING: system status Stressed; 2 degraded of 2 checked\n"
            "\n"
            "CIM_PowerSupply PSU 1: Stressed\n"
            "  error: PS AC lost\n"
            "\n"
            "VORN_PSRedundancyGroup Supplies: Redundancy Lost\n"
            "\n"
            "0 OK; log records: 0\n");
}

TEST_F(Health, TellsEveryStateOfGroupsThatHaveOneName) {
  const auto group = [](int oid, int state) {
    const std::string id = std::to_string(oid);
    return R"({"oid": )" + id + R"(, "type": "redundancyGroup", "status": "ok", "parents": [2],
              "fields": {"name": "Supplies", "state": )" +
           std::to_string(state) + R"(}}, {"oid": 1)" + id +
           R"(, "type": "powerSupply", "status": "ok", "parents": [)" + id + "]}";
  };
  EXPECT_EQ(Tell(1, Machine("ok", "ok", {group(20, 4), group(21, 6), group(22, 6)})),
            "WARNING: system status OK; 1 degraded of 2 checked\n"
            "\n"
            "VORN_PSRedundancyGroup Supplies: Redundancy Lost\n"
            "\n"
            "1 OK; log records: 0\n");
}

TEST_F(Health, APartWithoutANameHasNoRecordsByItsNumber) {
  EXPECT_EQ(Tell(1, Machine("ok", "ok",
                            {R"({"oid": 5, "type": "memoryDevice", "status": "nonCritical",
                                 "parents": [2]})",
                             Log(6, 1, {Record(1700000000, "critical", "Drive 0 failed")})})),
            "WARNING: system status OK; 1 degraded of 1 checked\n"
            "\n"
            "CIM_PhysicalMemory 0: Stressed\n"
            "\n"
            "The newest log records of other faults:\n"
            "  TIME Error: Drive 0 failed\n"
            "\n"
            "0 OK; log records: 1\n");
}

TEST_F(Health, AChassisWithoutANameIsToldByItsClass) {
  std::string file = Machine("ok", "nonCritical", {});
  std::string text = ContentsOf(file);
  text.replace(text.find("Box"), 3, "");
  EXPECT_NE(Tell(1, Write("nameless.json", text)).find("\nVORN_Chassis: Stressed\n"),
            std::string::npos);
}

TEST_F(Health, ShowsTheTwoNewestRecordsThatNameAFindingAndTheNewestOtherFaults) {
  const std::string file = Machine(
      "ok", "ok",
      {Memory(5, "DIMM 1", "nonCritical"),
       Log(6, 1,
           {Record(1700000000, "nonCritical", "DIMM 1: oldest"),
            Record(1700000010, "nonCritical", "DIMM 1: second"),
            Record(1700000020, "critical", "DIMM 12: another one"),
            Record(1700000030, "ok", "Fan 1: fine again"), Record(0, "critical", "No clock"),
            Record(1700000040, "nonCritical", "Fan 1: slow"),
            Record(1700000050, "other", "Somebody logged in"),
            Record(1700000060, "ok", "Slot of DIMM 1 was opened")}),
       Log(7, 2, {Record(1700000025, "nonRecoverable", "Self-test failed")})});
  EXPECT_EQ(Tell(1, file),
            "WARNING: system status OK; 1 degraded of 1 checked\n"
            "\n"
            "CIM_PhysicalMemory DIMM 1: Stressed\n"
            "  TIME OK: Slot of DIMM 1 was opened\n"
            "  TIME Stressed: DIMM 1: second\n"
            "\n"
            "The newest log records of other faults:\n"
            "  TIME Stressed: Fan 1: slow\n"
            "  (without a time)    Error: No clock\n"
            "  TIME NonRecover: Self-test failed\n"
            "\n"
            "0 OK; log records: 9\n");
}

TEST_F(Health, ShowsNoMoreOfALongLogThanOfAShortOne) {
  std::vector<std::string> records;
  for (int i = 0; i < 2000; ++i) {
    records.push_back(Record(1700000000 + i, "critical", "A1 " + std::to_string(i)));
    records.push_back(Record(1700000000 + i, "critical", "B " + std::to_string(i)));
  }
  EXPECT_EQ(Tell(1, Machine("ok", "ok", {Memory(5, "A1", "nonCritical"), Log(6, 1, records)})),
            "WARNING: system status OK; 1 degraded of 1 checked\n"
            "\n"
            "CIM_PhysicalMemory A1: Stressed\n"
            "  TIME Error: A1 1999\n"
            "  TIME Error: A1 1998\n"
            "\n"
            "The newest log records of other faults:\n"
            "  TIME Error: B 1999\n"
            "  TIME Error: B 1998\n"
            "  TIME Error: B 1997\n"
            "\n"
            "0 OK; log records: 4000\n");
}

TEST_F(Health, OfTheSampleFitsOneScreen) {
  const ToolRun run = Run({"health"});
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(
      run.output.starts_with("WARNING: system status Stressed; 3 degraded of 45 checked, "
                             "from the embedded sample, an invented server\n"))
      << run.output;
  std::istringstream lines(run.output.substr(run.output.find('\n') + 1));
  size_t count = 2;  // The first line takes two.
  for (std::string line; std::getline(lines, line); ++count) EXPECT_LE(line.size(), 80U) << line;
  EXPECT_LE(count, 24U);
  for (const char* name : {"DIMM_B2", "System Fan 4", "Fan Redundancy"}) {
    EXPECT_NE(run.output.find(std::string(" ") + name + ": "), std::string::npos) << name;
  }
}

TEST_F(Health, NeverSendsATerminalWhatItObeys) {
  const std::string told = Tell(1, Machine("ok", "ok",
                                           {Memory(5, R"(A\u001B[2J)", "nonCritical"),
                                            Memory(7, R"(B\u202EC)", "nonCritical"),
                                            Log(6, 1, {Record(0, "critical", R"(B\u001B[2J)")})}));
  EXPECT_EQ(told.find('\x1B'), std::string::npos);
  EXPECT_NE(told.find(R"(CIM_PhysicalMemory A\x1B[2J: Stressed)"), std::string::npos) << told;
  EXPECT_NE(told.find(R"(CIM_PhysicalMemory B\u202EC: Stressed)"), std::string::npos) << told;
  EXPECT_NE(told.find(R"(Error: B\x1B[2J)"), std::string::npos) << told;
}

TEST_F(Health, HasJsonOfFixedShape) {
  const std::string file =
      Machine("nonCritical", "nonCritical",
              {Memory(5, "A1", "nonCritical"), Memory(6, "A2", "ok"), Memory(7, "A3", "unknown"),
               Log(8, 1, {Record(0, "critical", "A1: hot"), Record(0, "critical", "Elsewhere")})});
  const ToolRun run = Run({"health", "--store", file, "--format", "json"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.error, "");
  EXPECT_EQ(run.output,
            "{\n"
            "  \"verdict\": \"WARNING\",\n"
            "  \"status\": \"Stressed\",\n"
            "  \"source\": " +
                Json("the store file " + file).dump() +
                ",\n"
                "  \"checked\": 3,\n"
                "  \"ok\": 1,\n"
                "  \"untold\": 1,\n"
                "  \"logRecords\": 2,\n"
                "  \"findings\": [\n"
                "    {\n"
                "      \"class\": \"CIM_PhysicalMemory\",\n"
                "      \"path\": \"CIM_PhysicalMemory.Tag=\\\"0\\\",CreationClassName="
                "\\\"CIM_PhysicalMemory\\\"\",\n"
                "      \"name\": \"A1\",\n"
                "      \"verdict\": \"WARNING\",\n"
                "      \"property\": \"Status\",\n"
                "      \"status\": \"Stressed\",\n"
                "      \"reading\": null,\n"
                "      \"unit\": null,\n"
                "      \"thresholds\": null,\n"
                "      \"error\": null,\n"
                "      \"records\": [\n"
                "        {\n"
                "          \"class\": \"VORN_EsmLog\",\n"
                "          \"path\": \"VORN_EsmLog.RecordNumber=0\",\n"
                "          \"time\": null,\n"
                "          \"status\": \"Error\",\n"
                "          \"text\": \"A1: hot\"\n"
                "        }\n"
                "      ]\n"
                "    }\n"
                "  ],\n"
                "  \"records\": [\n"
                "    {\n"
                "      \"class\": \"VORN_EsmLog\",\n"
                "      \"path\": \"VORN_EsmLog.RecordNumber=1\",\n"
                "      \"time\": null,\n"
                "      \"status\": \"Error\",\n"
                "      \"text\": \"Elsewhere\"\n"
                "    }\n"
                "  ]\n"
                "}\n");
}

TEST_F(Health, HasReadingsAndThresholdsInJsonAsTheClassHasThem) {
  const Json told = TellJson(1, Machine("ok", "ok", {R"(
      {"oid": 5, "type": "fanProbe", "status": "nonCritical", "parents": [2],
       "fields": {"name": "Fan", "currentReading": 2040, "lowerNonCritical": 2160,
                  "lowerCritical": 1320}})"}));
  const Json& finding = told.at("findings").at(0);
  EXPECT_EQ(finding.at("reading"), 2040);
  EXPECT_EQ(finding.at("thresholds").dump(),
            R"({"LowerThresholdNonCritical":2160,"LowerThresholdCritical":1320,)"
            R"("LowerThresholdFatal":0,"UpperThresholdNonCritical":0,)"
            R"("UpperThresholdCritical":0,"UpperThresholdFatal":0})");
}

}  // namespace
}  // namespace tqcim::testing
