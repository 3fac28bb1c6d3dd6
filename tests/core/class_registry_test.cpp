#include "core/class_registry.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/support/fault.h"

namespace tqcim::testing {
namespace {

TEST(ClassRegistry, FindsARegisteredName) {
  EXPECT_NE(nullptr, Lookup("VORN_System"));
  EXPECT_NE(Lookup("VORN_System"), Lookup("VORN_Chassis"));
}

TEST(ClassRegistry, ANullNameIsNotRegistered) {
  try {
    Lookup(nullptr);
    ADD_FAILURE() << "it was found";
  } catch (const std::out_of_range& failure) {
    EXPECT_STREQ("invalid map<K, T> key", failure.what());
  }
}

TEST(ClassRegistry, AHandlerThatFindsNoMemoryIsNull) {
  const Fault noMemory({FaultKind::kAllocations, 0});
  EXPECT_EQ(nullptr, kRegisteredClasses[0].makeHandler());
}

}  // namespace
}  // namespace tqcim::testing
