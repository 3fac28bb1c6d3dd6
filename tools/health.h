/// How the system is: what is wrong with it now, taken from the instances of all classes.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/instance.h"
#include "host/management_host.h"
#include "host/schema.h"
#include "tools/table.h"

namespace tqcim::tools {

/// The exit statuses of `tqcim health`, by the convention of monitoring systems' check plugins.
enum class Verdict { kOk = 0, kWarning = 1, kCritical = 2, kUnknown = 3 };

/// "OK", "WARNING", "CRITICAL", "UNKNOWN".
const char* VerdictText(Verdict verdict);

/// A record of an event log.
struct LogEntry {
  host::Instance instance = {};
  std::string time = {};  ///< as CIM writes it, in local time; empty where the record doesn't tell
  std::string severity = {};
  std::string text = {};
  /// For the order of records of both logs; a record without a time counts as of the one before it.
  std::string sort_time = {};
  size_t sequence = 0;
};

/// Something that is wrong.
struct Finding {
  host::Instance instance;
  /// The instance's Name; empty without one.
  std::string name = {};
  /// The property that tells the fault, and what it says.
  std::string property = "Status";
  std::string status = {};
  Verdict severity = Verdict::kUnknown;
  /// The newest records that name it, at most two, newest first.
  std::vector<LogEntry> records = {};
};

/// The finding's name, or else the keys of its instance.
std::string NameOrKeys(const Finding& finding);

struct Health {
  Verdict verdict = Verdict::kUnknown;
  /// The system's own status; nothing where it has none.
  std::optional<std::string> system_status;
  /// Where the instances come from, for people.
  std::string source;
  /// The worst first.
  std::vector<Finding> findings;
  /// The newest records of a fault that none of the findings has a part in, newest first.
  std::vector<LogEntry> records;
  /// Parts that have a status, and how many of them are fine and cannot tell.
  size_t checked = 0;
  size_t fine = 0;
  size_t untold = 0;
  size_t log_records = 0;
};

/// Asks the provider for every class that tells a state; the source stays empty. The verdict is
/// kUnknown where nothing has a status that says something. Throws Failure where a class can't be
/// had.
Health ReadHealth(host::ManagementHost& host);

std::string HealthText(const Health& health, const Layout& layout);
std::string HealthJson(const Health& health);

}  // namespace tqcim::tools
