#include "core/computer_name.h"

namespace tqcim {
namespace {

constexpr DWORD kBufferSize = 16;
char computerName[kBufferSize];

}  // namespace

bool ReadComputerName() {
  DWORD size = kBufferSize;
  return GetComputerNameA(computerName, &size) != FALSE;
}

const char* ComputerName() {
  return computerName;
}

Bstr ShortWideName(const char* name) {
  constexpr size_t kMaxLength = 16;
  OLECHAR wide[kMaxLength + 1] = {};
  for (size_t i = 0; i < kMaxLength && name[i]; ++i) wide[i] = static_cast<unsigned char>(name[i]);
  return Bstr(wide);
}

}  // namespace tqcim
