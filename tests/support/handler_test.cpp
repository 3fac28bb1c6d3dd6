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

}  // namespace tqcim::testing
