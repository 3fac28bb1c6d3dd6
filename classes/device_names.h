/// The names that devices carry of themselves and of the system.
#pragma once

#include "core/instance.h"

namespace tqcim {

/// Puts `CreationClassName`, `SystemCreationClassName` and `SystemName`, in this order.
void PutDeviceNames(Instance& instance, const OLECHAR* className);

}  // namespace tqcim
