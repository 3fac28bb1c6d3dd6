/// The associations that place numeric sensors in their chassis.
#pragma once

#include <cstdint>

#include "core/base_class.h"
#include "core/object_path.h"

namespace tqcim {

/// One of the four association classes.
struct SensorPackageClass {
  uint16_t objectType;
  /// Reference to a sensor: "%s" takes the computer's name, "%d" the sensor number.
  PathFormat sensorPathFormat;
};

/// Pairs each chassis with its sensors, from the counts alone; a sensor's number is the chassis's
/// position times 100 plus its own. The position carries over from one chassis to the next, so a
/// later chassis adds only what it has beyond all before it. The result is that of the last
/// release.
HRESULT EnumerateSensorPackage(const SensorPackageClass& packageClass,
                               IWbemClassObject* classDefinition, IWbemObjectSink* sink);

}  // namespace tqcim
