#include "core/class_registry.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "tests/support/fault.h"

namespace tqcim::testing {
namespace {

/// What Lookup throws for a name.
std::string FailureOf(const char* name) {
  try {
    Lookup(name);
  } catch (const std::out_of_range& failure) {
    return failure.what();
  }
  return "none";
}

TEST(ClassRegistry, FindsARegisteredName) {
  EXPECT_NE(nullptr, Lookup("VORN_System"));
  EXPECT_NE(Lookup("VORN_System"), Lookup("VORN_Chassis"));
}

TEST(ClassRegistry, ANullNameIsNotRegistered) {
  EXPECT_EQ("invalid map<K, T> key", FailureOf(nullptr));
}

TEST(ClassRegistry, AHandlerThatFindsNoMemoryIsNull) {
  const Fault noMemory({FaultKind::kAllocations, 0});
  EXPECT_EQ(nullptr, kRegisteredClasses[0].makeHandler());
}

}  // namespace
}  // namespace tqcim::testing
