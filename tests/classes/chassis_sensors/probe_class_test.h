/// What the classes that publish one instance for each probe of a type have in common.
#pragma once

#include <ostream>

#include "tests/classes/chassis_sensors/several_chassis.h"

namespace tqcim::testing {

struct ProbeClass {
  const char* name;
  uint16_t objectType;
};

inline std::ostream& operator<<(std::ostream& out, const ProbeClass& probeClass) {
  return out << probeClass.name;
}

/// Two chassis: three probes in the first, two in the second. Each class instantiates these tests
/// in a source of its own.
class ProbeClassTest : public SeveralChassisTest, public ::testing::WithParamInterface<ProbeClass> {
 protected:
  ProbeClassTest() {
    ListChassis({2, 3});
    ListProbes(2, kType, {201, 202, 203});
    ListProbes(3, kType, {301, 302});
  }

  HRESULT EnumerateClass() { return Enumerate(kName); }
  HRESULT GetByDeviceId(const OLECHAR* deviceId) {
    return Get(kName, StringKey(OLESTR("DeviceID"), deviceId));
  }

  /// The names of the probes delivered.
  Texts Names() const { return Values("Name"); }

  const char* const kName = GetParam().name;
  const uint16_t kType = GetParam().objectType;
};

}  // namespace tqcim::testing
