#include <algorithm>
#include <cstdint>
#include <iterator>

#include "tools/health.h"
#include "tools/health_parts.h"
#include "tools/health_reading.h"
#include "tools/json_writer.h"

namespace tqcim::tools {
namespace {

host::Value TextOrNull(const std::string& text) {
  return text.empty() ? host::Value() : host::Value(text);
}

host::Value PropertyOrNull(const host::Instance& instance, std::string_view name) {
  const host::Property* property = instance.Find(name);
  return property == nullptr ? host::Value() : property->value;
}

void WriteRecords(JsonWriter& json, const std::vector<LogEntry>& records) {
  json.Name("records");
  json.Array([&] {
    for (const LogEntry& record : records) {
      json.Object([&] {
        json.Member("class", std::string(record.instance.definition->name));
        json.Member("path", record.instance.Path());
        json.Member("time", TextOrNull(record.time));
        json.Member("status", record.severity);
        json.Member("text", record.text);
      });
    }
  });
}

host::Value UnitOf(const Finding& finding) {
  const host::PropertyDefinition* reading = finding.instance.definition->Find("CurrentReading");
  return reading == nullptr ? host::Value() : TextOrNull(reading->Units());
}

/// Null for a class without thresholds.
void WriteThresholds(JsonWriter& json, const host::Instance& instance) {
  std::vector<std::string_view> names;
  for (const auto& side : {LowerThresholds(), UpperThresholds()}) {
    std::copy_if(side.begin(), side.end(), std::back_inserter(names),
                 [&](std::string_view name) { return instance.Find(name) != nullptr; });
  }
  json.Name("thresholds");
  if (names.empty()) return json.Value({});
  json.Object([&] {
    for (const std::string_view name : names) json.Member(name, PropertyOrNull(instance, name));
  });
}

void WriteFinding(JsonWriter& json, const Finding& finding) {
  json.Object([&] {
    json.Member("class", std::string(finding.instance.definition->name));
    json.Member("path", finding.instance.Path());
    json.Member("name", NameOrKeys(finding));
    json.Member("verdict", VerdictText(finding.severity));
    json.Member("property", finding.property);
    json.Member("status", finding.status);
    json.Member("reading", PropertyOrNull(finding.instance, "CurrentReading"));
    json.Member("unit", UnitOf(finding));
    WriteThresholds(json, finding.instance);
    json.Member("error", PropertyOrNull(finding.instance, "ErrorDescription"));
    WriteRecords(json, finding.records);
  });
}

}  // namespace

std::string HealthJson(const Health& health) {
  JsonWriter json;
  json.Object([&] {
    json.Member("verdict", VerdictText(health.verdict));
    json.Member("status",
                health.system_status ? host::Value(*health.system_status) : host::Value());
    json.Member("source", health.source);
    json.Member("checked", uint64_t{health.checked});
    json.Member("ok", uint64_t{health.fine});
    json.Member("untold", uint64_t{health.untold});
    json.Member("logRecords", uint64_t{health.log_records});
    json.Name("findings");
    json.Array([&] {
      for (const Finding& finding : health.findings) WriteFinding(json, finding);
    });
    WriteRecords(json, health.records);
  });
  return std::move(json).Document();
}

}  // namespace tqcim::tools
