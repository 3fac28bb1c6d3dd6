#include "tools/health.h"
#include "tools/health_parts.h"
#include "tools/health_reading.h"
#include "tools/json.h"

namespace tqcim::tools {
namespace {

Json TextOrNull(const std::string& text) {
  return text.empty() ? Json() : Json(text);
}

Json PropertyOrNull(const host::Instance& instance, std::string_view name) {
  const host::Property* property = instance.Find(name);
  return property == nullptr ? Json() : ToJson(property->value);
}

Json Records(const std::vector<LogEntry>& records) {
  Json array = Json::array();
  for (const LogEntry& record : records) {
    array.push_back({{"class", record.log},
                     {"path", record.path},
                     {"time", TextOrNull(record.time)},
                     {"status", record.severity},
                     {"text", record.text}});
  }
  return array;
}

Json UnitOf(const Finding& finding) {
  const host::PropertyDefinition* reading = finding.definition->Find("CurrentReading");
  return reading == nullptr ? Json() : TextOrNull(std::string(reading->Units()));
}

/// Null for a class without thresholds.
Json Thresholds(const Finding& finding) {
  Json thresholds;
  for (const auto& side : {LowerThresholds(), UpperThresholds()}) {
    for (const std::string_view name : side) {
      if (finding.instance.Find(name) == nullptr) continue;
      thresholds[std::string(name)] = PropertyOrNull(finding.instance, name);
    }
  }
  return thresholds;
}

Json FindingJson(const Finding& finding) {
  return {{"class", finding.definition->name},
          {"path", finding.instance.path},
          {"name", finding.name},
          {"verdict", VerdictText(finding.severity)},
          {"property", finding.property},
          {"status", finding.status},
          {"reading", PropertyOrNull(finding.instance, "CurrentReading")},
          {"unit", UnitOf(finding)},
          {"thresholds", Thresholds(finding)},
          {"error", PropertyOrNull(finding.instance, "ErrorDescription")},
          {"records", Records(finding.records)}};
}

}  // namespace

std::string HealthJson(const Health& health) {
  Json findings = Json::array();
  for (const Finding& finding : health.findings) findings.push_back(FindingJson(finding));
  return DocumentText({{"verdict", VerdictText(health.verdict)},
                       {"status", health.system_status ? Json(*health.system_status) : Json()},
                       {"source", health.source},
                       {"checked", health.checked},
                       {"ok", health.fine},
                       {"untold", health.untold},
                       {"logRecords", health.log_records},
                       {"findings", findings},
                       {"records", Records(health.records)}});
}

}  // namespace tqcim::tools
