#include "tests/support/computer_name.h"

namespace {

BOOL WINAPI GetFakeComputerName(LPSTR buffer, LPDWORD size) {
  return tqcim::testing::TellComputerName(buffer, size);
}

}  // namespace

extern "C" {
/// The import slot of the platform's function.
decltype(&GetComputerNameA) __imp_GetComputerNameA = GetFakeComputerName;
}
