#include <cstdint>

#include "tools/formats.h"
#include "tools/json_writer.h"

namespace tqcim::tools {

void WriteInstances(JsonWriter& json, const std::vector<host::Instance>& instances) {
  json.Array([&] {
    for (const host::Instance& instance : instances) {
      json.Object([&] {
        for (const host::Property& property : instance.properties) {
          json.Member(property.name, property.value);
        }
      });
    }
  });
}

std::string JsonText(const std::vector<host::Instance>& instances) {
  JsonWriter json;
  WriteInstances(json, instances);
  return std::move(json).Document();
}

std::string JsonText(const std::vector<ClassSummary>& classes) {
  JsonWriter json;
  json.Array([&] {
    for (const ClassSummary& summary : classes) {
      json.Object([&] {
        json.Member("class", summary.name);
        json.Member("instances", uint64_t{summary.instances});
        json.Member("status", summary.status ? host::Value(*summary.status) : host::Value());
      });
    }
  });
  return std::move(json).Document();
}

}  // namespace tqcim::tools
