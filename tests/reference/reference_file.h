/// Files of the repository that hold what the system is expected to show: tests compare with them,
/// and write them only when told to.
#pragma once

#include <filesystem>
#include <string>

namespace tqcim::testing {

/// A path of the repository.
std::filesystem::path RepositoryPath(const std::filesystem::path& relative);

/// Fails the test unless the file holds exactly this text. With TQCIM_UPDATE_REFERENCES in the
/// environment the file is written instead, and the test skipped: scripts/update-references.
void ExpectReferenceFile(const std::filesystem::path& relative, const std::string& text);

}  // namespace tqcim::testing
