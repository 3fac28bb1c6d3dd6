/// SMBIOS tables, as DMTF DSP0134 (System Management BIOS Reference Specification 3.7.0) lays them
/// out: entry points, and the structures one after the other. Nothing is told here of what the
/// fields mean.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tqcim::store::smbios {

using Bytes = std::span<const uint8_t>;

/// Where a table is and when it ends (DSP0134 5.2.1 and 5.2.2).
struct EntryPoint {
  /// Its own length.
  uint8_t length = 0;
  uint64_t tableAddress = 0;
  /// The most that the table's length can be: what a system hands out ends with the last structure.
  uint32_t tableLength = 0;
  /// The number of structures; a 64-bit entry point doesn't tell.
  std::optional<uint16_t> structureCount;
};

/// Whether the bytes begin with an entry point of either kind.
bool HasEntryPoint(Bytes bytes);

/// The 32-bit ("_SM_") or 64-bit ("_SM3_") entry point at the start of `bytes`. Throws StoreError
/// "FILE: byte OFFSET: reason" for one that is cut off, of a wrong length or of a wrong checksum.
EntryPoint ReadEntryPoint(Bytes bytes, const std::string& file);

/// One structure. A field is there only where the structure's own length covers it.
class Structure {
 public:
  Structure(Bytes formatted, Bytes strings, std::string_view file, size_t offset)
      : formatted_(formatted), strings_(strings), file_(file), offset_(offset) {}

  uint8_t Type() const { return formatted_[0]; }
  /// File and offset, as errors name them.
  std::string Place() const;

  std::optional<uint8_t> Byte(uint8_t offset) const;
  std::optional<uint16_t> Word(uint8_t offset) const;
  std::optional<uint32_t> Dword(uint8_t offset) const;
  std::optional<uint64_t> Qword(uint8_t offset) const;

  /// The string whose number stands at `offset`, without trailing blanks, as UTF-8 (a string of
  /// bytes that aren't gets U+FFFD for each byte past ASCII; controls become blanks). Nothing for
  /// number 0, for a number past the structure's strings and for a string of blanks only.
  std::optional<std::string> String(uint8_t offset) const;

 private:
  std::optional<uint64_t> Integer(uint8_t offset, uint8_t width) const;

  Bytes formatted_;
  Bytes strings_;
  std::string_view file_;
  size_t offset_;
};

/// A table's structures in their order: as many as the entry point counts, else up to the
/// end-of-table structure (type 127) and 65,535 at most. `tableOffset` is where the table begins in
/// `file`, for the errors: StoreError "FILE: byte OFFSET: reason" for a table without structures,
/// for a structure shorter than its own header, for one that reaches, with its strings, past the
/// end of the table, and for a table that is shorter than its length and ends before them. The
/// bytes and the file's name must outlive the structures.
std::vector<Structure> ReadStructures(Bytes table, const EntryPoint& entryPoint,
                                      std::string_view file, size_t tableOffset);

/// "FILE: byte 0xOFFSET".
std::string PlaceAt(std::string_view file, size_t offset);

}  // namespace tqcim::store::smbios
