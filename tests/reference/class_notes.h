/// The hand-written half of the class reference: docs/class_notes/*.json.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tqcim::testing {

struct ClassNotes {
  /// The types of the store objects that are read, by their names in store files.
  std::vector<std::string> objects;
  /// Which of them become instances.
  std::string from;
  std::string alert;
  /// For each property that is given, where its value comes from, in the order of the giving.
  std::vector<std::pair<std::string, std::string>> values;
};

/// The notes of all classes by name, read at the first call. Throws std::runtime_error for a file
/// that isn't valid, and for a class with notes in two files.
const std::map<std::string, ClassNotes>& AllClassNotes();

}  // namespace tqcim::testing
