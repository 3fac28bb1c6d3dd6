#include <algorithm>
#include <memory>

#include "host/object_path.h"
#include "tools/commands.h"
#include "tools/formats.h"
#include "tools/nearest_names.h"
#include "tools/provider.h"
#include "tools/source.h"
#include "tools/status.h"

namespace tqcim::tools {
namespace {

using host::HostError;
using host::ManagementHost;

std::string Suggestion(const std::vector<std::string>& nearest) {
  if (nearest.empty()) return "tqcim classes shows them all";
  std::string text = "did you mean ";
  for (const std::string& name : nearest) {
    if (name != nearest.front()) text += name == nearest.back() ? " or " : ", ";
    text += name;
  }
  return text + "?";
}

/// The served class of that name in any case.
const host::ClassDefinition& FindClass(const ManagementHost& host, const std::string& name) {
  const host::ClassDefinition* definition = host.schema().Find(name);
  const std::vector<std::string> served = host.ClassNames();
  if (definition == nullptr ||
      std::find(served.begin(), served.end(), definition->name) == served.end()) {
    throw Failure(ExitStatus::kNotFound, "there is no class '" + name + "' with instances; " +
                                             Suggestion(NearestNames(name, served)));
  }
  return *definition;
}

/// The class of a path that parses. Throws Failure unless the path names an instance of a served
/// class.
const host::ClassDefinition& ClassOfPath(const ManagementHost& host, const std::string& text) {
  const host::ObjectPath path = host::ParseObjectPath(text);
  const host::ClassDefinition* definition = nullptr;
  if (!path.class_name.empty()) definition = &FindClass(host, path.class_name);
  if (!path.NamesInstance()) {
    throw Failure(ExitStatus::kUsage, "object path '" + text +
                                          "' names no instance, but a namespace or a class; tqcim "
                                          "list shows all instances of a class");
  }
  return *definition;
}

Answer Get(ManagementHost& host, const std::string& path) {
  Answer answer;
  try {
    answer.outcome = host.Get(
        path, [&](host::Instance instance) { answer.instances.push_back(std::move(instance)); });
  } catch (const HostError& error) {
    // This one can tell the nearest names.
    if (error.kind() == HostError::Kind::kUnknownClass) ClassOfPath(host, path);
    throw Failure(StatusOf(error.kind()), error.what());
  }
  return answer;
}

std::vector<host::Instance> TakeInstances(Answer answer, std::string_view class_name) {
  if (!Answered(answer.outcome)) {
    throw Failure(ExitStatus::kProviderFailed, FailureText(class_name, answer.outcome));
  }
  return std::move(answer.instances);
}

std::optional<std::string> WorstStatus(const std::vector<host::Instance>& instances) {
  std::optional<std::string> worst;
  for (const host::Instance& instance : instances) {
    const host::Property* property = instance.Find(kStatus);
    const auto* status = property ? std::get_if<std::string>(&property->value) : nullptr;
    if (status && (!worst || StatusRank(*worst) < StatusRank(*status))) worst = *status;
  }
  return worst;
}

/// Tables name their source themselves.
std::string Remark(const Source& source, Format format) {
  return format == Format::kTable ? std::string() : SampleRemark(source);
}

std::string Text(const Listing& listing, Format format, const Layout& layout) {
  switch (format) {
    case Format::kJson:
      return JsonText(listing.instances);
    case Format::kCsv:
      return CsvText(listing);
    default:
      return TableText(listing, layout);
  }
}

std::string Text(const std::vector<ClassSummary>& classes, Format format, const Source& source,
                 const Layout& layout) {
  switch (format) {
    case Format::kJson:
      return JsonText(classes);
    case Format::kCsv:
      return CsvText(classes);
    default:
      return TableText(classes, source.description, layout);
  }
}

}  // namespace

CommandResult Run(const ClassesCommand& command, const Layout& layout) {
  const Source source = OpenSource(command.source);
  const std::unique_ptr<ManagementHost> host = OpenHost();
  CommandResult result{.output = {}, .remark = Remark(source, command.format)};
  std::vector<ClassSummary> summaries;
  for (const std::string& name : host->ClassNames()) {
    const Answer answer = Enumerate(*host, name);
    if (Answered(answer.outcome)) {
      summaries.push_back({name, answer.instances.size(), WorstStatus(answer.instances)});
    } else {
      AddFailure(result, name, answer.outcome);
    }
  }
  result.output = Text(summaries, command.format, source, layout);
  return result;
}

CommandResult Run(const ListCommand& command, const Layout& layout) {
  const Source source = OpenSource(command.source);
  const std::unique_ptr<ManagementHost> host = OpenHost();
  const host::ClassDefinition& definition = FindClass(*host, command.class_name);
  const Listing listing{
      .definition = &definition,
      .instances = TakeInstances(Enumerate(*host, definition.name), definition.name),
      .source = source.description};
  const bool blocks = command.full && command.format == Format::kTable;
  return {.output = blocks ? BlockText(listing, layout) : Text(listing, command.format, layout),
          .remark = Remark(source, command.format)};
}

CommandResult Run(const GetCommand& command, const Layout& layout) {
  const Source source = OpenSource(command.source);
  const std::unique_ptr<ManagementHost> host = OpenHost();
  Answer answer = Get(*host, command.path);
  const host::ClassDefinition& definition = ClassOfPath(*host, command.path);
  const Listing listing{.definition = &definition,
                        .instances = TakeInstances(std::move(answer), definition.name),
                        .source = source.description};
  if (listing.instances.empty()) {
    throw Failure(ExitStatus::kNotFound, "no instance is named by '" + command.path + "'");
  }
  return {.output = Text(listing, command.format, layout),
          .remark = Remark(source, command.format)};
}

}  // namespace tqcim::tools
