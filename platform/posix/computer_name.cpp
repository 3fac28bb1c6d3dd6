#include <unistd.h>
#include <windows.h>

#include <algorithm>
#include <cstring>

BOOL GetComputerNameA(LPSTR buffer, LPDWORD size) {
  char host[256] = {};
  if (size == nullptr || gethostname(host, sizeof(host) - 1) != 0) return FALSE;
  const size_t length = std::min<size_t>(std::strcspn(host, "."), MAX_COMPUTERNAME_LENGTH);
  if (length == 0) return FALSE;
  const auto needed = static_cast<DWORD>(length + 1);
  if (buffer == nullptr || *size < needed) {
    *size = needed;
    return FALSE;
  }
  std::memcpy(buffer, host, length);
  buffer[length] = '\0';
  *size = needed - 1;
  return TRUE;
}
