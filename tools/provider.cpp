#include "tools/provider.h"

#include <utility>

#include "host/results.h"
#include "tools/console.h"

namespace tqcim::tools {

using host::HostError;
using host::ManagementHost;

namespace {

bool registered_provider = false;

}  // namespace

ExitStatus StatusOf(HostError::Kind kind) {
  switch (kind) {
    case HostError::Kind::kUnknownClass:
      return ExitStatus::kNotFound;
    case HostError::Kind::kBadPath:
      return ExitStatus::kUsage;
    default:
      return ExitStatus::kProviderFailed;
  }
}

void UseRegisteredProvider() {
  registered_provider = true;
}

std::unique_ptr<ManagementHost> OpenHost() {
  UseOwnLibraries();
  try {
    return ManagementHost::Open({.module = {}, .schema = {}, .registered = registered_provider});
  } catch (const HostError& error) {
    throw Failure(StatusOf(error.kind()), error.what());
  }
}

bool Answered(const host::Outcome& outcome) {
  return outcome.ok() || outcome.result == host::kNotFound;
}

std::string FailureText(std::string_view class_name, const host::Outcome& outcome) {
  return std::string(class_name) + ": the provider answered " + outcome.Text();
}

void AddFailure(CommandResult& result, std::string_view class_name, const host::Outcome& outcome) {
  if (!result.remark.empty()) result.remark += "; ";
  result.remark += FailureText(class_name, outcome);
  result.status = static_cast<int>(ExitStatus::kProviderFailed);
}

Answer Enumerate(ManagementHost& host, std::string_view class_name) {
  Answer answer;
  answer.outcome = host.Enumerate(class_name, [&](host::Instance instance) {
    answer.instances.push_back(std::move(instance));
  });
  return answer;
}

}  // namespace tqcim::tools
