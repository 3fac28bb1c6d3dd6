#include "tests/classes/faults/class_results.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "core/class_registry.h"

namespace tqcim::testing {
namespace {

TEST(ClassResults, EveryRegisteredClassIsTested) {
  std::set<std::string> registered;
  for (const RegisteredClass& row : kRegisteredClasses) registered.insert(row.name);
  std::set<std::string> tested;
  for (const ClassResults& row : kClassResults) tested.insert(row.name);
  EXPECT_EQ(47u, kClassResults.size());
  EXPECT_EQ(registered, tested);
}

}  // namespace
}  // namespace tqcim::testing
