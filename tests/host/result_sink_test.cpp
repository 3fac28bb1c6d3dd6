// Sinks hand instances on as they come and end in one status.
#include "host/result_sink.h"

#include <stdexcept>

#include "tests/host/com_test.h"

namespace tqcim::host {
namespace {

constexpr HRESULT kCancelled = static_cast<HRESULT>(0x80041032);
constexpr HRESULT kNotNow = static_cast<HRESULT>(0x8004101D);

/// An instance that another implementation has made.
using ForeignObject = RefusingClassObject<ComObject<IWbemClassObject, IID_IWbemClassObject>>;

class ResultSinkTest : public HostObjectsTest {
 protected:
  HRESULT Indicate(const OLECHAR* name) {
    const auto instance = Spawn(*definition_);
    OwnedVariant value = Text(name);
    EXPECT_EQ(S_OK, instance->Put(OLESTR("Name"), 0, &value, 0));
    IWbemClassObject* object = instance.get();
    const HRESULT result = sink_->Indicate(1, &object);
    object->AddRef();
    EXPECT_EQ(1u, object->Release());
    return result;
  }

  std::shared_ptr<const Schema> schema_ = SchemaFromText("class T { [Key] string Name; };");
  Com<ClassObject> definition_ = ClassObject::Definition(schema_, *schema_->Find("T"));
  std::vector<std::string> paths_;
  Com<ResultSink> sink_{
      new ResultSink([this](Instance instance) { paths_.push_back(instance.Path()); })};
};

TEST_F(ResultSinkTest, HandsInstancesOnAtOnceAndKeepsNone) {
  EXPECT_EQ(S_OK, Indicate(OLESTR("a")));
  EXPECT_EQ((std::vector<std::string>{"T.Name=\"a\""}), paths_);
  EXPECT_EQ(S_OK, Indicate(OLESTR("b")));
  EXPECT_EQ((std::vector<std::string>{"T.Name=\"a\"", "T.Name=\"b\""}), paths_);
  EXPECT_EQ(S_OK, sink_->SetStatus(0, 0, nullptr, nullptr));
  EXPECT_EQ(std::optional<HRESULT>(0), sink_->Close());
}

TEST_F(ResultSinkTest, TakesSeveralInstancesInOneCall) {
  const auto first = Spawn(*definition_);
  const auto second = Spawn(*definition_);
  IWbemClassObject* objects[] = {first.get(), second.get()};
  EXPECT_EQ(S_OK, sink_->Indicate(2, objects));
  EXPECT_EQ(2u, paths_.size());
  EXPECT_EQ(S_OK, sink_->Indicate(0, nullptr));
  EXPECT_EQ(kBadArgument, sink_->Indicate(1, nullptr));
  EXPECT_EQ(kBadArgument, sink_->Indicate(-1, objects));
}

TEST_F(ResultSinkTest, HasNoStatusUntilTheFinalOne) {
  EXPECT_EQ(S_OK, sink_->SetStatus(WBEM_STATUS_PROGRESS, 50, nullptr, nullptr));
  EXPECT_EQ(std::nullopt, sink_->Close());
}

TEST_F(ResultSinkTest, TakesNothingAfterTheFinalStatus) {
  EXPECT_EQ(S_OK, sink_->SetStatus(0, static_cast<HRESULT>(0x80041001), nullptr, nullptr));
  EXPECT_EQ(kNotNow, Indicate(OLESTR("late")));
  EXPECT_EQ(kNotNow, sink_->SetStatus(0, 0, nullptr, nullptr));
  EXPECT_TRUE(paths_.empty());
  EXPECT_EQ(std::optional(static_cast<HRESULT>(0x80041001)), sink_->Close());
}

TEST_F(ResultSinkTest, TakesNothingAfterItWasClosed) {
  EXPECT_EQ(std::nullopt, sink_->Close());
  EXPECT_EQ(kNotNow, Indicate(OLESTR("late")));
  EXPECT_EQ(kNotNow, sink_->SetStatus(0, 0, nullptr, nullptr));
  EXPECT_TRUE(paths_.empty());
}

TEST_F(ResultSinkTest, WhatTheReceiverThrowsStopsTheProviderAndReachesTheCaller) {
  sink_ = Com(new ResultSink([](const Instance&) { throw std::runtime_error("full"); }));
  EXPECT_EQ(kCancelled, Indicate(OLESTR("a")));
  EXPECT_EQ(kCancelled, Indicate(OLESTR("b")));
  EXPECT_EQ(S_OK, sink_->SetStatus(0, 0, nullptr, nullptr));
  EXPECT_THROW(sink_->Close(), std::runtime_error);
}

TEST_F(ResultSinkTest, RefusesObjectsThatTheHostHasNotMade) {
  const Com<ForeignObject> foreign(new ForeignObject);
  IWbemClassObject* object = foreign.get();
  EXPECT_EQ(static_cast<HRESULT>(0x8004100F), sink_->Indicate(1, &object));
  object = nullptr;
  EXPECT_EQ(static_cast<HRESULT>(0x8004100F), sink_->Indicate(1, &object));
}

TEST_F(ResultSinkTest, AnInitSinkRemembersWhatTheProviderSaid) {
  const Com<InitSink> init(new InitSink);
  EXPECT_EQ(std::nullopt, init->Status());
  EXPECT_EQ(S_OK, init->SetStatus(static_cast<LONG>(0x80041001), 0));
  EXPECT_EQ(std::optional(static_cast<HRESULT>(0x80041001)), init->Status());
}

}  // namespace
}  // namespace tqcim::host
