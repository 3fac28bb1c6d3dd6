#include "tools/health_parts.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>

#include "tools/health_classes.h"
#include "tools/property_words.h"
#include "tools/provider.h"
#include "tools/status.h"
#include "tools/text.h"

namespace tqcim::tools {
namespace {

using host::ClassDefinition;
using host::Instance;

constexpr const char* kRedundancyStatus = "RedundancyStatus";

/// Nothing for a state that can't be told.
std::optional<Verdict> Judge(std::string_view status) {
  if (status == "OK") return Verdict::kOk;
  if (status == "Stressed") return Verdict::kWarning;
  if (status == "Error" || status == "NonRecover") return Verdict::kCritical;
  return std::nullopt;
}

/// By CIM_RedundancyGroup.RedundancyStatus. A group that has lost its redundancy still does its
/// work.
std::optional<Verdict> JudgeRedundancy(std::string_view code) {
  if (code == "2") return Verdict::kOk;
  if (code == "3" || code == "4") return Verdict::kWarning;
  return std::nullopt;
}

bool IsWorse(const Finding& a, const Finding& b) {
  if (a.severity != b.severity) return a.severity > b.severity;
  return a.status != b.status && a.status == "NonRecover";
}

class PartReader {
 public:
  PartReader(host::ManagementHost& host, Health& health) : host_(host), health_(health) {}

  void Read() {
    // First, so that the probes among its instances are known when their own classes come.
    ReadClass(kDiscreteClass);
    for (const std::string& name : host_.ClassNames()) {
      if (TellsParts(name) && name != kDiscreteClass) ReadClass(name);
    }
    for (const char* whole : {"VORN_Chassis", "VORN_System"}) {
      ForEach(host_, whole,
              [&](Instance instance) { wholes_[whole].push_back(std::move(instance)); });
    }
    for (const RollUp& roll_up : RollUps()) Read(roll_up);
    ReachVerdict();
  }

 private:
  const ClassDefinition& Definition(std::string_view name) { return *host_.schema().Find(name); }

  bool TellsParts(const std::string& name) {
    return Definition(name).Find(kStatus) != nullptr &&
           std::none_of(std::begin(kLeftOut), std::end(kLeftOut),
                        [&](const LeftOut& left_out) { return left_out.class_name == name; }) &&
           std::none_of(RollUps().begin(), RollUps().end(),
                        [&](const RollUp& roll_up) { return roll_up.class_name == name; });
  }

  void ReadClass(std::string_view class_name) {
    const ClassDefinition& definition = Definition(class_name);
    const bool groups = definition.Find(kRedundancyStatus) != nullptr;
    ForEach(host_, class_name, [&](const Instance& instance) {
      groups ? ReadGroup(definition, instance) : ReadPart(definition, instance);
    });
  }

  void ReadPart(const ClassDefinition& definition, const Instance& instance) {
    const std::string status = TextOf(instance, kStatus);
    // An empty socket, for example, has none.
    if (status.empty() || WasDiscrete(definition, instance, status)) return;
    Count(Judge(status), {.instance = instance, .status = status});
  }

  /// Whether the instance is the second one of a probe. Of probes that have everything in common it
  /// doesn't matter which one that is.
  bool WasDiscrete(const ClassDefinition& definition, const Instance& instance,
                   const std::string& status) {
    const std::string name = TextOf(instance, "Name");
    if (definition.name == kDiscreteClass) {
      for (const ProbeKind& kind : kProbeKinds) {
        if (TextOf(instance, "SensorType") != kind.sensor_type) continue;
        discrete_probes_.emplace(kind.class_name, name, status);
      }
      return false;
    }
    const auto probe = discrete_probes_.find({std::string(definition.name), name, status});
    if (probe == discrete_probes_.end()) return false;
    discrete_probes_.erase(probe);
    return true;
  }

  void ReadGroup(const ClassDefinition& definition, const Instance& instance) {
    const std::string code = TextOf(instance, kRedundancyStatus);
    // Each group is given once for every chassis. Groups of one name and state are told once, too.
    if (code.empty() || !groups_.emplace(instance.Path(), code).second) return;
    const std::string status = PropertyWords(*definition.Find(kRedundancyStatus))
                                   .Meaning(instance.Find(kRedundancyStatus)->value);
    Count(JudgeRedundancy(code),
          {.instance = instance, .property = kRedundancyStatus, .status = status});
  }

  void Count(std::optional<Verdict> severity, Finding finding) {
    ++health_.checked;
    if (!severity) {
      ++health_.untold;
    } else if (*severity == Verdict::kOk) {
      ++health_.fine;
      told_ = true;
    } else {
      Add(*severity, std::move(finding));
    }
  }

  void Add(Verdict severity, Finding finding) {
    finding.severity = severity;
    finding.name = TextOf(finding.instance, "Name");
    health_.findings.push_back(std::move(finding));
    told_ = true;
  }

  void Read(const RollUp& roll_up) {
    for (const Instance& instance : wholes_[std::string(roll_up.class_name)]) {
      const std::string status = TextOf(instance, roll_up.property);
      const std::optional<Verdict> severity = Judge(status);
      told_ = told_ || severity;
      if (severity.value_or(Verdict::kOk) == Verdict::kOk || IsExplained(roll_up, *severity)) {
        continue;
      }
      ++health_.checked;
      Add(*severity,
          {.instance = instance, .property = std::string(roll_up.property), .status = status});
    }
  }

  bool IsExplained(const RollUp& roll_up, Verdict severity) const {
    const auto& parts = roll_up.parts;
    return std::any_of(
        health_.findings.begin(), health_.findings.end(), [&](const Finding& finding) {
          const std::string_view name = finding.instance.definition->name;
          return finding.severity >= severity &&
                 (parts.empty() || std::find(parts.begin(), parts.end(), name) != parts.end());
        });
  }

  void ReachVerdict() {
    const auto& systems = wholes_["VORN_System"];
    if (!systems.empty()) health_.system_status = TextOf(systems.front(), kStatus);
    if (health_.system_status == "") health_.system_status.reset();
    std::stable_sort(health_.findings.begin(), health_.findings.end(), IsWorse);
    if (!health_.findings.empty()) {
      health_.verdict = health_.findings.front().severity;
    } else if (told_) {
      health_.verdict = Verdict::kOk;
    }
  }

  host::ManagementHost& host_;
  Health& health_;
  std::map<std::string, std::vector<Instance>> wholes_;
  /// Class, name and status of the discrete probes whose own classes haven't come yet.
  std::multiset<std::tuple<std::string, std::string, std::string>> discrete_probes_;
  /// Path and state.
  std::set<std::pair<std::string, std::string>> groups_;
  /// Whether anything has a status that says something.
  bool told_ = false;
};

}  // namespace

std::string TextOf(const Instance& instance, std::string_view property) {
  const host::Property* found = instance.Find(property);
  return found == nullptr ? std::string() : PlainText(found->value);
}

void ForEach(host::ManagementHost& host, std::string_view class_name,
             const host::ManagementHost::InstanceCallback& callback) {
  const host::Outcome outcome = host.Enumerate(class_name, callback);
  if (!Answered(outcome)) {
    throw Failure(ExitStatus::kProviderFailed, FailureText(std::string(class_name), outcome));
  }
}

void ReadParts(host::ManagementHost& host, Health& health) {
  PartReader(host, health).Read();
}

}  // namespace tqcim::tools
