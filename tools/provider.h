/// The provider, as the commands that show instances ask it.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/management_host.h"
#include "tools/failure.h"

namespace tqcim::tools {

/// The exit status that stands for a failure of the host.
ExitStatus StatusOf(host::HostError::Kind kind);

/// From here on the provider is the one that COM's registry names, not the one beside the program.
void UseRegisteredProvider();

/// Activates the provider, over the source in service. Throws Failure.
std::unique_ptr<host::ManagementHost> OpenHost();

/// Whether the provider answered. "Not found" is an answer, too: there is nothing.
bool Answered(const host::Outcome& outcome);

/// "CIM_Fan: the provider answered WBEM_E_FAILED (0x80041001)".
std::string FailureText(std::string_view class_name, const host::Outcome& outcome);

/// Adds to a result that the provider failed to give a class: the other classes are shown all the
/// same.
void AddFailure(CommandResult& result, std::string_view class_name, const host::Outcome& outcome);

/// Instances, and what the provider said about them.
struct Answer {
  std::vector<host::Instance> instances;
  host::Outcome outcome;
};

/// All instances of a served class.
Answer Enumerate(host::ManagementHost& host, std::string_view class_name);

}  // namespace tqcim::tools
