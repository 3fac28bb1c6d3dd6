/// The record of the system's power consumption, as the tests of its class arrange it.
#pragma once

#include <string>

#include "tests/classes/power/power_test.h"
#include "tests/support/time_zone.h"

namespace tqcim::testing {

/// One record, in a process at UTC.
class PowerConsumptionRecordTest : public PowerTest {
 protected:
  PowerConsumptionRecordTest() {
    store.Add(500, 40)
        .U32(16, 12345)
        .I64(20, 1426325213)
        .U32(28, 430)
        .I64(32, 1426411613)
        .I64(40, 1426498013)
        .U32(48, 21)
        .I64(52, 1426584413)
        .I64(60, 1426670813)
        .U32(68, 120)
        .U32(72, 750)
        .U32(76, 500)
        .U16(80, 3)
        .U16(82, 1)
        .U32(84, 290)
        .U32(88, 320)
        .U32(92, 0xDEADBEEF)
        .Utf8(96, "System power");
    store.List(2, 40, {500});
  }

  /// `parTime` for a moment, which stands at an odd multiple of 4.
  std::string TimeOf(int64_t secondsSince1970) {
    store.Object(500).I64(60, secondsSince1970);
    Enumerate("VORN_PowerConsumptionData");
    return Value(DeliveredCount() - 1, "parTime");
  }

 private:
  const TimeZone utc_{"UTC0"};
};

}  // namespace tqcim::testing
