/// What an independent decoder prints of an SMBIOS table.
#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tqcim::testing {

/// One structure: its title, its properties and the lines of the lists below some of them.
struct DecodedStructure {
  std::string title;
  std::map<std::string, std::string> properties;
  std::set<std::string> lines;

  /// A property without trailing blanks; empty where it is missing or "Not Specified", which is
  /// how the decoder prints a string number of 0.
  std::string operator[](const std::string& name) const {
    const auto found = properties.find(name);
    if (found == properties.end()) return "";
    const std::string text = found->second.substr(0, found->second.find_last_not_of(' ') + 1);
    return text == "Not Specified" ? "" : text;
  }
};

/// The structures of a title, in the order of the table.
inline std::vector<DecodedStructure> Decoded(const std::filesystem::path& path,
                                             const std::string& title) {
  std::vector<DecodedStructure> structures;
  std::ifstream file(path, std::ios::binary);
  bool afterHandle = false;
  bool wanted = false;
  for (std::string line; std::getline(file, line);) {
    if (afterHandle) {
      wanted = line == title;
      if (wanted) structures.push_back({title, {}, {}});
    } else if (wanted && line.rfind("\t\t", 0) == 0) {
      structures.back().lines.insert(line.substr(2));
    } else if (wanted && line.rfind("\t", 0) == 0) {
      const size_t colon = line.find(": ");
      if (colon != std::string::npos) {
        structures.back().properties[line.substr(1, colon - 1)] = line.substr(colon + 2);
      }
    }
    afterHandle = line.rfind("Handle ", 0) == 0;
  }
  return structures;
}

}  // namespace tqcim::testing
