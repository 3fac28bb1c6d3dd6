#include "classes/chassis_sensors/handlers.h"
#include "classes/inventory/handlers.h"
#include "classes/power/handlers.h"
#include "core/class_registry.h"
#include "core/vorn_system.h"

namespace tqcim {
namespace {

/// CIM class name as the management service passes it, and handler, in the order of registration.
/// Names and handlers differ in case and prefix here and there, and one name is registered twice:
/// clients use the names as they stand.
constexpr RegisteredClass kTable[] = {
    {"VORN_BIOSSettings", MakeHandler<Vorn_BIOSSettings>},
    {"VORN_System", MakeHandler<Vorn_System>},
    {"Vorn_RemoteAccessServicePort", MakeHandler<Vorn_RemoteAccessServicePort>},
    {"VORN_SDCardDevice", MakeHandler<Vorn_SDCardDevice>},
    {"VORN_PSRedundancyGroup", MakeHandler<VORN_PSRedundancyGroup>},
    {"VORN_PowerProfileData", MakeHandler<Vorn_PowerProfileData>},
    {"VORN_PSRedundancy", MakeHandler<Vorn_PSRedundancy>},
    {"VORN_PowerConsumptionData", MakeHandler<VORN_PowerConsumptionData>},
    {"VORN_PowerConsumptionWattsSensor", MakeHandler<VORN_PowerConsumptionWattsSensor>},
    {"VORN_PowerConsumptionAmpsSensor", MakeHandler<VORN_PowerConsumptionAmpsSensor>},
    {"VORN_FanSensor", MakeHandler<VORN_FanSensor>},
    {"VORN_ManagedSystemServicesDevice", MakeHandler<Vorn_ManagedSystemServicesDevice>},
    {"VORN_PackagePSRedundancy", MakeHandler<VORN_PackagePSRedundancy>},
    {"VORN_NetworkPort", MakeHandler<VORN_NetworkPort>},
    {"VORN_PackageDiscreteSensor", MakeHandler<VORN_PackageDiscreteSensor>},
    {"VORN_PostLog", MakeHandler<VORN_PostLog>},
    {"VORN_FanRedundancyGroup", MakeHandler<VORN_FanRedundancyGroup>},
    {"VORN_AssociatedSupplyPCAmps", MakeHandler<Vorn_AssociatedSupplyPCAmps>},
    {"VORN_AssociatedSystemPCData", MakeHandler<VORN_AssociatedSystemPCData>},
    {"VORN_AssociatedSystemPCWatts", MakeHandler<VORN_AssociatedSystemPCWatts>},
    {"VORN_Baseboard", MakeHandler<VORN_Baseboard>},
    {"VORN_BIOSExtensions", MakeHandler<Vorn_BIOSExtensions>},
    {"VORN_EsmLog", MakeHandler<Vorn_esmlog>},
    // Replaces the handler above, which stays allocated and unused.
    {"VORN_FanRedundancyGroup", MakeHandler<VORN_FanRedundancyGroup>},
    {"CIM_BIOSElement", MakeHandler<CIM_BIOSElement>},
    {"VORN_Chassis", MakeHandler<VORN_Chassis>},
    {"CIM_CurrentSensor", MakeHandler<CIM_CurrentSensor>},
    {"CIM_DiscreteSensor", MakeHandler<CIM_DiscreteSensor>},
    {"CIM_TemperatureSensor", MakeHandler<CIM_TemperatureSensor>},
    {"CIM_VoltageSensor", MakeHandler<CIM_VoltageSensor>},
    {"CIM_Watchdog", MakeHandler<CIM_Watchdog>},
    {"CIM_FRU", MakeHandler<CIM_Fru>},
    {"CIM_Fan", MakeHandler<CIM_Fan>},
    {"Vorn_SoftwareFeature", MakeHandler<CIM_SoftwareFeature>},
    {"CIM_Tachometer", MakeHandler<CIM_Tachometer>},
    {"VORN_Firmware", MakeHandler<CIM_SoftwareElement>},
    {"CIM_PackageFanSensor", MakeHandler<CIM_PackageFanSensor>},
    {"CIM_PackageCurrentSensor", MakeHandler<CIM_PackageCurrentSensor>},
    {"CIM_PackageTempSensor", MakeHandler<CIM_PackageTempSensor>},
    {"CIM_PackagePowerSupply", MakeHandler<CIM_PackagePowerSupply>},
    {"CIM_PackageVoltSensor", MakeHandler<CIM_PackageVoltSensor>},
    {"CIM_ParallelController", MakeHandler<CIM_ParallelController>},
    {"CIM_PhysicalMemory", MakeHandler<CIM_PhysicalMemory>},
    {"CIM_PointingDevice", MakeHandler<CIM_PointingDevice>},
    {"CIM_Processor", MakeHandler<CIM_Processor>},
    {"CIM_PowerSupply", MakeHandler<CIM_PowerSupply>},
    {"CIM_SerialController", MakeHandler<CIM_SerialController>},
    {"CIM_Slot", MakeHandler<CIM_Slot>},
};

}  // namespace

constinit const std::span<const RegisteredClass> kRegisteredClasses{kTable};

}  // namespace tqcim
