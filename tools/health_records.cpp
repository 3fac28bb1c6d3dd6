#include <algorithm>
#include <cctype>
#include <utility>

#include "tools/health_classes.h"
#include "tools/health_parts.h"
#include "tools/status.h"

namespace tqcim::tools {
namespace {

constexpr size_t kRecordsOfFinding = 2;
constexpr size_t kOtherRecords = 3;

bool IsPartOfWord(char character) {
  return std::isalnum(static_cast<unsigned char>(character)) != 0;
}

/// Whether the name stands in the text, not as a piece of a longer one: "Fan 1" is not in "Fan 12".
bool Names(std::string_view text, std::string_view name) {
  if (name.empty()) return false;
  for (size_t at = text.find(name); at != std::string_view::npos; at = text.find(name, at + 1)) {
    const size_t end = at + name.size();
    const bool begins = at == 0 || !IsPartOfWord(text[at - 1]);
    const bool ends = end == text.size() || !IsPartOfWord(text[end]);
    if (begins && ends) return true;
  }
  return false;
}

bool IsNewer(const LogEntry& a, const LogEntry& b) {
  return std::pair(a.sort_time, a.sequence) > std::pair(b.sort_time, b.sequence);
}

/// Keeps the newest records, newest first.
void Keep(std::vector<LogEntry>& records, const LogEntry& entry, size_t limit) {
  records.insert(std::upper_bound(records.begin(), records.end(), entry, IsNewer), entry);
  if (records.size() > limit) records.pop_back();
}

void Take(const LogEntry& entry, Health& health) {
  bool named = false;
  for (Finding& finding : health.findings) {
    if (!Names(entry.text, finding.name)) continue;
    Keep(finding.records, entry, kRecordsOfFinding);
    named = true;
  }
  const bool fault = StatusRank(entry.severity) > StatusRank("OK");
  if (fault && !named) Keep(health.records, entry, kOtherRecords);
}

}  // namespace

void ReadRecords(host::ManagementHost& host, Health& health) {
  for (const std::string_view log : kLogClasses) {
    std::string last_time;
    ForEach(host, log, [&](host::Instance instance) {
      LogEntry entry{.time = TextOf(instance, "EventTime"),
                     .severity = TextOf(instance, kStatus),
                     .text = TextOf(instance, "LogRecord"),
                     .sequence = health.log_records};
      if (!entry.time.empty()) last_time = entry.time;
      entry.sort_time = last_time;
      entry.instance = std::move(instance);
      Take(entry, health);
      ++health.log_records;
    });
  }
}

}  // namespace tqcim::tools
