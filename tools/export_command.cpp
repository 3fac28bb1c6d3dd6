#include <memory>
#include <utility>

#include "store/files.h"
#include "tools/commands.h"
#include "tools/formats.h"
#include "tools/json_writer.h"
#include "tools/provider.h"
#include "tools/source.h"
#include "tools/store_failure.h"
#include "tools/text.h"

namespace tqcim::tools {
namespace {

std::string Summary(const std::string& file, size_t classes, size_t instances) {
  return Printable(file) + ": " + std::to_string(classes) + " classes, " +
         std::to_string(instances) + (instances == 1 ? " instance\n" : " instances\n");
}

}  // namespace

CommandResult Run(const ExportCommand& command) {
  const Source source = OpenSource(command.source);
  const std::unique_ptr<host::ManagementHost> host = OpenHost();
  CommandResult result{.output = {}, .remark = SampleRemark(source)};
  const std::vector<std::string> classes = host->ClassNames();
  size_t instances = 0;
  JsonWriter json;
  json.Object([&] {
    for (const std::string& name : classes) {
      const Answer answer = Enumerate(*host, name);
      json.Name(name);
      if (Answered(answer.outcome)) {
        instances += answer.instances.size();
        WriteInstances(json, answer.instances);
      } else {
        AddFailure(result, name, answer.outcome);
        json.Value({});
      }
    }
  });
  result.output = std::move(json).Document();
  if (!command.output.empty()) {
    FailingWith(ExitStatus::kOutputFailed,
                [&] { store::WriteFile(store::PathOf(command.output), result.output); });
    result.output = Summary(command.output, classes.size(), instances);
  }
  return result;
}

}  // namespace tqcim::tools
