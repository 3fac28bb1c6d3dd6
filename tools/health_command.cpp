#include <exception>
#include <memory>

#include "tools/commands.h"
#include "tools/health.h"
#include "tools/provider.h"
#include "tools/source.h"
#include "tools/text.h"

namespace tqcim::tools {
namespace {

int Code(Verdict verdict) {
  return static_cast<int>(verdict);
}

/// Monitoring systems show nothing but the first line of standard output.
CommandResult Untold(const std::string& sentence, Format format) {
  CommandResult result{.output = {}, .status = Code(Verdict::kUnknown)};
  if (format == Format::kJson) {
    result.remark = sentence;
  } else {
    result.output = std::string(VerdictText(Verdict::kUnknown)) + ": " + Printable(sentence) + "\n";
  }
  return result;
}

CommandResult Tell(const HealthCommand& command, const Layout& layout) {
  if (!command.mistake.empty()) return Untold(command.mistake, command.format);
  const Source source = OpenSource(command.source);
  const std::unique_ptr<host::ManagementHost> host = OpenHost();
  Health health = ReadHealth(*host);
  health.source = source.description;
  if (health.verdict == Verdict::kUnknown) {
    return Untold("nothing from " + source.description + " has a status that tells how it is",
                  command.format);
  }
  const bool json = command.format == Format::kJson;
  return {.output = json ? HealthJson(health) : HealthText(health, layout),
          .remark = {},
          .status = Code(health.verdict)};
}

}  // namespace

CommandResult Run(const HealthCommand& command, const Layout& layout) {
  CommandResult result;
  try {
    result = Tell(command, layout);
  } catch (const std::exception& error) {
    result = Untold(error.what(), command.format);
  }
  // Another number would be taken for a verdict.
  result.status_when_unwritten = Code(Verdict::kUnknown);
  return result;
}

}  // namespace tqcim::tools
