#include "bench/scaled_server.h"

#include <embedded/samples.h>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <vector>

#include "store/store_control.h"

namespace tqcim::bench {
namespace {

using Json = nlohmann::json;

/// Which objects below the main chassis become instances of the class; the records of the logs
/// where it says eventLog. Where only some of a type do, `like` is the OID of one in the sample.
struct ScaledType {
  std::string_view className;
  std::string_view type;
  uint32_t like = 0;
};
constexpr ScaledType kScaledTypes[] = {{"CIM_TemperatureSensor", "temperatureProbe"},
                                       {"CIM_PackageTempSensor", "temperatureProbe"},
                                       {"CIM_VoltageSensor", "voltageProbe"},
                                       {"CIM_PackageVoltSensor", "voltageProbe"},
                                       {"CIM_CurrentSensor", "currentProbe"},
                                       {"CIM_PackageCurrentSensor", "currentProbe"},
                                       {"CIM_Tachometer", "fanProbe"},
                                       {"CIM_Fan", "fanProbe"},
                                       {"CIM_PackageFanSensor", "fanProbe"},
                                       {"VORN_FanSensor", "fanProbe"},
                                       {"VORN_PackageDiscreteSensor", "voltageProbe", 34},
                                       {"VORN_PowerConsumptionAmpsSensor", "currentProbe", 40},
                                       {"VORN_PowerConsumptionWattsSensor", "currentProbe", 42},
                                       {"VORN_AssociatedSystemPCWatts", "currentProbe", 42},
                                       {"VORN_AssociatedSupplyPCAmps", "currentProbe", 40},
                                       {"CIM_DiscreteSensor", "processorSensor"},
                                       {"VORN_EsmLog", "eventLog"},
                                       {"VORN_PostLog", "eventLog"},
                                       {"CIM_Watchdog", "watchdog"},
                                       {"CIM_PowerSupply", "powerSupply"},
                                       {"CIM_PackagePowerSupply", "powerSupply"},
                                       {"VORN_PSRedundancy", "powerSupply", 50},
                                       {"VORN_PSRedundancyGroup", "redundancyGroup", 60},
                                       {"VORN_PackagePSRedundancy", "redundancyGroup", 60},
                                       {"VORN_FanRedundancyGroup", "redundancyGroup", 61},
                                       {"CIM_Processor", "processorDevice"},
                                       {"CIM_PhysicalMemory", "memoryDevice"},
                                       {"VORN_Firmware", "firmware"},
                                       {"VORN_Baseboard", "baseboard"},
                                       {"CIM_FRU", "fru"},
                                       {"CIM_Slot", "slot"},
                                       {"CIM_SerialController", "serialPort"},
                                       {"CIM_ParallelController", "parallelPort"},
                                       {"CIM_PointingDevice", "pointingDevice"},
                                       {"VORN_NetworkPort", "networkAdapter"},
                                       {"VORN_SDCardDevice", "sdCard"}};

class Server {
 public:
  Server() : document_(Json::parse(SampleText())) {
    for (const Json& object : Objects()) {
      nextOid_ = std::max(nextOid_, object.at("oid").get<uint32_t>() + 1);
    }
  }

  void Scale(const ScaledType& row, uint32_t count) {
    row.type == "eventLog" ? ScaleRecords(count) : ScaleObjects(row, count);
  }

  void Open() const {
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / "tqcim-bench-server.json";
    std::ofstream(file, std::ios::binary) << document_;
    char message[1024] = {};
    const std::u8string name = file.u8string();
    const std::string source = "store-file:" + std::string(name.begin(), name.end());
    const int32_t failed = TQStoreOpen(source.c_str(), message, sizeof message);
    std::filesystem::remove(file);
    if (failed != 0) throw std::runtime_error(message);
  }

 private:
  static std::string_view SampleText() { return embedded::samples::kFiles[0].contents; }

  Json& Objects() { return document_.at("objects"); }

  void ScaleRecords(uint32_t count) {
    for (Json& object : Objects()) {
      if (object.at("type") != "eventLog") continue;
      const Json few = object.at("records");
      Json& records = object["records"] = Json::array();
      for (uint32_t i = 0; i < count; ++i) records.push_back(few.at(i % few.size()));
    }
  }

  void ScaleObjects(const ScaledType& row, uint32_t count) {
    std::vector<Family> few;
    for (const Json& object : Objects()) {
      if (object.at("type") != row.type) continue;
      if (row.like == 0 || object.at("oid") == row.like)
        few.push_back({object, ChildrenOf(object)});
    }
    for (uint32_t i = static_cast<uint32_t>(few.size()); i < count; ++i) Add(few[i % few.size()]);
  }

  /// An object, and a child of each type that it has.
  struct Family {
    Json object;
    std::vector<Json> children;
  };

  std::vector<Json> ChildrenOf(const Json& parent) {
    std::vector<Json> children;
    for (const Json& object : Objects()) {
      const Json parents = object.value("parents", Json::array());
      const auto isOfType = [&](const Json& child) {
        return child.at("type") == object.at("type");
      };
      if (std::ranges::find(parents, parent.at("oid")) != parents.end() &&
          std::ranges::none_of(children, isOfType)) {
        children.push_back(object);
      }
    }
    return children;
  }

  /// A copy of the family with OIDs of its own. The children are the copy's alone.
  void Add(Family family) {
    family.object["oid"] = nextOid_++;
    for (Json& child : family.children) {
      child["parents"] = Json::array({family.object.at("oid")});
      child["oid"] = nextOid_++;
      Objects().push_back(std::move(child));
    }
    Objects().push_back(std::move(family.object));
  }

  Json document_;
  uint32_t nextOid_ = 1;
};

}  // namespace

bool OpenScaledServer(std::string_view className, uint32_t instances) {
  Server server;
  bool scaled = false;
  for (const ScaledType& row : kScaledTypes) {
    if (row.className != className) continue;
    server.Scale(row, instances);
    scaled = true;
  }
  server.Open();
  return scaled;
}

}  // namespace tqcim::bench
