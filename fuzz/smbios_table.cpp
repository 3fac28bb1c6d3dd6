// Dump files of SMBIOS tables: what loads is readable and comes back from a store file; what
// doesn't is refused in one sentence with its byte. Each input is read as it stands and, because a
// search seldom meets a checksum, once more with checksums that are right.

#include <numeric>
#include <string>

#include "fuzz/check.h"
#include "fuzz/store_checks.h"
#include "store/firmware_table.h"
#include "store/store_error.h"

using namespace tqcim;

namespace {

/// Makes `length` bytes from `first` on add up to zero by the one at `checksum`.
void Sum(std::string& bytes, size_t first, size_t length, size_t checksum) {
  if (checksum >= bytes.size() || first + length > bytes.size()) return;
  bytes[checksum] = 0;
  const auto begin = bytes.begin() + static_cast<ptrdiff_t>(first);
  bytes[checksum] =
      static_cast<char>(-std::accumulate(begin, begin + static_cast<ptrdiff_t>(length), 0));
}

/// DSP0134 5.2.1 and 5.2.2.
std::string WithRightChecksums(std::string bytes) {
  if (bytes.starts_with("_SM3_") && bytes.size() > 0x06) {
    Sum(bytes, 0, static_cast<uint8_t>(bytes[0x06]), 0x05);
  } else if (bytes.starts_with("_SM_") && bytes.size() > 0x05) {
    Sum(bytes, 0x10, 0x0F, 0x15);
    Sum(bytes, 0, static_cast<uint8_t>(bytes[0x05]), 0x04);
  }
  return bytes;
}

void Read(std::string_view dump) {
  try {
    auto snapshot = store::ParseFirmwareDump(dump, "f.bin");
    fuzz::CheckComesBack(*snapshot);
    fuzz::CheckIsReadable(std::move(snapshot));
  } catch (const store::StoreError& error) {
    fuzz::CheckSentence(error.what(), "f.bin: byte 0x");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view dump = fuzz::TextOf(data, size);
  Read(dump);
  if (const std::string mended = WithRightChecksums(std::string(dump)); mended != dump) {
    Read(mended);
  }
  return 0;
}
