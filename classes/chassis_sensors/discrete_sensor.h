/// What makes a probe a discrete sensor.
#pragma once

#include <cstdint>

#include "core/store_access.h"

namespace tqcim {

/// Whether an object that a walk over a type found is a discrete sensor: probes by their subtype,
/// processor sensors always, battery sensors always.
bool IsDiscreteSensor(const DataObject& object, uint16_t walkedType);

}  // namespace tqcim
