#include "tests/reference/reference_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string_view>

#include "store/process.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::testing {
namespace {

/// The first line in which the texts differ, for the message.
std::string FirstDifference(std::string_view expected, std::string_view actual) {
  const auto [here, there] =
      std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
  const auto lineOf = [](std::string_view text, size_t offset) {
    const size_t begin = text.substr(0, offset).rfind('\n') + 1;
    return std::string(text.substr(begin, text.find('\n', offset) - begin));
  };
  const auto offset = static_cast<size_t>(here - expected.begin());
  const auto line = std::count(expected.begin(), here, '\n') + 1;
  return "line " + std::to_string(line) + "\n  expected: " + lineOf(expected, offset) +
         "\n  actual:   " + lineOf(actual, offset);
}

}  // namespace

std::filesystem::path RepositoryPath(const std::filesystem::path& relative) {
  return std::filesystem::path(TQCIM_REPOSITORY) / relative;
}

void ExpectReferenceFile(const std::filesystem::path& relative, const std::string& text) {
  const std::filesystem::path path = RepositoryPath(relative);
  if (store::EnvironmentText("TQCIM_UPDATE_REFERENCES")) {
    std::ofstream file(path, std::ios::binary);
    ASSERT_TRUE(file << text << std::flush) << path.string() << " cannot be written";
    GTEST_SKIP() << "wrote " << relative.generic_string();
  }
  const std::string expected = ContentsOf(path);
  if (expected == text) return;
  ADD_FAILURE() << relative.generic_string() << ", " << FirstDifference(expected, text)
                << "\nscripts/update-references writes what is shown now";
}

}  // namespace tqcim::testing
