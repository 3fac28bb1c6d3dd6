#include "classes/chassis_sensors/discrete_sensor.h"

#include "platform/layouts/probes.h"

namespace tqcim {

bool IsDiscreteSensor(const DataObject& object, uint16_t walkedType) {
  if (walkedType == layout::processor_sensor::kType ||
      walkedType == layout::battery_sensor::kType) {
    return true;
  }
  switch (object[layout::probe::kSubtype]) {
    case 17:
    case 19:
    case 20:
    case 21:
      return true;
    default:
      return false;
  }
}

}  // namespace tqcim
