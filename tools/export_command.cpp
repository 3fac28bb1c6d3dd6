#include <memory>

#include "store/files.h"
#include "tools/commands.h"
#include "tools/formats.h"
#include "tools/provider.h"
#include "tools/source.h"
#include "tools/store_failure.h"
#include "tools/text.h"

namespace tqcim::tools {
namespace {

std::string Summary(const std::string& file, const std::vector<ClassInstances>& classes) {
  size_t instances = 0;
  for (const ClassInstances& one : classes) instances += one.instances ? one.instances->size() : 0;
  return Printable(file) + ": " + std::to_string(classes.size()) + " classes, " +
         std::to_string(instances) + (instances == 1 ? " instance\n" : " instances\n");
}

}  // namespace

CommandResult Run(const ExportCommand& command) {
  const Source source = OpenSource(command.source);
  const std::unique_ptr<host::ManagementHost> host = OpenHost();
  CommandResult result{.output = {}, .remark = SampleRemark(source)};
  std::vector<ClassInstances> classes;
  std::string failures;
  for (const std::string& name : host->ClassNames()) {
    Answer answer = Enumerate(*host, name);
    ClassInstances& added = classes.emplace_back(ClassInstances{name, std::nullopt});
    if (Answered(answer.outcome)) {
      added.instances = std::move(answer.instances);
    } else {
      failures += (failures.empty() ? "" : "; ") + FailureText(name, answer.outcome);
    }
  }
  if (!failures.empty()) {
    result.remark = failures;
    result.status = static_cast<int>(ExitStatus::kProviderFailed);
  }
  result.output = JsonText(classes);
  if (!command.output.empty()) {
    FailingWith(ExitStatus::kOutputFailed,
                [&] { store::WriteFile(store::PathOf(command.output), result.output); });
    result.output = Summary(command.output, classes);
  }
  return result;
}

}  // namespace tqcim::tools
