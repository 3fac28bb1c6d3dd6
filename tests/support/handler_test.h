/// The fixtures of the tests of the provider and its class handlers.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/computer_name.h"
#include "tests/support/fake_key_list.h"
#include "tests/support/fake_sink.h"
#include "tests/support/fake_store.h"
#include "tests/support/ledger.h"

namespace tqcim::testing {

using Texts = std::vector<std::string>;

/// Names the instances of a test for several classes.
inline constexpr auto kClassName = [](const auto& tested) {
  return std::string(tested.param.name);
};

/// A result from its bits, as WMI's documentation writes it: Hr(0x80041002) is "not found".
constexpr HRESULT Hr(uint32_t bits) {
  return static_cast<HRESULT>(bits);
}

/// Expects of every test that it leaves no text, no array and no entry into COM behind. The members
/// of derived fixtures are gone before the books are closed.
class BalancedTest : public ::testing::Test {
 protected:
  BalancedTest() : before_(CurrentLedger()) {}
  ~BalancedTest() override { EXPECT_EQ(before_, CurrentLedger()); }

 private:
  const Ledger before_;
};

/// A test of one class: fill `store`, call Enumerate or Get with the name of the class as clients
/// give it, look at Delivered. That every block and every reference is given back is expected of
/// every test.
class HandlerTest : public BalancedTest {
 protected:
  HRESULT Enumerate(const char* className);
  /// With the keys of a path, or without a key list.
  HRESULT Get(const char* className, FakeKeyList& keys);
  HRESULT Get(const char* className, FakeKey key);
  HRESULT GetWithoutKeys(const char* className);

  /// Number of instances delivered.
  size_t DeliveredCount() const { return sink.Delivered().size(); }
  /// What was put into the instance at `index`; nothing, and a failure, where there is none.
  Puts Delivered(size_t index) const;
  /// The value of one property of the instance at `index`; "<absent>" where it was not put, the
  /// last value where it was put again.
  std::string Value(size_t index, const std::string& property) const;
  /// The same of each instance, in the order of their delivery.
  Texts Values(const std::string& property) const;

  /// Expects "not found" of every path, without a look at the keys or the store.
  void ExpectNeverGot(const char* className);

  FakeStore store;
  FakeClass definition;
  FakeSink sink;
};

}  // namespace tqcim::testing
