// The schema that the program carries keeps the rules of the platform and of the project.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "host/activation.h"
#include "host/schema.h"

namespace tqcim::host {
namespace {

const Schema& Shipped() {
  static const Schema schema = Schema::Embedded();
  return schema;
}

std::set<std::string> KeysOf(const ClassDefinition& definition) {
  std::set<std::string> keys;
  for (const auto& property : definition.properties) {
    if (property->key) keys.emplace(property->name);
  }
  return keys;
}

TEST(ShippedSchema, ServesTheClassesOfTheProvider) {
  std::set<std::string> served;
  for (const ClassDefinition& definition : Shipped().Classes()) {
    if (definition.provider.empty()) continue;
    EXPECT_EQ("tqcim", definition.provider) << definition.name;
    EXPECT_NE(nullptr, FindQualifier(definition.qualifiers, "Dynamic")) << definition.name;
    served.emplace(definition.name);
  }
  EXPECT_EQ((std::set<std::string>{"CIM_BIOSElement",
                                   "CIM_CurrentSensor",
                                   "CIM_DiscreteSensor",
                                   "CIM_FRU",
                                   "CIM_Fan",
                                   "CIM_PackageCurrentSensor",
                                   "CIM_PackageFanSensor",
                                   "CIM_PackagePowerSupply",
                                   "CIM_PackageTempSensor",
                                   "CIM_PackageVoltSensor",
                                   "CIM_ParallelController",
                                   "CIM_PhysicalMemory",
                                   "CIM_PointingDevice",
                                   "CIM_PowerSupply",
                                   "CIM_Processor",
                                   "CIM_SerialController",
                                   "CIM_Slot",
                                   "CIM_Tachometer",
                                   "CIM_TemperatureSensor",
                                   "CIM_VoltageSensor",
                                   "CIM_Watchdog",

                                   "VORN_AssociatedSupplyPCAmps",
                                   "VORN_AssociatedSystemPCData",
                                   "VORN_AssociatedSystemPCWatts",
                                   "VORN_BIOSExtensions",
                                   "VORN_BIOSSettings",
                                   "VORN_Baseboard",
                                   "VORN_Chassis",
                                   "VORN_EsmLog",
                                   "VORN_FanRedundancyGroup",
                                   "VORN_FanSensor",
                                   "VORN_Firmware",
                                   "VORN_ManagedSystemServicesDevice",
                                   "VORN_NetworkPort",
                                   "VORN_PSRedundancy",
                                   "VORN_PSRedundancyGroup",
                                   "VORN_PackageDiscreteSensor",
                                   "VORN_PackagePSRedundancy",
                                   "VORN_PostLog",
                                   "VORN_PowerConsumptionAmpsSensor",
                                   "VORN_PowerConsumptionData",
                                   "VORN_PowerConsumptionWattsSensor",
                                   "VORN_PowerProfileData",
                                   "VORN_SDCardDevice",
                                   "VORN_System",
                                   "Vorn_RemoteAccessServicePort",
                                   "Vorn_SoftwareFeature"}),
            served);
}

TEST(ShippedSchema, RegistersTheProvider) {
  const ProviderRegistration registration = FindRegistration(Shipped());
  const CLSID expected = {
      0x5e3a9c17, 0x4b2d, 0x41f0, {0x9a, 0x6e, 0x2c, 0x7d, 0x81, 0xb0, 0xe4, 0xf3}};
  EXPECT_EQ("tqcim", registration.name);
  EXPECT_TRUE(IsEqualGUID(expected, registration.clsid));
}

TEST(ShippedSchema, IdentifiesInstancesByTheseKeys) {
  const std::pair<const char*, std::set<std::string>> rows[] = {
      {"VORN_System", {"CreationClassName", "Name"}},
      {"VORN_Chassis", {"CreationClassName", "Tag"}},
      {"CIM_Processor", {"CreationClassName", "DeviceID", "SystemCreationClassName", "SystemName"}},
      {"CIM_PhysicalMemory", {"CreationClassName", "Tag"}},
      {"CIM_BIOSElement",
       {"Name", "SoftwareElementID", "SoftwareElementState", "TargetOperatingSystem", "Version"}},
      {"VORN_Firmware",
       {"Name", "SoftwareElementID", "SoftwareElementState", "TargetOperatingSystem", "Version"}},
      {"Vorn_SoftwareFeature", {"IdentifyingNumber", "Name", "ProductName", "Vendor", "Version"}},
      {"VORN_BIOSSettings", {"VornInstanceID"}},
      {"VORN_BIOSExtensions", {}},
  };
  for (const auto& [name, keys] : rows) {
    ASSERT_NE(nullptr, Shipped().Find(name)) << name;
    EXPECT_EQ(keys, KeysOf(*Shipped().Find(name))) << name;
    EXPECT_EQ(keys.empty(), Shipped().Find(name)->singleton) << name;
  }
}

TEST(ShippedSchema, ServedClassesAreConcreteAndTheirInstancesCanBeTold) {
  for (const ClassDefinition& definition : Shipped().Classes()) {
    if (definition.provider.empty()) continue;
    EXPECT_FALSE(definition.abstract) << definition.name;
    EXPECT_EQ(KeysOf(definition).empty(), definition.singleton) << definition.name;
  }
}

TEST(ShippedSchema, DescribesEveryClassAndProperty) {
  for (const ClassDefinition& definition : Shipped().Classes()) {
    EXPECT_FALSE(definition.Description().empty()) << definition.name;
    for (const auto& property : definition.properties) {
      EXPECT_FALSE(property->Description().empty()) << definition.name << "." << property->name;
      EXPECT_TRUE(property->Description().ends_with('.'))
          << definition.name << "." << property->name;
    }
  }
}

TEST(ShippedSchema, ValueMapsHaveOneWordForEachValue) {
  for (const ClassDefinition& definition : Shipped().Classes()) {
    for (const auto& property : definition.properties) {
      const Qualifier* map = FindQualifier(property->qualifiers, "ValueMap");
      const Qualifier* values = FindQualifier(property->qualifiers, "Values");
      ASSERT_EQ(map == nullptr, values == nullptr) << definition.name << "." << property->name;
      if (!map) continue;
      const Array codes = std::get<Array>(map->value());
      EXPECT_EQ(codes.size(), std::get<Array>(values->value()).size()) << property->name;
      EXPECT_EQ(codes.size(), std::set<Scalar>(codes.begin(), codes.end()).size())
          << property->name;
    }
  }
}

TEST(ShippedSchema, ClassesStandAfterTheirSuperclasses) {
  std::set<std::string_view> seen;
  for (const ClassDefinition& definition : Shipped().Classes()) {
    EXPECT_TRUE(definition.superclass.empty() || seen.contains(definition.superclass))
        << definition.name;
    seen.insert(definition.name);
  }
}

TEST(ShippedSchema, ReferencesPointToItsClasses) {
  for (const ClassDefinition& definition : Shipped().Classes()) {
    for (const PropertyDefinition& property : definition.declared) {
      EXPECT_EQ(property.type == CimType::kReference,
                Shipped().Find(property.reference_class) != nullptr)
          << definition.name << "." << property.name;
    }
  }
}

TEST(ShippedSchema, ReferencesStandInAssociationsWhichHaveTwo) {
  for (const ClassDefinition& definition : Shipped().Classes()) {
    const auto references = std::ranges::count_if(definition.properties, [](const auto* property) {
      return property->type == CimType::kReference;
    });
    if (definition.association) {
      EXPECT_GE(references, 2) << definition.name;
    } else {
      // Its antecedent is a bare name.
      EXPECT_EQ(definition.name == "VORN_AssociatedSystemPCData" ? 1 : 0, references)
          << definition.name;
    }
  }
}

TEST(ShippedSchema, OverrideStandsAtWhatIsDeclaredAgainAndNamesIt) {
  for (const ClassDefinition& definition : Shipped().Classes()) {
    const ClassDefinition* superclass = Shipped().Find(definition.superclass);
    for (const PropertyDefinition& property : definition.declared) {
      const bool again = superclass && superclass->Find(property.name);
      EXPECT_EQ(again ? property.name : "", QualifierText(property.qualifiers, "Override"))
          << definition.name << "." << property.name;
    }
  }
}

TEST(ShippedSchema, CarriesCodesAtTheirFullWidth) {
  const std::pair<const char*, const char*> uint32_properties[] = {
      {"CIM_Processor", "Family"},         {"CIM_Processor", "UpgradeMethod"},
      {"CIM_Processor", "CPUStatus"},      {"CIM_Processor", "CoreCount"},
      {"CIM_PhysicalMemory", "DataWidth"}, {"CIM_PhysicalMemory", "TotalWidth"},
      {"CIM_PhysicalMemory", "Speed"},     {"VORN_Chassis", "SystemClass"}};
  for (const auto& [class_name, property] : uint32_properties) {
    EXPECT_EQ("uint32", Shipped().Find(class_name)->Find(property)->TypeText()) << property;
  }
  EXPECT_EQ("uint32[]", Shipped().Find("VORN_Chassis")->Find("ChassisTypes")->TypeText());
  EXPECT_EQ("uint64", Shipped().Find("CIM_PhysicalMemory")->Find("Capacity")->TypeText());
  EXPECT_EQ("datetime", Shipped().Find("CIM_BIOSElement")->Find("InstallDate")->TypeText());
}

}  // namespace
}  // namespace tqcim::host
