/// Instances and class summaries in the three formats.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/instance.h"
#include "host/schema.h"
#include "tools/json_writer.h"
#include "tools/options.h"
#include "tools/table.h"

namespace tqcim::tools {

/// Instances of one class.
struct Listing {
  const host::ClassDefinition* definition;
  std::vector<host::Instance> instances;
  /// Where they come from, for people.
  std::string source;
};

/// One line of `tqcim classes`.
struct ClassSummary {
  std::string name;
  size_t instances = 0;
  /// The worst status of the instances; nothing where they have none.
  std::optional<std::string> status;
};

/// An array of objects, the properties in their declared order, null where an instance doesn't
/// have one. Integers are numbers of all their digits, up to 64 bits.
std::string JsonText(const std::vector<host::Instance>& instances);
std::string JsonText(const std::vector<ClassSummary>& classes);

/// The array as one value of a larger document.
void WriteInstances(JsonWriter& json, const std::vector<host::Instance>& instances);

/// RFC 4180, with a header line; null is an empty field, an empty text "".
std::string CsvText(const Listing& listing);
std::string CsvText(const std::vector<ClassSummary>& classes);

/// One line for each instance; a single instance as a block.
std::string TableText(const Listing& listing, const Layout& layout);
std::string TableText(const std::vector<ClassSummary>& classes, const std::string& source,
                      const Layout& layout);

/// One line for each property that an instance has, keys and Status first.
std::string BlockText(const Listing& listing, const Layout& layout);

}  // namespace tqcim::tools
