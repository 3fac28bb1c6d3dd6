/// The one exception of the store: bad input, told in one sentence that names the place.
#pragma once

#include <stdexcept>
#include <string>

namespace tqcim::store {

/// what() is the sentence for the user: "PLACE: reason", PLACE being a file with a line or an
/// offset where there is one.
class StoreError : public std::runtime_error {
 public:
  explicit StoreError(const std::string& sentence) : std::runtime_error(sentence) {}
  StoreError(const std::string& place, const std::string& reason)
      : std::runtime_error(place.empty() ? reason : place + ": " + reason) {}
};

}  // namespace tqcim::store
