#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <filesystem>
#include <optional>
#include <string>

#include "platform/libraries.h"
#include "store/configuration.h"
#include "store/export_guard.h"
#include "store/ini_file.h"
#include "store/process.h"
#include "store/text.h"

namespace tqcim::store {
namespace {

/// The results of the calls that return one.
constexpr int32_t kDone = 0;
constexpr int32_t kFailed = 1;

constexpr uint32_t kNumber16 = 4;

/// Where INI files are found by their bare names; nowhere if the configuration is damaged, which is
/// told.
std::optional<std::filesystem::path> FindIniFolder() {
  try {
    return LoadConfiguration(LibraryFolder()).iniFolder;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "tqsupt64: %s\n", error.what());
    return std::nullopt;
  }
}

/// Copies the units that fit before the terminating zero, without cutting a surrogate pair.
/// Returns whether all of them did.
bool PutText(const std::u16string& text, OLECHAR* destination, uint32_t& sizeInBytes) {
  const size_t room = sizeInBytes / sizeof(OLECHAR) - 1;
  size_t length = std::min(text.size(), room);
  const bool whole = length == text.size();
  if (!whole && length > 0 && text[length - 1] >= 0xD800 && text[length - 1] <= 0xDBFF) --length;
  std::copy_n(text.begin(), length, destination);
  destination[length] = 0;
  sizeInBytes = static_cast<uint32_t>((length + 1) * sizeof(OLECHAR));
  return whole;
}

}  // namespace
}  // namespace tqcim::store

using namespace tqcim::store;

void* SMAllocMem(uint32_t size) {
  return std::malloc(std::max<uint32_t>(size, 1));
}

void SMFreeMem(void* block) {
  std::free(block);
}

int32_t SMReadINIFileValue(const char* section, const char* key, uint32_t valueType, void* value,
                           uint32_t* size, const void* defaultValue, uint32_t defaultSize,
                           const char* fileName, uint32_t /*flag*/) {
  if (section == nullptr || key == nullptr || fileName == nullptr || value == nullptr ||
      size == nullptr || *size < sizeof(uint16_t) || valueType != kNumber16) {
    return kFailed;
  }
  const auto number = NullOnFailure([&]() -> std::optional<uint16_t> {
    static const std::optional<std::filesystem::path> folder = FindIniFolder();
    if (!folder || !HasFile(*folder, fileName)) return std::nullopt;
    return ReadIniNumber(*folder / fileName, section, key);
  });
  if (number) {
    std::memcpy(value, &*number, sizeof(*number));
    *size = sizeof(*number);
  } else if (defaultValue != nullptr && defaultSize <= *size) {
    // The default may stand in the value itself.
    std::memmove(value, defaultValue, defaultSize);
    *size = defaultSize;
  } else {
    return kFailed;
  }
  return kDone;
}

int32_t SMUCS2Strcmp(const OLECHAR* a, const OLECHAR* b) {
  while (*a != 0 && *a == *b) {
    ++a;
    ++b;
  }
  return *a == *b ? 0 : *a < *b ? -1 : 1;
}

int32_t SMUTF8StrToUCS2Str(OLECHAR* destination, uint32_t* sizeInBytes, const char* source) {
  if (destination == nullptr || sizeInBytes == nullptr || *sizeInBytes < sizeof(OLECHAR)) {
    return kFailed;
  }
  const auto text =
      NullOnFailure([&] { return source == nullptr ? std::nullopt : Utf16FromUtf8(source); });
  const bool whole = PutText(text.value_or(u""), destination, *sizeInBytes);
  return text && whole ? kDone : kFailed;
}
