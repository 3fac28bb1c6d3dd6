#include "tools/health_reading.h"

#include <algorithm>
#include <array>
#include <optional>

#include "tools/property_words.h"

namespace tqcim::tools {
namespace {

constexpr std::array<std::string_view, 3> kUpper = {
    "UpperThresholdNonCritical", "UpperThresholdCritical", "UpperThresholdFatal"};
constexpr std::array<std::string_view, 3> kLower = {
    "LowerThresholdNonCritical", "LowerThresholdCritical", "LowerThresholdFatal"};
constexpr std::array<const char*, 3> kMeanings = {"warning", "critical", "fatal"};

std::optional<int64_t> NumberOf(const Finding& finding, std::string_view property) {
  const host::Property* found = finding.instance.Find(property);
  const auto* number = found ? std::get_if<int64_t>(&found->value) : nullptr;
  return number ? std::optional(*number) : std::nullopt;
}

std::string ValueText(const Finding& finding, std::string_view property) {
  return PropertyWords(*finding.instance.definition->Find(property))
      .ReadableWithUnits(finding.instance.Find(property)->value);
}

/// A probe without a threshold has 0 there.
bool IsSet(std::optional<int64_t> threshold) {
  return threshold.value_or(0) != 0;
}

struct Side {
  std::span<const std::string_view> thresholds;
  const char* words;
  bool upper;
};
constexpr Side kSides[] = {{kUpper, " at or above ", true}, {kLower, " at or below ", false}};

bool IsCrossed(const Finding& finding, const Side& side) {
  const std::optional<int64_t> reading = NumberOf(finding, "CurrentReading");
  return std::ranges::any_of(side.thresholds, [&](std::string_view property) {
    const std::optional<int64_t> threshold = NumberOf(finding, property);
    if (!reading || !IsSet(threshold)) return false;
    return side.upper ? *reading >= *threshold : *reading <= *threshold;
  });
}

std::string ThresholdTexts(const Finding& finding, const Side& side) {
  std::string text;
  for (size_t i = 0; i < side.thresholds.size(); ++i) {
    if (!IsSet(NumberOf(finding, side.thresholds[i]))) continue;
    text += (text.empty() ? "; " : ", ");
    text += kMeanings[i];
    text += side.words + ValueText(finding, side.thresholds[i]);
  }
  return text;
}

}  // namespace

std::span<const std::string_view> UpperThresholds() {
  return kUpper;
}

std::span<const std::string_view> LowerThresholds() {
  return kLower;
}

std::string ReadingText(const Finding& finding) {
  const host::Property* reading = finding.instance.Find("CurrentReading");
  if (reading == nullptr || host::IsNull(reading->value)) return {};
  std::string text = "reading " + ValueText(finding, "CurrentReading");
  for (const Side& side : kSides) {
    if (IsCrossed(finding, side)) return text + ThresholdTexts(finding, side);
  }
  for (const Side& side : kSides) text += ThresholdTexts(finding, side);
  return text;
}

}  // namespace tqcim::tools
