#include "tools/health.h"

#include "tools/health_parts.h"
#include "tools/reference.h"

namespace tqcim::tools {

std::string NameOrKeys(const Finding& finding) {
  return finding.name.empty() ? IdentifyingKeys(finding.instance.Path()) : finding.name;
}

Health ReadHealth(host::ManagementHost& host) {
  Health health;
  ReadParts(host, health);
  ReadRecords(host, health);
  return health;
}

}  // namespace tqcim::tools
