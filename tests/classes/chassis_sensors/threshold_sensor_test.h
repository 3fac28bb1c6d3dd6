/// What the classes of numeric sensors have in common.
#pragma once

#include "tests/classes/chassis_sensors/probe_class_test.h"

namespace tqcim::testing {

/// The arrangement of ProbeClassTest. Each class instantiates these tests in a source of its own.
class ThresholdSensorTest : public ProbeClassTest {};

}  // namespace tqcim::testing
