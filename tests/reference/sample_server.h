/// What the provider shows of the embedded sample.
#pragma once

#include <string>
#include <vector>

#include "host/management_host.h"

namespace tqcim::testing {

/// A host over the embedded sample.
class SampleServer {
 public:
  SampleServer();

  host::ManagementHost& Host() { return *host_; }
  /// The served classes, in the schema's order.
  static std::vector<std::string> ClassNames();
  std::vector<host::Instance> InstancesOf(const std::string& className);
  /// The text with "SERVER" wherever the name of this computer stands as a value or as a key of an
  /// object path.
  std::string WithoutComputerName(std::string json);

 private:
  std::unique_ptr<host::ManagementHost> host_;
  std::string computerName_;
};

}  // namespace tqcim::testing
