#include "tests/support/computer_name.h"

#include <cstring>

namespace tqcim::testing {
namespace {

const char* computerName = kComputerName;

}  // namespace

void SetComputerName(const char* name) {
  computerName = name;
}

BOOL TellComputerName(LPSTR buffer, LPDWORD size) {
  if (!computerName || *size != 16) return FALSE;
  std::strcpy(buffer, computerName);
  *size = static_cast<DWORD>(std::strlen(computerName));
  return TRUE;
}

}  // namespace tqcim::testing
