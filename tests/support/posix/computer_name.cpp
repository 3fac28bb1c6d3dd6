#include "tests/support/computer_name.h"

/// The program's own definition stands before the runtime's.
BOOL GetComputerNameA(LPSTR buffer, LPDWORD size) {
  return tqcim::testing::TellComputerName(buffer, size);
}
