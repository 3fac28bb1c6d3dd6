// Every class of the schema through the host: the provider's puts fit the declared types, and its
// instances have their keys.
#include <gtest/gtest.h>

#include <set>

#include "host/management_host.h"

namespace tqcim::host {
namespace {

class ProviderClass : public ::testing::TestWithParam<std::string> {
 protected:
  static void SetUpTestSuite() { host_ = ManagementHost::Open(); }
  static void TearDownTestSuite() { host_.reset(); }

  std::vector<Instance> Enumerate() {
    std::vector<Instance> instances;
    const Outcome outcome = host_->Enumerate(
        GetParam(), [&](Instance instance) { instances.push_back(std::move(instance)); });
    EXPECT_TRUE(outcome.ok()) << outcome.Text();
    return instances;
  }

  inline static std::unique_ptr<ManagementHost> host_;
};

TEST_P(ProviderClass, PutsNothingThatTheSchemaRefuses) {
  const std::vector<Instance> instances = Enumerate();
  EXPECT_FALSE(instances.empty()) << "the embedded sample has no instance of the class";
  for (const Instance& instance : instances) {
    EXPECT_EQ(std::vector<std::string>(), instance.refused_puts);
  }
}

TEST_P(ProviderClass, PutsEveryKeyAndNoTwoInstancesShareAPath) {
  std::set<std::string> paths;
  for (const Instance& instance : Enumerate()) {
    for (const Property& property : instance.properties) {
      EXPECT_TRUE(!property.key || property.put) << property.name;
    }
    EXPECT_FALSE(instance.Path().empty());
    EXPECT_TRUE(paths.insert(instance.Path()).second) << instance.Path();
  }
}

TEST(EveryObject, IsGotAsADiscreteSensorWhateverItsType) {
  const auto host = ManagementHost::Open();
  int instances = 0;
  for (int oid = 1; oid <= 160; ++oid) {
    const std::string path = "CIM_DiscreteSensor.DeviceID=\"" + std::to_string(oid) + "\"";
    EXPECT_TRUE(host->Get(path, [&](const Instance&) { ++instances; }).ok()) << path;
  }
  EXPECT_EQ(80, instances) << "the objects of the embedded sample";
}

std::vector<std::string> ServedClasses() {
  std::vector<std::string> names;
  const Schema schema = Schema::Embedded();
  for (const ClassDefinition& definition : schema.Classes()) {
    if (!definition.provider.empty()) names.emplace_back(definition.name);
  }
  return names;
}

INSTANTIATE_TEST_SUITE_P(Schema, ProviderClass, ::testing::ValuesIn(ServedClasses()),
                         [](const auto& parameter) { return parameter.param; });

}  // namespace
}  // namespace tqcim::host
