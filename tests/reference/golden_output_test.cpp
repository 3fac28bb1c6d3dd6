// What the classes show of the embedded sample, byte for byte, on every platform.
#include <gtest/gtest.h>

#include "tests/reference/reference_file.h"
#include "tests/reference/sample_server.h"
#include "tests/support/time_zone.h"
#include "tools/formats.h"

namespace tqcim::testing {
namespace {

class GoldenOutput : public ::testing::TestWithParam<std::string> {
 protected:
  const TimeZone utc_{"UTC0"};
  SampleServer server_;
};

TEST_P(GoldenOutput, OfTheSampleAsJson) {
  const std::string json = tools::JsonText(server_.InstancesOf(GetParam()));
  ExpectReferenceFile("tests/reference/golden/" + GetParam() + ".json",
                      server_.WithoutComputerName(json));
}

INSTANTIATE_TEST_SUITE_P(Schema, GoldenOutput, ::testing::ValuesIn(SampleServer::ClassNames()),
                         [](const auto& parameter) { return parameter.param; });

}  // namespace
}  // namespace tqcim::testing
