/// What providers put and the host's instances refused, process-wide.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/wmi.h"

namespace tqcim::host {

/// A provider that doesn't look at the result of a put loses the property without a word; this
/// record tells of it.
struct RefusedPut {
  std::string class_name;
  std::string property;
  HRESULT result = 0;
  size_t count = 0;  ///< how often, since the record was cleared
};

/// May be used from any thread.
class RefusedPuts {
 public:
  static void Add(std::string_view class_name, std::string_view property, HRESULT result);
  /// In order of class, property and result.
  static std::vector<RefusedPut> All();
  static void Clear();
};

}  // namespace tqcim::host
