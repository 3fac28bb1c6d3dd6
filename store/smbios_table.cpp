#include "store/smbios_table.h"

#include <algorithm>
#include <cstdio>
#include <numeric>

#include "store/store_error.h"
#include "store/text.h"

namespace tqcim::store::smbios {
namespace {

constexpr std::string_view kAnchor32 = "_SM_";
constexpr std::string_view kAnchor64 = "_SM3_";
constexpr std::string_view kIntermediateAnchor = "_DMI_";
constexpr size_t kIntermediateOffset = 0x10;
constexpr size_t kIntermediateLength = 0x0F;

constexpr uint8_t kHeaderLength = 4;
/// Of a structure with its double zero.
constexpr size_t kSmallestSize = kHeaderLength + 2;
constexpr uint8_t kEndOfTable = 127;

bool Begins(Bytes bytes, std::string_view anchor) {
  return bytes.size() >= anchor.size() && std::equal(anchor.begin(), anchor.end(), bytes.begin());
}

bool SumIsZero(Bytes bytes) {
  return std::accumulate(bytes.begin(), bytes.end(), 0U) % 256 == 0;
}

uint64_t IntegerIn(Bytes bytes, size_t offset, size_t width) {
  uint64_t value = 0;
  for (size_t i = 0; i < width; ++i) value |= uint64_t{bytes[offset + i]} << (8 * i);
  return value;
}

/// DSP0134 5.2.1. Some firmware gives the length as 0x1E, an error of version 2.1. A system that
/// goes by it shows no last byte, and without that there is no intermediate sum.
EntryPoint ReadEntryPoint32(Bytes bytes, const std::string& file) {
  const Bytes rest = bytes.subspan(kIntermediateOffset);
  const Bytes intermediate = rest.first(std::min(rest.size(), kIntermediateLength));
  if (!Begins(intermediate, kIntermediateAnchor)) {
    throw StoreError(PlaceAt(file, kIntermediateOffset), "the intermediate anchor is missing");
  }
  if (intermediate.size() == kIntermediateLength && !SumIsZero(intermediate)) {
    throw StoreError(PlaceAt(file, kIntermediateOffset), "the intermediate checksum is wrong");
  }
  return {.tableAddress = IntegerIn(bytes, 0x18, 4),
          .tableLength = static_cast<uint32_t>(IntegerIn(bytes, 0x16, 2)),
          .structureCount = static_cast<uint16_t>(IntegerIn(bytes, 0x1C, 2))};
}

/// DSP0134 5.2.2.
EntryPoint ReadEntryPoint64(Bytes bytes) {
  return {.tableAddress = IntegerIn(bytes, 0x10, 8),
          .tableLength = static_cast<uint32_t>(IntegerIn(bytes, 0x0C, 4)),
          .structureCount = std::nullopt};
}

/// The end of the strings behind a formatted area, past their double zero; nothing where the table
/// ends first.
std::optional<size_t> EndOfStrings(Bytes table, size_t position) {
  for (; position + 1 < table.size(); ++position) {
    if (table[position] == 0 && table[position + 1] == 0) return position + 2;
  }
  return std::nullopt;
}

std::string TextOf(Bytes bytes) {
  std::string text(bytes.begin(), bytes.end());
  if (!IsUtf8(text)) {
    text.clear();
    for (const uint8_t byte : bytes) {
      text += byte < 0x80 ? std::string(1, static_cast<char>(byte)) : "\xEF\xBF\xBD";
    }
  }
  const auto isControl = [](char c) { return static_cast<uint8_t>(c) < 0x20 || c == 0x7F; };
  std::replace_if(text.begin(), text.end(), isControl, ' ');
  text.resize(text.find_last_not_of(' ') + 1);
  return text;
}

}  // namespace

std::string PlaceAt(std::string_view file, size_t offset) {
  char text[32];
  std::snprintf(text, sizeof(text), ": byte 0x%zX", offset);
  return std::string(file) + text;
}

bool HasEntryPoint(Bytes bytes) {
  return Begins(bytes, kAnchor32) || Begins(bytes, kAnchor64);
}

EntryPoint ReadEntryPoint(Bytes bytes, const std::string& file) {
  const bool is64 = Begins(bytes, kAnchor64);
  const size_t lengthOffset = is64 ? 0x06 : 0x05;
  const size_t shortest = is64 ? 0x18 : 0x1E;
  const auto requireSize = [&](size_t size) {
    if (bytes.size() >= size) return;
    throw StoreError(PlaceAt(file, bytes.size()), "the entry point is cut off");
  };
  requireSize(shortest);
  const uint8_t length = bytes[lengthOffset];
  if (length < shortest || length > 0x20) {
    throw StoreError(PlaceAt(file, lengthOffset),
                     "the entry point can't have a length of " + std::to_string(length));
  }
  requireSize(length);
  if (!SumIsZero(bytes.first(length))) {
    throw StoreError(PlaceAt(file, 0), "the entry point's checksum is wrong");
  }
  EntryPoint entryPoint = is64 ? ReadEntryPoint64(bytes) : ReadEntryPoint32(bytes, file);
  entryPoint.length = length;
  return entryPoint;
}

std::string Structure::Place() const {
  return PlaceAt(file_, offset_);
}

std::optional<uint64_t> Structure::Integer(uint8_t offset, uint8_t width) const {
  if (size_t{offset} + width > formatted_.size()) return std::nullopt;
  return IntegerIn(formatted_, offset, width);
}

std::optional<uint8_t> Structure::Byte(uint8_t offset) const {
  const auto value = Integer(offset, 1);
  return value ? std::optional(static_cast<uint8_t>(*value)) : std::nullopt;
}

std::optional<uint16_t> Structure::Word(uint8_t offset) const {
  const auto value = Integer(offset, 2);
  return value ? std::optional(static_cast<uint16_t>(*value)) : std::nullopt;
}

std::optional<uint32_t> Structure::Dword(uint8_t offset) const {
  const auto value = Integer(offset, 4);
  return value ? std::optional(static_cast<uint32_t>(*value)) : std::nullopt;
}

std::optional<uint64_t> Structure::Qword(uint8_t offset) const {
  return Integer(offset, 8);
}

std::optional<std::string> Structure::String(uint8_t offset) const {
  const uint8_t number = Byte(offset).value_or(0);
  if (number == 0) return std::nullopt;
  auto begin = strings_.begin();
  for (uint8_t i = 1;; ++i) {
    const auto end = std::find(begin, strings_.end(), uint8_t{0});
    if (end == begin || end == strings_.end()) return std::nullopt;
    if (i == number) {
      std::string text = TextOf(Bytes(begin, end));
      return text.empty() ? std::nullopt : std::optional(std::move(text));
    }
    begin = end + 1;
  }
}

std::vector<Structure> ReadStructures(Bytes table, const EntryPoint& entryPoint,
                                      std::string_view file, size_t tableOffset) {
  const size_t most = entryPoint.structureCount.value_or(UINT16_MAX);
  std::vector<Structure> structures;
  structures.reserve(
      std::min<size_t>(entryPoint.structureCount.value_or(0), table.size() / kSmallestSize));
  size_t position = 0;
  const auto afterEnd = [&] {
    return !structures.empty() && structures.back().Type() == kEndOfTable;
  };
  const auto refuse = [&](const std::string& reason) {
    throw StoreError(PlaceAt(file, tableOffset + position),
                     "structure " + std::to_string(structures.size()) + " " + reason);
  };
  while (structures.size() < most && position + kHeaderLength <= table.size()) {
    const uint8_t length = table[position + 1];
    // Some firmware counts one structure too many and fills the table up behind its end.
    if (afterEnd() && (!entryPoint.structureCount || length < kHeaderLength)) break;
    if (length < kHeaderLength) refuse("can't have a length of " + std::to_string(length));
    const std::optional<size_t> end = EndOfStrings(table, position + length);
    if (!end) refuse("reaches past the end of the table");
    structures.emplace_back(table.subspan(position, length),
                            table.subspan(position + length, *end - position - length), file,
                            tableOffset + position);
    position = *end;
  }
  if (structures.empty()) throw StoreError(PlaceAt(file, tableOffset), "the table is empty");
  if (table.size() < entryPoint.tableLength && structures.size() < most && !afterEnd()) {
    throw StoreError(PlaceAt(file, tableOffset + table.size()),
                     "the table is cut off before its end-of-table structure");
  }
  return structures;
}

}  // namespace tqcim::store::smbios
