// write_seeds FOLDER: writes the inputs that the search begins with, a folder for each kind, in the
// forms that the project itself writes. The samples and the schema are inputs as they stand.

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>

#include "store/files.h"
#include "store/firmware_table.h"
#include "store/store_file.h"
#include "tests/store/smbios_bytes.h"

using namespace tqcim;

namespace {

using testing::ByteVector;
using testing::Joined;
using testing::WithStrings;

/// The inputs of one kind, named by their numbers.
class Seeds {
 public:
  explicit Seeds(const std::filesystem::path& folder) : folder_(folder) {
    std::filesystem::create_directories(folder);
  }
  void Add(std::string_view input) { store::WriteFile(folder_ / std::to_string(++count_), input); }

 private:
  std::filesystem::path folder_;
  int count_ = 0;
};

/// A structure whose fields hold `filling` up to `length`, with strings enough for every field that
/// counts them.
ByteVector Structure(uint8_t type, uint8_t length, uint8_t filling) {
  ByteVector formatted(length, filling);
  formatted[0] = type;
  formatted[1] = length;
  formatted[2] = type;
  formatted[3] = 0;
  return WithStrings(formatted, {"A", "B C", "D\xC3\xA4", "E ", "F\x01G", "H\xFF", "I"});
}

/// A table of every type of structure that becomes an object.
ByteVector Table(uint8_t filling) {
  return Joined({Structure(0, 0x1A, filling), Structure(1, 0x1B, filling),
                 Structure(2, 0x11, filling), Structure(3, 0x16, filling),
                 Structure(4, 0x30, filling), Structure(8, 9, filling), Structure(8, 9, 0x09),
                 Structure(9, 0x11, filling), Structure(17, 0x5C, filling),
                 Structure(21, 7, filling), Structure(39, 0x16, filling), testing::kEndOfTable});
}

void WriteTables(const std::filesystem::path& folder) {
  Seeds dumps(folder / "smbios_table");
  Seeds storeFiles(folder / "store_file");
  for (const uint8_t filling : ByteVector{0x00, 0x01, 0x02, 0x41, 0xFE, 0xFF}) {
    const ByteVector table = Table(filling);
    const ByteVector dump = testing::Dump64(table);
    dumps.Add(testing::TextOf(dump));
    dumps.Add(testing::TextOf(
        Joined({testing::EntryPoint32(static_cast<uint16_t>(table.size()), 12), table})));
    storeFiles.Add(
        store::FormatStoreFile(*store::ParseFirmwareDump(testing::TextOf(dump), "seed")));
  }
  // Bare headers at the end of a file: reading a field that is not there reads past the file.
  for (const uint8_t type : ByteVector{0, 1, 2, 3, 4, 8, 9, 17, 21, 39}) {
    dumps.Add(testing::TextOf(
        Joined({testing::EntryPoint32(6, 1), WithStrings({type, 4, type, 0}, {})})));
  }
}

void WritePaths(const std::filesystem::path& folder) {
  Seeds seeds(folder / "object_path");
  seeds.Add(R"(\\HOST\root\cimv2:C)");
  seeds.Add("C=@");
  const std::string keys = R"(C.a="x\"y\\z'",b=-7,c=18446744073709551615,d=TRUE)";
  seeds.Add(R"(\\HOST\root\cimv2:)" + keys);
  seeds.Add(R"(root\cimv2:)" + keys);
  seeds.Add(R"(C="x")");
}

void WriteMof(const std::filesystem::path& folder) {
  Seeds seeds(folder / "mof");
  seeds.Add(
      "#pragma namespace (\"\\\\\\\\.\\\\root\")\n"
      "[Abstract, Description(\"a \" \"b\\x41\"), Version(\"2\") : ToSubclass, Values{\"a\", "
      "\"b\"}]\n"
      "class A { // comment\n"
      "  [Key] string Name; /* and */ uint16 Codes[] = {1, 0x2, 10b, 07};\n"
      "  real32 R = -1.5e+3; boolean B = TRUE; char16 C = 'x'; sint64 S = NULL; datetime T[4];\n"
      "};\n"
      "class B : A { A ref Other; [Units(\"V\")] uint16 Codes[]; };\n"
      "instance of A as $Alias { Name = \"n\"; R = 1; };\n"
      "instance of B { Other = $Alias; };\n");
}

void WriteIniFiles(const std::filesystem::path& folder) {
  Seeds seeds(folder / "ini_file");
  seeds.Add("[Network Information]\nnic.disabled=1\n");
  seeds.Add(
      "\xEF\xBB\xBF; comment\r\n[ network information ]\r\n# other\r\na=b\r\nNIC.Disabled = "
      "65535\r\n"
      "nic.disabled=2\r\n[Other]\r\nnic.disabled=3\r\n");
}

void WriteDates(const std::filesystem::path& folder) {
  Seeds seeds(folder / "datetime");
  const auto add = [&](std::array<int32_t, 6> fields, int64_t moment, std::string_view zone) {
    std::string input(sizeof fields + sizeof moment, '\0');
    std::memcpy(input.data(), fields.data(), sizeof fields);
    std::memcpy(input.data() + sizeof fields, &moment, sizeof moment);
    seeds.Add(input.append(zone));
  };
  add({53, 26, 9, 14, 2, 115}, 1426325213, "UTC0");
  add({0, 0, 0, 1, 0, -1900}, -62167219200, "AAA-5:30");
  add({60, 59, 23, 31, 11, 8099}, 253402300799, "CET-1CEST,M3.5.0,M10.5.0/3");
  add({-1, 60, 24, 0, 12, 8100}, std::numeric_limits<int64_t>::max(), "<+14>-14:59:59");
  add({0, 0, 0, 0, -1, -1901}, std::numeric_limits<int64_t>::min(), "");
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::fputs("usage: write_seeds FOLDER\n", stderr);
    return 2;
  }
  const std::filesystem::path folder = arguments[1];
  WriteTables(folder);
  WritePaths(folder);
  WriteMof(folder);
  WriteIniFiles(folder);
  WriteDates(folder);
  return 0;
}
