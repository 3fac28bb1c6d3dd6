#include "tests/reference/class_notes.h"

#include <filesystem>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "tests/reference/reference_file.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::testing {
namespace {

using Json = nlohmann::ordered_json;

ClassNotes NotesOf(const Json& json) {
  ClassNotes notes{.objects = json.at("objects"),
                   .from = json.at("from"),
                   .alert = json.at("alert"),
                   .values = {}};
  for (const auto& [property, source] : json.at("values").items()) {
    notes.values.emplace_back(property, source);
  }
  return notes;
}

std::map<std::string, ClassNotes> ReadClassNotes() {
  std::map<std::string, ClassNotes> classes;
  for (const auto& file : std::filesystem::directory_iterator(RepositoryPath("docs/class_notes"))) {
    const Json document = Json::parse(ContentsOf(file.path()));
    for (const auto& [name, notes] : document.items()) {
      if (!classes.emplace(name, NotesOf(notes)).second) {
        throw std::runtime_error(name + " has notes twice");
      }
    }
  }
  return classes;
}

}  // namespace

const std::map<std::string, ClassNotes>& AllClassNotes() {
  static const std::map<std::string, ClassNotes> classes = ReadClassNotes();
  return classes;
}

}  // namespace tqcim::testing
