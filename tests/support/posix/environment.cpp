#include "tests/support/environment.h"

#include <cstdlib>

namespace tqcim::testing {

void SetEnvironment(const char* name, const char* value) {
  if (value == nullptr) {
    unsetenv(name);
  } else {
    setenv(name, value, 1);
  }
}

}  // namespace tqcim::testing
