/// What the associations between a chassis and its numeric sensors have in common.
#pragma once

#include <ostream>

#include "tests/classes/chassis_sensors/several_chassis.h"

namespace tqcim::testing {

struct PackageClass {
  const char* name;
  uint16_t objectType;
};

inline std::ostream& operator<<(std::ostream& out, const PackageClass& packageClass) {
  return out << packageClass.name;
}

/// Two chassis without sensors. Sensors are listed and not read: there are none to read. Each class
/// instantiates these tests in a source of its own.
class SensorPackageTest : public SeveralChassisTest,
                          public ::testing::WithParamInterface<PackageClass> {
 protected:
  SensorPackageTest() { ListChassis({2, 3}); }

  void ListSensors(uint32_t chassisOid, size_t count) {
    store.List(chassisOid, kType, std::vector<uint32_t>(count, 999));
  }

  HRESULT EnumerateClass() { return Enumerate(kName); }

  /// "Chassis 2: 0" for the pair of that chassis and that sensor number.
  Texts Pairs() const {
    Texts pairs;
    for (size_t i = 0; i < DeliveredCount(); ++i) {
      pairs.push_back(KeyOf(Value(i, "Dependent"), "Tag") + ": " +
                      KeyOf(Value(i, "Antecedent"), "DeviceID"));
    }
    return pairs;
  }

  const char* const kName = GetParam().name;
  const uint16_t kType = GetParam().objectType;
};

}  // namespace tqcim::testing
