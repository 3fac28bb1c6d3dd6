#include "tests/reference/sample_server.h"

#include <gtest/gtest.h>

#include "store/store_control.h"

namespace tqcim::testing {

SampleServer::SampleServer() {
  EXPECT_EQ(0, TQStoreOpen("sample", nullptr, 0));
  host_ = host::ManagementHost::Open();
  for (const host::Instance& system : InstancesOf("VORN_System")) {
    computerName_ = std::get<std::string>(system.Find("Name")->value);
  }
}

std::vector<std::string> SampleServer::ClassNames() {
  std::vector<std::string> names;
  const host::Schema schema = host::Schema::Embedded();
  for (const host::ClassDefinition& definition : schema.Classes()) {
    if (!definition.provider.empty()) names.emplace_back(definition.name);
  }
  return names;
}

std::vector<host::Instance> SampleServer::InstancesOf(const std::string& className) {
  std::vector<host::Instance> instances;
  const host::Outcome outcome = host_->Enumerate(
      className, [&](host::Instance instance) { instances.push_back(std::move(instance)); });
  EXPECT_TRUE(outcome.ok()) << className << ": " << outcome.Text();
  return instances;
}

std::string SampleServer::WithoutComputerName(std::string json) {
  const std::string name = '"' + computerName_;
  constexpr std::string_view kReplacement = "\"SERVER";
  for (size_t at = json.find(name); at != std::string::npos;
       at = json.find(name, at + kReplacement.size())) {
    const char next = json[at + name.size()];
    if (next == '"' || next == '\\') json.replace(at, name.size(), kReplacement);
  }
  return json;
}

}  // namespace tqcim::testing
