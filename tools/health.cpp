#include "tools/health.h"

#include "tools/health_parts.h"

namespace tqcim::tools {

Health ReadHealth(host::ManagementHost& host) {
  Health health;
  ReadParts(host, health);
  ReadRecords(host, health);
  return health;
}

}  // namespace tqcim::tools
