#include "tests/support/handler_test.h"

#include "core/class_registry.h"

namespace tqcim::testing {

HRESULT HandlerTest::Enumerate(const char* className) {
  return Lookup(className)->EnumerateInstances(&definition, &sink);
}

HRESULT HandlerTest::Get(const char* className, FakeKeyList& keys) {
  return Lookup(className)->GetInstance(&definition, &keys, &sink);
}

HRESULT HandlerTest::Get(const char* className, FakeKey key) {
  FakeKeyList keys;
  keys.Add(std::move(key));
  return Get(className, keys);
}

HRESULT HandlerTest::GetWithoutKeys(const char* className) {
  return Lookup(className)->GetInstance(&definition, nullptr, &sink);
}

Puts HandlerTest::Delivered(size_t index) const {
  if (index < DeliveredCount()) return sink.Delivered()[index];
  ADD_FAILURE() << "only " << DeliveredCount() << " instances were delivered";
  return {};
}

std::string HandlerTest::Value(size_t index, const std::string& property) const {
  std::string value = "<absent>";
  for (const RecordedPut& put : Delivered(index)) {
    if (put.name == property) value = put.value;
  }
  return value;
}

Texts HandlerTest::Values(const std::string& property) const {
  Texts values;
  for (size_t i = 0; i < DeliveredCount(); ++i) values.push_back(Value(i, property));
  return values;
}

void HandlerTest::ExpectNeverGot(const char* className) {
  const auto spawns = definition.Spawns();
  store.RecordCalls();
  FakeKeyList keys;
  for (const OLECHAR* name : {OLESTR("DeviceID"), OLESTR("Name"), OLESTR("Tag")}) {
    keys.Add(StringKey(name, OLESTR("0")));
  }
  EXPECT_EQ(Hr(0x80041002), Get(className, keys));
  keys.FailCount(Hr(0x80041008));
  EXPECT_EQ(Hr(0x80041002), Get(className, keys));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys(className));
  EXPECT_TRUE(keys.Reads().empty());
  EXPECT_TRUE(store.Calls().empty());
  EXPECT_EQ(spawns, definition.Spawns());
}

}  // namespace tqcim::testing
