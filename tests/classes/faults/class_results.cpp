#include "tests/classes/faults/class_results.h"

namespace tqcim::testing {
namespace {

using enum FailedSpawn;

constexpr auto kSuccess = Nothing::kSuccess;
constexpr auto kNotFound = Nothing::kNotFound;
constexpr auto kEither = Nothing::kEither;
constexpr auto kLast = Delivery::kLast;
constexpr auto kStops = Delivery::kStops;
constexpr auto kRelease = Delivery::kRelease;
constexpr auto kAlwaysSuccess = Delivery::kSuccess;

constexpr TakenKey kNoKey{};
/// Get-one of a class that is only enumerated.
constexpr Outcome kNeverGot{0, kNotFound, kKept, kAlwaysSuccess};

constexpr TakenKey DeviceId(const OLECHAR* text) {
  return {OLESTR("DeviceID"), text};
}
constexpr TakenKey Tag(const OLECHAR* text) {
  return {OLESTR("Tag"), text};
}
constexpr TakenKey Name(const OLECHAR* text) {
  return {OLESTR("Name"), text};
}
constexpr TakenKey EndingSearch(TakenKey key) {
  key.failureEndsSearch = true;
  return key;
}

/// A class whose walk returns the sink's last answer, or a failed spawn's; the commonest.
constexpr Outcome Listed(size_t instances) {
  return {instances, kSuccess, kReported, kLast};
}
/// A class whose walk returns the last release, and keeps it where a spawn fails.
constexpr Outcome Released(size_t instances) {
  return {instances, kSuccess, kKept, kRelease};
}
/// One instance by its key, found or not.
constexpr Outcome Got(Nothing nothing) {
  return {1, nothing, kReported, kLast};
}

constexpr ClassResults kTable[] = {
    {"VORN_BIOSSettings", Listed(1), kNoKey, Got(kSuccess)},
    {"VORN_System", {1, kNotFound, kReported, kLast}, kNoKey, Got(kNotFound)},
    {"Vorn_RemoteAccessServicePort", {1, kSuccess, kKept, kAlwaysSuccess}, kNoKey, Got(kSuccess)},
    {"VORN_SDCardDevice", Listed(2), {OLESTR("DeviceID"), OLESTR("1"), true}, Got(kSuccess)},
    {"VORN_PSRedundancyGroup", {3, kSuccess, kKept, kLast}, Name(OLESTR("main")), Got(kSuccess)},
    {"VORN_PowerProfileData",
     {1, kSuccess, kKept, kAlwaysSuccess},
     kNoKey,
     {1, kNotFound, kReported, kAlwaysSuccess}},
    {"VORN_PSRedundancy", Released(2), kNoKey, kNeverGot},
    {"VORN_PowerConsumptionData",
     Listed(2),
     {OLESTR("DeviceID"), OLESTR("1"), false, true},
     {1, kNotFound, kReported, kAlwaysSuccess}},
    {"VORN_PowerConsumptionWattsSensor", Released(2), DeviceId(OLESTR("1")), Got(kSuccess)},
    {"VORN_PowerConsumptionAmpsSensor", Released(2), DeviceId(OLESTR("3")), Got(kSuccess)},
    {"VORN_FanSensor", {4, kSuccess, kKept, kLast}, kNoKey, {0, kSuccess, kKept, kAlwaysSuccess}},
    {"VORN_ManagedSystemServicesDevice", Released(1), kNoKey, {1, kNotFound, kReported, kRelease}},
    {"VORN_PackagePSRedundancy", Released(2), kNoKey, kNeverGot},
    {"VORN_NetworkPort", Released(2), kNoKey, kNeverGot},
    {"VORN_PackageDiscreteSensor", {3, kSuccess, kKept, kAlwaysSuccess}, kNoKey, kNeverGot},
    {"VORN_PostLog",
     {2, kSuccess, kKept, kStops},
     {OLESTR("RecordNumber"), OLESTR("1")},
     Got(kEither)},
    {"VORN_FanRedundancyGroup", {3, kSuccess, kKept, kLast}, Name(OLESTR("Fans")), Got(kSuccess)},
    {"VORN_AssociatedSupplyPCAmps", Released(2), kNoKey, kNeverGot},
    {"VORN_AssociatedSystemPCData", Released(2), kNoKey, kNeverGot},
    {"VORN_AssociatedSystemPCWatts", Released(2), kNoKey, kNeverGot},
    {"VORN_Baseboard", Listed(2), Tag(OLESTR("1")), Got(kNotFound)},
    {"VORN_BIOSExtensions", Released(1), kNoKey, {1, kNotFound, kKept, kRelease}},
    {"VORN_EsmLog",
     {3, kSuccess, kReported, kAlwaysSuccess},
     {OLESTR("RecordNumber"), OLESTR("2"), true},
     Got(kEither)},
    {"CIM_BIOSElement", Listed(1), kNoKey, Got(kNotFound)},
    // The chassis without a description goes by any tag, too.
    {"VORN_Chassis",
     {3, kSuccess, kReported, kStops},
     Tag(OLESTR("Shelf")),
     {2, kSuccess, kReported, kLast}},
    {"CIM_CurrentSensor", Listed(6), DeviceId(OLESTR("3")), Got(kSuccess)},
    {"CIM_DiscreteSensor", Released(11), DeviceId(OLESTR("2000220")), Got(kSuccess)},
    {"CIM_TemperatureSensor", Listed(6), DeviceId(OLESTR("1")), Got(kSuccess)},
    {"CIM_VoltageSensor", Listed(6), DeviceId(OLESTR("105")), Got(kSuccess)},
    {"CIM_Watchdog", Listed(1), kNoKey, kNeverGot},
    {"CIM_FRU", Listed(4), kNoKey, kNeverGot},
    {"CIM_Fan", Listed(6), DeviceId(OLESTR("0")), Got(kSuccess)},
    {"Vorn_SoftwareFeature", Listed(1), kNoKey, Got(kNotFound)},
    {"CIM_Tachometer", Listed(6), DeviceId(OLESTR("1")), Got(kSuccess)},
    {"VORN_Firmware", Listed(2), kNoKey, kNeverGot},
    {"CIM_PackageFanSensor", Released(4), kNoKey, kNeverGot},
    {"CIM_PackageCurrentSensor", Released(4), kNoKey, kNeverGot},
    {"CIM_PackageTempSensor", Released(4), kNoKey, kNeverGot},
    {"CIM_PackagePowerSupply", Released(4), kNoKey, kNeverGot},
    {"CIM_PackageVoltSensor", Released(4), kNoKey, kNeverGot},
    {"CIM_ParallelController", Listed(1), kNoKey, kNeverGot},
    {"CIM_PhysicalMemory", Listed(2), EndingSearch(Tag(OLESTR("1"))), Got(kNotFound)},
    {"CIM_PointingDevice", Listed(2), kNoKey, kNeverGot},
    {"CIM_Processor", Listed(2), EndingSearch(DeviceId(OLESTR("0"))), Got(kSuccess)},
    {"CIM_PowerSupply", {7, kSuccess, kKept, kLast}, DeviceId(OLESTR("PS4")), Got(kSuccess)},
    {"CIM_SerialController", Listed(2), kNoKey, kNeverGot},
    {"CIM_Slot", Listed(2), kNoKey, kNeverGot},
};

}  // namespace

constinit const std::span<const ClassResults> kClassResults{kTable};

}  // namespace tqcim::testing
