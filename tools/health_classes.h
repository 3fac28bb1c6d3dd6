/// Which class tells the state of what. Several classes show the same object of the store; each
/// fault is to be told once.
#pragma once

#include <string_view>
#include <vector>

namespace tqcim::tools {

struct LeftOut {
  std::string_view class_name;
  std::string_view reason;
};

/// Classes with a Status that isn't asked for.
inline constexpr LeftOut kLeftOut[] = {
    {"CIM_Fan", "the fan probes of CIM_Tachometer, without their readings"},
    {"VORN_PowerConsumptionAmpsSensor", "current probes, all of which CIM_CurrentSensor has"},
    {"VORN_PowerConsumptionWattsSensor", "current probes, all of which CIM_CurrentSensor has"},
    {"VORN_EsmLog", "history, no present state"},
    {"VORN_PostLog", "history, no present state"},
};

inline constexpr std::string_view kLogClasses[] = {"VORN_EsmLog", "VORN_PostLog"};

/// A probe whose reading is a state is an instance of this class, which has the state in words, and
/// of the class of its kind of probe as well.
inline constexpr std::string_view kDiscreteClass = "CIM_DiscreteSensor";

struct ProbeKind {
  std::string_view sensor_type;  ///< CIM_Sensor.SensorType
  std::string_view class_name;
};
inline constexpr ProbeKind kProbeKinds[] = {{"2", "CIM_TemperatureSensor"},
                                            {"3", "CIM_VoltageSensor"},
                                            {"4", "CIM_CurrentSensor"},
                                            {"5", "CIM_Tachometer"}};

/// A status that sums up others. It is a finding of its own only where no part that it sums up
/// shows as bad a fault.
struct RollUp {
  std::string_view class_name;
  std::string_view property;
  /// What it sums up; empty stands for everything.
  std::vector<std::string_view> parts;
};

/// From the parts to the whole.
inline const std::vector<RollUp>& RollUps() {
  static const std::vector<RollUp> kRollUps = {
      {"VORN_Chassis", "TempStatus", {"CIM_TemperatureSensor", kDiscreteClass}},
      {"VORN_Chassis", "FanStatus", {"CIM_Tachometer", kDiscreteClass}},
      {"VORN_Chassis", "VoltStatus", {"CIM_VoltageSensor", kDiscreteClass}},
      {"VORN_Chassis", "AmpStatus", {"CIM_CurrentSensor", kDiscreteClass}},
      {"VORN_Chassis", "MemStatus", {"CIM_PhysicalMemory"}},
      {"VORN_Chassis", "ProcStatus", {"CIM_Processor"}},
      {"VORN_Chassis", "PsStatus", {"CIM_PowerSupply"}},
      {"VORN_Chassis", "VrmStatus", {"CIM_PowerSupply"}},
      {"VORN_Chassis", "PsRedStatus", {"VORN_PSRedundancyGroup"}},
      {"VORN_Chassis", "FanRedStatus", {"VORN_FanRedundancyGroup"}},
      // No part tells the state of a log itself.
      {"VORN_Chassis", "EsmLogStatus", {"VORN_EsmLog"}},
      {"VORN_Chassis", "Status", {}},
      {"VORN_System", "Status", {}},
  };
  return kRollUps;
}

}  // namespace tqcim::tools
