#include "tests/support/environment.h"

#include <cstdlib>

namespace tqcim::testing {

void SetEnvironment(const char* name, const char* value) {
  _putenv_s(name, value == nullptr ? "" : value);
}

}  // namespace tqcim::testing
