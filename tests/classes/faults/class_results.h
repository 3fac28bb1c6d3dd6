/// What the requests for each class come to, in the store with three chassis.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/wmi.h"

namespace tqcim::testing {

/// The result of a request that delivered nothing because the store gave nothing.
enum class Nothing {
  kSuccess,
  kNotFound,
  kEither,  ///< not found without the log, success without the record
};

/// The result where no instance could be spawned.
enum class FailedSpawn {
  kReported,  ///< the spawn's own
  kKept,      ///< that of what was delivered before
};

/// Where the result of a request that delivered something comes from.
enum class Delivery {
  kLast,     ///< the sink's last answer; a refusal stops nothing
  kStops,    ///< the sink's last answer; a refusal ends the walk
  kRelease,  ///< the references that the sink keeps of the last instance
  kSuccess,  ///< success in any case
};

/// One kind of request for a class.
struct Outcome {
  /// Instances delivered when nothing fails.
  size_t instances;
  Nothing nothing;
  FailedSpawn spawn;
  Delivery delivery;
};

/// The key that a class takes.
struct TakenKey {
  /// Null for a class that looks at no key.
  const OLECHAR* name = nullptr;
  const OLECHAR* text = nullptr;
  /// Whether it has to stand first: these classes take the first key, whatever its name.
  bool isFirst = false;
  /// Whether a key that can't be read counts as one that is not there.
  bool failureIsNotFound = false;
  /// Whether one that stands before it and can't be read ends the search for it.
  bool failureEndsSearch = false;
};

struct ClassResults {
  const char* name;
  Outcome enumerated;
  TakenKey key;
  Outcome got;
};

/// One row for each class, in the order of registration.
extern const std::span<const ClassResults> kClassResults;

}  // namespace tqcim::testing
