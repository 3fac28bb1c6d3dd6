#include "classes/chassis_sensors/chassis_rollups.h"

#include <algorithm>

#include "core/store_access.h"
#include "platform/layouts/chassis.h"
#include "platform/layouts/event_log.h"
#include "platform/layouts/power.h"

namespace tqcim {
namespace {

constexpr uint8_t kUnknown = 1;
constexpr uint8_t kOk = 2;
/// Children beyond this many have no say in the chassis's health.
constexpr uint32_t kCountedChildren = 64;

/// The worst status of the children that `counts` accepts, `best` at best.
template <typename Predicate>
uint8_t WorstStatusOf(uint32_t chassisOid, uint16_t objectType, uint8_t best, Predicate counts) {
  const OidList children = ListChildren(chassisOid, objectType);
  if (children.empty()) return kUnknown;
  uint8_t worst = best;
  for (uint32_t i = 0; i < std::min(children.size(), kCountedChildren); ++i) {
    const DataObject child = ReadObject(children[i]);
    if (child && counts(child)) worst = std::max(worst, child.Status());
  }
  return worst;
}

}  // namespace

uint8_t WorstStatus(uint32_t chassisOid, uint16_t objectType) {
  return WorstStatusOf(chassisOid, objectType, 0, [](const DataObject&) { return true; });
}

uint8_t PowerSupplyStatus(uint32_t chassisOid) {
  namespace supply = layout::power_supply;
  return WorstStatusOf(chassisOid, supply::kType, kOk, [](const DataObject& child) {
    return child[supply::kKind] != supply::kRegulatorKind;
  });
}

// Every child of the type counts here, power supplies included: existing consumers see a failed
// supply in both texts.
uint8_t RegulatorStatus(uint32_t chassisOid) {
  return WorstStatusOf(chassisOid, layout::power_supply::kType, kOk,
                       [](const DataObject&) { return true; });
}

const OLECHAR* MemoryRedundancyText(uint32_t chassisOid) {
  namespace redundancy = layout::memory_redundancy;
  const DataObject object = GetChildObject(chassisOid, redundancy::kType, 0);
  if (!object) return OLESTR("");
  switch (object[redundancy::kState]) {
    case 0:
      return OLESTR("Not active");
    case 1:
      return OLESTR("Active");
    default:
      return OLESTR("Unknown");
  }
}

std::optional<uint8_t> RedundancyStatus(uint32_t chassisOid, uint16_t memberType) {
  const OidList groups = ListChildren(chassisOid, layout::redundancy_group::kType);
  for (uint32_t i = 0; i < groups.size(); ++i) {
    if (ListChildren(groups[i], memberType).empty()) continue;
    if (const DataObject group = ReadObject(groups[i])) return group.Status();
  }
  return std::nullopt;
}

int32_t SecurityBreach(uint32_t chassisOid) {
  const DataObject object = GetChildObject(chassisOid, layout::intrusion::kType, 0);
  switch (object ? object[layout::intrusion::kState] : 0) {
    case 1:
      return 5;
    case 2:
      return 3;
    case 3:
      return 4;
    default:
      return 2;
  }
}

int32_t LogFormat(uint32_t chassisOid) {
  namespace log = layout::event_log;
  constexpr int32_t kCurrentFormat = 2;
  constexpr int32_t kOtherFormat = 5;
  const OidList logs = ListChildren(chassisOid, log::kType);
  uint32_t tries = 0;
  for (uint32_t i = 0; i < logs.size();) {
    const DataObject object = ReadObject(logs[i]);
    // A log that can't be read is tried again at its position.
    if (!object && ++tries < kReadTries) continue;
    if (object && object[log::kKind] == 1 && object[log::kFormatRevision] == 1) {
      return kCurrentFormat;
    }
    tries = 0;
    ++i;
  }
  return kOtherFormat;
}

}  // namespace tqcim
