#include <algorithm>

#include "tools/health.h"
#include "tools/health_parts.h"
#include "tools/health_reading.h"
#include "tools/text.h"

namespace tqcim::tools {
namespace {

size_t CountOf(const Health& health, Verdict severity) {
  return static_cast<size_t>(
      std::count_if(health.findings.begin(), health.findings.end(),
                    [severity](const Finding& finding) { return finding.severity == severity; }));
}

/// "1 critical, 2 degraded of 45 checked".
std::string Faults(const Health& health) {
  const size_t critical = CountOf(health, Verdict::kCritical);
  const size_t degraded = CountOf(health, Verdict::kWarning);
  std::string faults;
  if (critical > 0) faults += std::to_string(critical) + " critical";
  if (degraded > 0) faults += (faults.empty() ? "" : ", ") + std::to_string(degraded) + " degraded";
  return (faults.empty() ? "nothing wrong" : faults) + " of " + std::to_string(health.checked) +
         " checked";
}

/// In one line, however long: monitoring systems show the first line alone.
std::string VerdictLine(const Health& health) {
  std::string line = std::string(VerdictText(health.verdict)) + ": ";
  if (health.system_status) line += "system status " + Printable(*health.system_status) + "; ";
  return line + Faults(health) + ", from " + health.source + "\n";
}

/// A line below a finding or a heading.
std::string Detail(const std::string& text, const Layout& layout) {
  constexpr size_t kIndent = 4;
  std::string lines = "  ";
  lines += Wrapped(text, kIndent, layout.width);
  return lines + "\n";
}

/// "2026-11-17 03:12:09" of CIM's "20261117031209.000000+000".
std::string TimeText(const std::string& time) {
  constexpr size_t kDigits = 14;
  if (time.size() < kDigits) return "(without a time)   ";
  return time.substr(0, 4) + "-" + time.substr(4, 2) + "-" + time.substr(6, 2) + " " +
         time.substr(8, 2) + ":" + time.substr(10, 2) + ":" + time.substr(12, 2);
}

std::string RecordLine(const LogEntry& record, const Layout& layout) {
  return Detail(
      TimeText(record.time) + " " + Printable(record.severity) + ": " + Printable(record.text),
      layout);
}

/// "CIM_Tachometer System Fan 4: Stressed"; a roll-up says what it sums up.
std::string FindingLine(const Finding& finding, const Layout& layout) {
  const bool roll_up = finding.property != "Status" && finding.property != "RedundancyStatus";
  const std::string status = Printable(finding.status);
  std::string whole(finding.instance.definition->name);
  const std::string name = NameOrKeys(finding);
  if (!name.empty()) whole += " " + Printable(name);
  whole += ": " + (roll_up ? finding.property + " " : "") + status;
  std::string line = Wrapped(whole, 4, layout.width);
  if (layout.colour && line.ends_with(status)) {
    const char* colour_of = finding.severity == Verdict::kCritical ? "Error" : "Stressed";
    line.replace(line.size() - status.size(), status.size(), Coloured(status, colour_of));
  }
  return line + "\n";
}

std::string FindingText(const Finding& finding, const Layout& layout) {
  std::string text = "\n";
  text += FindingLine(finding, layout);
  const std::string reading = ReadingText(finding);
  if (!reading.empty()) text += Detail(reading, layout);
  const std::string error = TextOf(finding.instance, "ErrorDescription");
  if (!error.empty()) text += Detail("error: " + Printable(error), layout);
  for (const LogEntry& record : finding.records) text += RecordLine(record, layout);
  return text;
}

std::string Counts(const Health& health) {
  std::string text = std::to_string(health.fine) + " OK";
  if (health.untold > 0) text += ", " + std::to_string(health.untold) + " cannot be told";
  return text + "; log records: " + std::to_string(health.log_records);
}

}  // namespace

const char* VerdictText(Verdict verdict) {
  switch (verdict) {
    case Verdict::kOk:
      return "OK";
    case Verdict::kWarning:
      return "WARNING";
    case Verdict::kCritical:
      return "CRITICAL";
    default:
      return "UNKNOWN";
  }
}

std::string HealthText(const Health& health, const Layout& layout) {
  std::string text = VerdictLine(health);
  for (const Finding& finding : health.findings) text += FindingText(finding, layout);
  if (!health.findings.empty() && !health.records.empty()) {
    text += "\nThe newest log records of other faults:\n";
    for (const LogEntry& record : health.records) text += RecordLine(record, layout);
  }
  if (!health.findings.empty()) text += "\n";
  return text + Counts(health) + "\n";
}

}  // namespace tqcim::tools
