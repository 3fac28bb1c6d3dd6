/// SMBIOS tables put together from literal bytes.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tqcim::testing {

using ByteVector = std::vector<uint8_t>;

/// A structure: its formatted area and, behind it, its strings and their end.
inline ByteVector WithStrings(ByteVector formatted,
                              std::initializer_list<std::string_view> strings) {
  for (const std::string_view string : strings) {
    formatted.insert(formatted.end(), string.begin(), string.end());
    formatted.push_back(0);
  }
  if (strings.size() == 0) formatted.push_back(0);
  formatted.push_back(0);
  return formatted;
}

inline ByteVector Joined(std::initializer_list<ByteVector> parts) {
  ByteVector all;
  for (const ByteVector& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

/// The structure cut to `length` bytes, as an older version of the standard has it.
inline ByteVector Shortened(ByteVector formatted, uint8_t length) {
  formatted.resize(length);
  formatted[1] = length;
  return formatted;
}

/// The structure with other bytes at these offsets.
inline ByteVector With(ByteVector formatted,
                       std::initializer_list<std::pair<size_t, uint8_t>> changes) {
  for (const auto& [offset, value] : changes) formatted[offset] = value;
  return formatted;
}

inline const ByteVector kEndOfTable = {127, 4, 0xFF, 0xFE, 0, 0};

/// Makes the bytes from `first` on, `length` of them, add up to zero by the one at `checksum`.
inline void Sum(ByteVector& bytes, size_t first, size_t length, size_t checksum) {
  bytes[checksum] = 0;
  bytes[checksum] = static_cast<uint8_t>(
      -std::accumulate(bytes.begin() + static_cast<ptrdiff_t>(first),
                       bytes.begin() + static_cast<ptrdiff_t>(first + length), 0));
}

/// A 64-bit entry point of version 3.2 with the table 0x20 bytes behind it.
inline ByteVector EntryPoint64(uint32_t tableLength) {
  ByteVector bytes = {'_',  'S', 'M', '3', '_', 0, 0x18, 3, 2, 0, 1, 0, 0, 0, 0, 0,
                      0x20, 0,   0,   0,   0,   0, 0,    0, 0, 0, 0, 0, 0, 0, 0, 0};
  for (int i = 0; i < 4; ++i)
    bytes[12 + static_cast<size_t>(i)] = static_cast<uint8_t>(tableLength >> (8 * i));
  Sum(bytes, 0, 0x18, 5);
  return bytes;
}

/// A 32-bit entry point of version 2.7 with the table 0x20 bytes behind it.
inline ByteVector EntryPoint32(uint16_t tableLength, uint16_t structures) {
  ByteVector bytes = {'_', 'S', 'M', '_', 0,   0x1F, 2, 7, 0x80, 0, 0, 0, 0, 0, 0,    0,
                      '_', 'D', 'M', 'I', '_', 0,    0, 0, 0x20, 0, 0, 0, 0, 0, 0x27, 0};
  bytes[0x16] = static_cast<uint8_t>(tableLength);
  bytes[0x17] = static_cast<uint8_t>(tableLength >> 8);
  bytes[0x1C] = static_cast<uint8_t>(structures);
  bytes[0x1D] = static_cast<uint8_t>(structures >> 8);
  Sum(bytes, 0x10, 0x0F, 0x15);
  Sum(bytes, 0, 0x1F, 4);
  return bytes;
}

/// A dump file of a table, with the entry point that it takes.
inline ByteVector Dump64(const ByteVector& table) {
  return Joined({EntryPoint64(static_cast<uint32_t>(table.size())), table});
}

inline std::string_view TextOf(const ByteVector& bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace tqcim::testing
