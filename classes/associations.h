/// What the associations share: references to chassis, and the two ends of an association.
#pragma once

#include <optional>

#include "core/instance.h"
#include "core/object_path.h"

namespace tqcim {

/// The reference to a chassis by the name that its description carries; nothing for a chassis
/// without a description.
std::optional<ObjectPath> ChassisPath(uint32_t chassisOid);

/// Puts both ends, the dependent one first.
void PutEnds(Instance& instance, WideView dependent, WideView antecedent);

}  // namespace tqcim
