/// Values as JSON.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "host/value.h"

namespace tqcim::tools {

using Json = nlohmann::ordered_json;

/// Integers are numbers of all their digits.
Json ToJson(const host::Value& value);

/// The document with an indentation of two and a line end; what is not UTF-8 becomes U+FFFD.
std::string DocumentText(const Json& document);

}  // namespace tqcim::tools
