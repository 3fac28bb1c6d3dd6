/// What a fuzz target asserts.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace tqcim::fuzz {

/// Ends the program, which makes the input a finding, where `holds` is false: `what` should be so.
inline void Check(bool holds, const char* what, const std::string& example = {}) {
  if (holds) return;
  std::fprintf(stderr, "Does not hold: %s %s\n", what, example.c_str());
  std::abort();
}

inline std::string_view TextOf(const uint8_t* data, size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Checks that an error is one sentence for people, which begins with `place`.
inline void CheckSentence(const std::string& sentence, std::string_view place) {
  constexpr size_t kLongest = 1000;
  Check(sentence.starts_with(place), "an error begins with its place:", sentence);
  Check(sentence.size() > place.size() && sentence.size() <= kLongest,
        "an error is one sentence of bearable length:", sentence);
  const auto isControl = [](char c) { return static_cast<uint8_t>(c) < 0x20 || c == 0x7F; };
  Check(std::none_of(sentence.begin(), sentence.end(), isControl),
        "an error is on one line:", sentence);
}

}  // namespace tqcim::fuzz
