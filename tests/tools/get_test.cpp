// The paths that tqcim get takes.
#include <gtest/gtest.h>

#include "tests/tools/store_files.h"
#include "tests/tools/tool_test.h"

namespace tqcim::testing {
namespace {

class Get : public ToolTest {
 protected:
  void SetUp() override {
    ToolTest::SetUp();
    SetEnvironment("TQCIM_SOURCE",
                   ("store-file:" + Write("store.json", StoreFile(kMemory))).c_str());
  }

  /// The serial numbers of the memory modules that a path names, out of the JSON.
  std::string SerialNumbers(const std::string& path) const {
    const ToolRun run = Run({"get", path, "--format", "json"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.error, "");
    const std::string label = "\"SerialNumber\": ";
    std::string numbers;
    for (size_t at = run.output.find(label); at != std::string::npos;
         at = run.output.find(label, at + 1)) {
      const size_t begin = at + label.size();
      numbers += run.output.substr(begin, run.output.find_first_of(",\n", begin) - begin);
    }
    return numbers;
  }
};

TEST_F(Get, ShowsTheInstanceThatThePathNames) {
  EXPECT_EQ(SerialNumbers("CIM_PhysicalMemory.Tag=\"0\""), "\"0001\"");
  EXPECT_EQ(SerialNumbers("CIM_PhysicalMemory.Tag=\"2\""), "\"0003\"");
}

TEST_F(Get, TakesServerAndNamespaceInFront) {
  EXPECT_EQ(SerialNumbers("\\\\.\\root\\cimv2\\vorn:CIM_PhysicalMemory.Tag=\"1\""), "\"0002\"");
  EXPECT_EQ(SerialNumbers("//./ROOT/CIMV2/VORN:CIM_PhysicalMemory.Tag=\"1\""), "\"0002\"");
}

TEST_F(Get, TakesSingleQuotesAndBlanksAndAnyCase) {
  EXPECT_EQ(SerialNumbers("cim_physicalMEMORY.tag='1'"), "\"0002\"");
  EXPECT_EQ(SerialNumbers("CIM_PhysicalMemory.Tag = \"1\""), "\"0002\"");
}

TEST_F(Get, TakesTheKeysInAnyOrder) {
  EXPECT_EQ(SerialNumbers("CIM_PhysicalMemory.CreationClassName=\"CIM_PhysicalMemory\",Tag=\"1\""),
            "\"0002\"");
}

TEST_F(Get, TakesThePathsThatItPrints) {
  const std::string full = Run({"list", "CIM_PhysicalMemory", "--full"}).output;
  const std::string path = "CIM_PhysicalMemory.Tag=\"2\",CreationClassName=\"CIM_PhysicalMemory\"";
  ASSERT_NE(full.find("\n" + path + "\n"), std::string::npos) << full;
  EXPECT_EQ(SerialNumbers(path), "\"0003\"");
}

TEST_F(Get, ShowsABlockUnlessToldOtherwise) {
  const ToolRun run = Run({"get", "CIM_PhysicalMemory.Tag=\"2\""});
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(
      run.output.find("\n"
                      "CIM_PhysicalMemory.Tag=\"2\",CreationClassName=\"CIM_PhysicalMemory\"\n"
                      "  Tag                2\n"
                      "  CreationClassName  CIM_PhysicalMemory\n"
                      "  Status             Error\n"),
      std::string::npos)
      << run.output;
}

}  // namespace
}  // namespace tqcim::testing
