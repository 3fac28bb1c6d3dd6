// The table of registered classes, and the registry that is made of it when the module is loaded.
#include <gtest/gtest.h>

#include <iterator>
#include <memory>
#include <new>
#include <stdexcept>
#include <typeinfo>

#include "classes/chassis_sensors/handlers.h"
#include "classes/inventory/handlers.h"
#include "classes/power/handlers.h"
#include "core/class_registry.h"
#include "core/vorn_system.h"

namespace {

/// What operator new(nothrow) gave out first in this process: the handlers, in the order of their
/// registration, as nothing else asks for memory in this way while the program is loaded.
constinit void* made[48] = {};
constinit size_t madeCount = 0;

}  // namespace

void* operator new(size_t size, const std::nothrow_t&) noexcept {
  void* memory = nullptr;
  try {
    memory = ::operator new(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
  if (madeCount < std::size(made)) made[madeCount++] = memory;
  return memory;
}

namespace tqcim {
namespace {

struct ExpectedRow {
  const char* name;
  const std::type_info& handler;
};

const ExpectedRow kRows[] = {
    {"VORN_BIOSSettings", typeid(Vorn_BIOSSettings)},
    {"VORN_System", typeid(Vorn_System)},
    {"Vorn_RemoteAccessServicePort", typeid(Vorn_RemoteAccessServicePort)},
    {"VORN_SDCardDevice", typeid(Vorn_SDCardDevice)},
    {"VORN_PSRedundancyGroup", typeid(VORN_PSRedundancyGroup)},
    {"VORN_PowerProfileData", typeid(Vorn_PowerProfileData)},
    {"VORN_PSRedundancy", typeid(Vorn_PSRedundancy)},
    {"VORN_PowerConsumptionData", typeid(VORN_PowerConsumptionData)},
    {"VORN_PowerConsumptionWattsSensor", typeid(VORN_PowerConsumptionWattsSensor)},
    {"VORN_PowerConsumptionAmpsSensor", typeid(VORN_PowerConsumptionAmpsSensor)},
    {"VORN_FanSensor", typeid(VORN_FanSensor)},
    {"VORN_ManagedSystemServicesDevice", typeid(Vorn_ManagedSystemServicesDevice)},
    {"VORN_PackagePSRedundancy", typeid(VORN_PackagePSRedundancy)},
    {"VORN_NetworkPort", typeid(VORN_NetworkPort)},
    {"VORN_PackageDiscreteSensor", typeid(VORN_PackageDiscreteSensor)},
    {"VORN_PostLog", typeid(VORN_PostLog)},
    {"VORN_FanRedundancyGroup", typeid(VORN_FanRedundancyGroup)},
    {"VORN_AssociatedSupplyPCAmps", typeid(Vorn_AssociatedSupplyPCAmps)},
    {"VORN_AssociatedSystemPCData", typeid(VORN_AssociatedSystemPCData)},
    {"VORN_AssociatedSystemPCWatts", typeid(VORN_AssociatedSystemPCWatts)},
    {"VORN_Baseboard", typeid(VORN_Baseboard)},
    {"VORN_BIOSExtensions", typeid(Vorn_BIOSExtensions)},
    {"VORN_EsmLog", typeid(Vorn_esmlog)},
    {"VORN_FanRedundancyGroup", typeid(VORN_FanRedundancyGroup)},
    {"CIM_BIOSElement", typeid(CIM_BIOSElement)},
    {"VORN_Chassis", typeid(VORN_Chassis)},
    {"CIM_CurrentSensor", typeid(CIM_CurrentSensor)},
    {"CIM_DiscreteSensor", typeid(CIM_DiscreteSensor)},
    {"CIM_TemperatureSensor", typeid(CIM_TemperatureSensor)},
    {"CIM_VoltageSensor", typeid(CIM_VoltageSensor)},
    {"CIM_Watchdog", typeid(CIM_Watchdog)},
    {"CIM_FRU", typeid(CIM_Fru)},
    {"CIM_Fan", typeid(CIM_Fan)},
    {"Vorn_SoftwareFeature", typeid(CIM_SoftwareFeature)},
    {"CIM_Tachometer", typeid(CIM_Tachometer)},
    {"VORN_Firmware", typeid(CIM_SoftwareElement)},
    {"CIM_PackageFanSensor", typeid(CIM_PackageFanSensor)},
    {"CIM_PackageCurrentSensor", typeid(CIM_PackageCurrentSensor)},
    {"CIM_PackageTempSensor", typeid(CIM_PackageTempSensor)},
    {"CIM_PackagePowerSupply", typeid(CIM_PackagePowerSupply)},
    {"CIM_PackageVoltSensor", typeid(CIM_PackageVoltSensor)},
    {"CIM_ParallelController", typeid(CIM_ParallelController)},
    {"CIM_PhysicalMemory", typeid(CIM_PhysicalMemory)},
    {"CIM_PointingDevice", typeid(CIM_PointingDevice)},
    {"CIM_Processor", typeid(CIM_Processor)},
    {"CIM_PowerSupply", typeid(CIM_PowerSupply)},
    {"CIM_SerialController", typeid(CIM_SerialController)},
    {"CIM_Slot", typeid(CIM_Slot)},
};

/// Positions of the two rows of VORN_FanRedundancyGroup.
constexpr size_t kReplaced = 16;
constexpr size_t kReplacing = 23;

TEST(RegisteredClassesTest, TheTableHasTheseNamesInThisOrder) {
  ASSERT_EQ(48u, kRegisteredClasses.size());
  ASSERT_EQ(48u, std::size(kRows));
  for (size_t i = 0; i < 48; ++i) {
    EXPECT_STREQ(kRows[i].name, kRegisteredClasses[i].name) << "row " << i + 1;
  }
}

TEST(RegisteredClassesTest, EachRowMakesItsHandler) {
  ASSERT_EQ(std::size(kRows), kRegisteredClasses.size());
  for (size_t i = 0; i < std::size(kRows); ++i) {
    const std::unique_ptr<BaseClass> handler(kRegisteredClasses[i].makeHandler());
    const BaseClass& madeHandler = *handler;
    EXPECT_TRUE(kRows[i].handler == typeid(madeHandler)) << kRows[i].name;
  }
}

TEST(RegisteredClassesTest, EveryNameIsAnsweredByTheHandlerOfItsRow) {
  ASSERT_EQ(48u, madeCount);
  for (size_t i = 0; i < std::size(kRows); ++i) {
    BaseClass* const handler = Lookup(kRows[i].name);
    ASSERT_NE(nullptr, handler) << kRows[i].name;
    EXPECT_TRUE(kRows[i].handler == typeid(*handler)) << kRows[i].name;
    if (i == kReplaced) continue;
    EXPECT_EQ(made[i], dynamic_cast<void*>(handler)) << kRows[i].name;
  }
}

TEST(RegisteredClassesTest, TheSecondFanRedundancyGroupHandlerReplacesTheFirst) {
  void* const handler = dynamic_cast<void*>(Lookup("VORN_FanRedundancyGroup"));
  EXPECT_EQ(made[kReplacing], handler);
  EXPECT_NE(made[kReplaced], handler);
}

TEST(RegisteredClassesTest, ANameIsMatchedExactlyCaseIncluded) {
  for (const char* name :
       {"", "VORN_", "vorn_system", "Vorn_System", "VORN_SYSTEM", "VORN_System ", " VORN_System",
        "VORN_SystemX", "VORN_Syste", "VORN_RemoteAccessServicePort", "VORN_SoftwareFeature",
        "Vorn_Baseboard", "Vorn_NetworkPort", "Vorn_SDCardDevice", "CIM_Fru", "CIM_SoftwareFeature",
        "CIM_SoftwareElement", "CIM_System", "Vorn_esmlog"}) {
    try {
      Lookup(name);
      ADD_FAILURE() << name << " was found";
    } catch (const std::out_of_range& failure) {
      EXPECT_STREQ("invalid map<K, T> key", failure.what()) << name;
    }
  }
}

}  // namespace
}  // namespace tqcim
