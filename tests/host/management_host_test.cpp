// The host asks the provider and hands out plain values.
#include "host/management_host.h"

#include <atomic>
#include <stdexcept>
#include <thread>

#include "tests/host/fake_host.h"

namespace tqcim::host {
namespace {

using Kind = HostError::Kind;

class ManagementHostTest : public FakeProviderTest {
 protected:
  struct Answer {
    Outcome outcome;
    std::vector<std::string> paths;
  };
  Answer Enumerate(std::string_view class_name) {
    Answer answer;
    answer.outcome = host_->Enumerate(
        class_name, [&](const Instance& instance) { answer.paths.push_back(instance.Path()); });
    return answer;
  }
  std::string NameGot(std::string_view path) {
    std::string name;
    EXPECT_TRUE(host_
                    ->Get(path,
                          [&](const Instance& instance) {
                            name = std::get<std::string>(instance.Find("Name")->value);
                          })
                    .ok());
    return name;
  }
  HostError ErrorOfGet(std::string_view path) {
    try {
      host_->Get(path, [](const Instance&) {});
    } catch (const HostError& error) {
      return error;
    }
    ADD_FAILURE() << path << " was taken";
    return HostError(Kind::kPlatform, "");
  }

  std::unique_ptr<ManagementHost> host_ = Open();
};

TEST_F(ManagementHostTest, NamesTheServedClassesInTheSchemasOrder) {
  EXPECT_EQ((std::vector<std::string>{"Fake_Two", "Fake_Fails", "Fake_FinalFailure", "Fake_Silent",
                                      "Fake_KeepsSink", "Fake_RefusedPuts", "Fake_Many"}),
            host_->ClassNames());
}

TEST_F(ManagementHostTest, EnumeratesAClassInAnyCase) {
  for (const char* name : {"Fake_Two", "FAKE_TWO"}) {
    const Answer answer = Enumerate(name);
    EXPECT_EQ(0, answer.outcome.result);
    EXPECT_EQ((std::vector<std::string>{"Fake_Two.Name=\"0\"", "Fake_Two.Name=\"1\""}),
              answer.paths);
  }
}

TEST_F(ManagementHostTest, InstancesCarryEveryDeclaredProperty) {
  std::vector<Instance> instances;
  host_->Enumerate("Fake_Two", [&](Instance instance) { instances.push_back(instance); });
  host_.reset();
  ASSERT_EQ(2u, instances.size());
  const Instance& instance = instances[1];
  EXPECT_EQ("Fake_Two", instance.definition->name);
  ASSERT_EQ(2u, instance.properties.size());
  EXPECT_EQ("Name", instance.properties[0].name);
  EXPECT_EQ(CimType::kString, instance.properties[0].type);
  EXPECT_TRUE(instance.properties[0].key);
  EXPECT_TRUE(instance.properties[0].put);
  EXPECT_EQ(Value("1"), instance.properties[0].value);
  EXPECT_EQ("Number", instance.properties[1].name);
  EXPECT_FALSE(instance.properties[1].key);
  EXPECT_FALSE(instance.properties[1].put);
  EXPECT_EQ(Value(), instance.properties[1].value);
  EXPECT_EQ(&instance.properties[1], instance.Find("nUMBER"));
  EXPECT_EQ(nullptr, instance.Find("Numbe"));
}

TEST_F(ManagementHostTest, TellsAFailureAfterTheInstancesThatCameBeforeIt) {
  const Answer answer = Enumerate("Fake_Fails");
  EXPECT_EQ(static_cast<int32_t>(0x80041002), answer.outcome.result);
  EXPECT_FALSE(answer.outcome.ok());
  EXPECT_EQ("WBEM_E_NOT_FOUND (0x80041002)", answer.outcome.Text());
  EXPECT_EQ(2u, answer.paths.size());
}

TEST_F(ManagementHostTest, TellsTheFinalStatus) {
  EXPECT_EQ(static_cast<int32_t>(0x80041001), Enumerate("Fake_FinalFailure").outcome.result);
}

TEST_F(ManagementHostTest, AProviderThatNeverEndsIsAFailureNotAHang) {
  const Answer answer = Enumerate("Fake_Silent");
  EXPECT_EQ(static_cast<int32_t>(0x80041004), answer.outcome.result);
}

TEST_F(ManagementHostTest, ASinkThatTheProviderKeepsReachesNobodyLater) {
  EXPECT_EQ(0, Enumerate("Fake_KeepsSink").outcome.result);
  host_.reset();
  EXPECT_NE(std::string::npos, Trace().find("late 1\n"));
}

TEST_F(ManagementHostTest, InstancesTellWhichPutsTheSchemaRefused) {
  std::vector<Instance> instances;
  host_->Enumerate("Fake_RefusedPuts", [&](Instance instance) { instances.push_back(instance); });
  ASSERT_EQ(1u, instances.size());
  EXPECT_EQ("Fake_RefusedPuts.Name=\"x\"", instances[0].Path());
  EXPECT_EQ((std::vector<std::string>{"Missing", "Number"}), instances[0].refused_puts);
}

TEST_F(ManagementHostTest, WhatTheCallbackThrowsStopsTheEnumeration) {
  int calls = 0;
  EXPECT_THROW(host_->Enumerate("Fake_Many",
                                [&](const Instance&) {
                                  if (++calls == 3) throw std::runtime_error("enough");
                                }),
               std::runtime_error);
  EXPECT_EQ(3, calls);
  EXPECT_EQ(1000u, Enumerate("Fake_Many").paths.size());
}

TEST_F(ManagementHostTest, GetsWhatAPathNames) {
  EXPECT_EQ("Fake_Two|Name|8|a", NameGot("Fake_Two.Name=\"a\""));
  EXPECT_EQ("Fake_Two|Name|8|a\"b\\c", NameGot("fake_two.Name='a\\\"b\\\\c'"));
  EXPECT_EQ("Fake_Two|name|8|x", NameGot("\\\\.\\ROOT\\cimv2\\vorn:FAKE_TWO.name=\"x\""));
  EXPECT_EQ("Fake_Two|Number|3|", NameGot("Fake_Two.Number=5"));
  EXPECT_EQ("Fake_Two||0|", NameGot("Fake_Two"));
  EXPECT_EQ("Fake_Two|Name|8|\xC3\xA9", NameGot("Fake_Two.Name=\"\xC3\xA9\""));
}

TEST_F(ManagementHostTest, UnknownClassesAreRefusedInASentence) {
  try {
    Enumerate("Fake_Nothing");
    ADD_FAILURE();
  } catch (const HostError& error) {
    EXPECT_EQ(Kind::kUnknownClass, error.kind());
    EXPECT_STREQ("there is no class Fake_Nothing to ask the provider for", error.what());
  }
  EXPECT_EQ(Kind::kUnknownClass, ErrorOfGet("Fake_Nothing.Name=\"x\"").kind());
  EXPECT_EQ(Kind::kUnknownClass, ErrorOfGet("Fake_Base.Name=\"x\"").kind());
}

TEST_F(ManagementHostTest, BadPathsAreRefusedWithTheirPlace) {
  const HostError error = ErrorOfGet("Fake_Two.Name=\"x");
  EXPECT_EQ(Kind::kBadPath, error.kind());
  EXPECT_STREQ("object path 'Fake_Two.Name=\"x', character 15: the quotes are not closed",
               error.what());
  EXPECT_STREQ("object path '', character 1: it is empty", ErrorOfGet("").what());
  EXPECT_STREQ("object path 'Fake_Two.\xC3\xA4\xC3\xA4='', character 13: the quotes are not closed",
               ErrorOfGet("Fake_Two.\xC3\xA4\xC3\xA4='").what());
  EXPECT_STREQ(
      "object path 'root\\cimv2:Fake_Two' leads out of the namespace root\\cimv2\\vorn of this "
      "computer",
      ErrorOfGet("root\\cimv2:Fake_Two").what());
  EXPECT_EQ(Kind::kBadPath, ErrorOfGet("\\\\elsewhere\\root\\cimv2\\vorn:Fake_Two").kind());
  EXPECT_STREQ("object path 'root\\cimv2\\vorn' names no class",
               ErrorOfGet("root\\cimv2\\vorn").what());
}

TEST_F(ManagementHostTest, AThreadOfASingleThreadedApartmentIsRefused) {
  std::thread([&] {
    EXPECT_EQ(S_OK, CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    const HostError error = ErrorOfGet("Fake_Two.Name=\"a\"");
    EXPECT_EQ(Kind::kPlatform, error.kind());
    EXPECT_STREQ(
        "the thread cannot enter COM's multithreaded apartment: RPC_E_CHANGED_MODE "
        "(0x80010106)",
        error.what());
    EXPECT_THROW(Enumerate("Fake_Two"), HostError);
    CoUninitialize();
  }).join();
}

TEST_F(ManagementHostTest, ManyThreadsAskAtOnce) {
  std::vector<std::thread> threads;
  std::atomic<int> instances = 0;
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([&, i] {
      const std::string name = "Fake_Two.Name=\"" + std::to_string(i) + "\"";
      for (int round = 0; round < 20; ++round) {
        EXPECT_TRUE(host_->Enumerate("Fake_Two", [&](const Instance&) { ++instances; }).ok());
        EXPECT_EQ("Fake_Two|Name|8|" + std::to_string(i), NameGot(name));
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(8 * 20 * 2, instances);
}

}  // namespace
}  // namespace tqcim::host
