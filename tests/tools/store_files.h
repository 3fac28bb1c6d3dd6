/// Store files that the tests show.
#pragma once

#include <string>
#include <string_view>

namespace tqcim::testing {

/// A store file with a system, its chassis (OID 2) and these objects.
inline std::string StoreFile(std::string_view objects) {
  std::string file = R"({
  "format": "tqcim-store",
  "version": 1,
  "objects": [
    {"oid": 1, "type": "system", "status": "ok"},
    {"oid": 2, "type": "chassis", "status": "ok", "parents": [1]})";
  if (!objects.empty()) file += ",\n";
  file += objects;
  return file + "\n  ]\n}\n";
}

/// Two firmware objects with texts that need care.
inline constexpr std::string_view kOddFirmware = R"(
    {"oid": 3, "type": "firmware", "status": "ok", "parents": [2],
     "fields": {"name": "\u00DCnit, \"A\"\n\u001B[31m", "version": "1.0", "firmwareType": 8}},
    {"oid": 4, "type": "firmware", "status": "ok", "parents": [2],
     "fields": {"name": "B", "version": "", "firmwareType": 11}})";

/// Three memory modules, the third one ailing.
inline constexpr std::string_view kMemory = R"(
    {"oid": 5, "type": "memoryDevice", "status": "ok", "parents": [2],
     "fields": {"name": "DIMM_A1", "bankLabel": "Bank A", "manufacturer": "Maker",
                "serialNumber": "0001", "extendedSizeMB": 32768, "memoryType": 26,
                "speedText": "2933 MT/s"}},
    {"oid": 6, "type": "memoryDevice", "status": "unknown", "parents": [2],
     "fields": {"name": "DIMM_A2", "bankLabel": "Bank A", "manufacturer": "Maker",
                "serialNumber": "0002", "extendedSizeMB": 32768, "memoryType": 26,
                "speedText": "2933 MT/s"}},
    {"oid": 7, "type": "memoryDevice", "status": "critical", "parents": [2],
     "fields": {"name": "DIMM_A3", "bankLabel": "A bank with a label that is a whole sentence long",
                "manufacturer": "Maker", "serialNumber": "0003", "extendedSizeMB": 32768,
                "memoryType": 26, "speedText": "2933 MT/s"}})";

}  // namespace tqcim::testing
