/// What holds of every snapshot that a source delivers.
#pragma once

#include <memory>

#include "store/snapshot.h"

namespace tqcim::fuzz {

/// Checks that a store file of the snapshot reads back as the same snapshot.
void CheckComesBack(const store::Snapshot& snapshot);

/// Puts the snapshot in service and reads all of it as the provider's classes do: every child list
/// of every object, every object, every text and every record.
void CheckIsReadable(std::unique_ptr<store::Snapshot> snapshot);

}  // namespace tqcim::fuzz
