/// The source that a command asks for, put in service.
#pragma once

#include <string>

#include "tools/options.h"

namespace tqcim::tools {

struct Source {
  /// For people: "the store file server.json".
  std::string description;
  /// Whether its data are invented.
  bool sample;
};

/// Makes the object library serve the source, or without one what the library itself would choose.
/// Throws Failure (kBadInput).
Source OpenSource(const SourceOption& option);

/// What whoever keeps an output that doesn't name its source is told once, on standard error; empty
/// unless the data are invented.
std::string SampleRemark(const Source& source);

}  // namespace tqcim::tools
