#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <regex>
#include <string>

#include "embedded/samples.h"
#include "store/process.h"
#include "tests/support/environment.h"
#include "tests/support/library_files.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::store {
namespace {

namespace fs = std::filesystem;

/// A folder with the probe and the libraries, where it finds its configuration.
class FirstUse : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::SetEnvironment("TQCIM_SOURCE", nullptr);
    testing::CopyModules(LibraryFolder(), folder_.Path());
    fs::copy(LibraryFolder() / TQCIM_PROBE_NAME, folder_.Path());
    folder_.Write("minimal.json", embedded::samples::kFiles[1].contents);
    previous_ = fs::current_path();
    fs::current_path(folder_.Path());
  }
  void TearDown() override {
    fs::current_path(previous_);
    testing::SetEnvironment("TQCIM_SOURCE", nullptr);
  }

  /// Runs the probe in the current folder and returns what it prints, a '|' for each line's end.
  std::string Run() {
    const fs::path probe = (fs::relative(folder_.Path()) / TQCIM_PROBE_NAME).make_preferred();
    const int status = std::system((probe.string() + " > out.txt 2> err.txt").c_str());
    EXPECT_EQ(status, 0);
    errors_ = OnOneLine(testing::ContentsOf("err.txt"));
    return OnOneLine(testing::ContentsOf("out.txt"));
  }
  /// What the probe printed on standard error.
  const std::string& Errors() const { return errors_; }

  const testing::TemporaryFolder& Folder() const { return folder_; }

 private:
  static std::string OnOneLine(std::string text) {
    std::erase(text, '\r');
    std::replace(text.begin(), text.end(), '\n', '|');
    return text;
  }

  testing::TemporaryFolder folder_;
  fs::path previous_;
  std::string errors_;
};

TEST_F(FirstUse, WithoutAnyChoiceTheSampleAnswers) {
  EXPECT_EQ(Run(), "model Tessera 2200|ini 0 7|");
  EXPECT_EQ(Errors(), "");
}

TEST_F(FirstUse, TheEnvironmentNamesTheSource) {
  testing::SetEnvironment("TQCIM_SOURCE", "store-file:minimal.json");
  EXPECT_EQ(Run(), "model Tessera 1100|ini 0 7|");
  EXPECT_EQ(Errors(), "");
}

TEST_F(FirstUse, TheConfigurationNamesTheSourceRelativeToItself) {
  Folder().Write("tqcim.json", R"({"source": "store-file:minimal.json"})");
  fs::create_directory("elsewhere");
  fs::current_path("elsewhere");
  EXPECT_EQ(Run(), "model Tessera 1100|ini 0 7|");
  EXPECT_EQ(Errors(), "");
}

TEST_F(FirstUse, TheEnvironmentCountsBeforeTheConfiguration) {
  Folder().Write("tqcim.json", R"({"source": "store-file:missing.json"})");
  testing::SetEnvironment("TQCIM_SOURCE", "sample");
  EXPECT_EQ(Run(), "model Tessera 2200|ini 0 7|");
  EXPECT_EQ(Errors(), "");
}

TEST_F(FirstUse, ASourceThatFailsIsToldInOneLineAndTheStoreIsEmpty) {
  testing::SetEnvironment("TQCIM_SOURCE", "store-file:missing.json");
  EXPECT_EQ(Run(), "no chassis|ini 0 7|");
  EXPECT_EQ(Errors(), "tqsgen64: missing.json: no such file|");
  testing::SetEnvironment("TQCIM_SOURCE", "somewhere");
  EXPECT_EQ(Run(), "no chassis|ini 0 7|");
  EXPECT_EQ(Errors(),
            "tqsgen64: there is no source \"somewhere\"; there are sample, store-file:PATH, "
            "firmware-table:PATH and firmware|");
}

TEST_F(FirstUse, ADamagedConfigurationIsToldAndNeverReplacedByTheSample) {
  Folder().Write("tqcim.json", "{\n\"sauce\": \"sample\"}");
  EXPECT_EQ(Run(), "no chassis|ini 0 7|");
  const std::string sentence = R"(: [^|]*tqcim\.json:2: the configuration has no "sauce"\|)";
  EXPECT_TRUE(std::regex_match(Errors(), std::regex("tqsgen64" + sentence + "tqsupt64" + sentence)))
      << Errors();
}

TEST_F(FirstUse, IniFilesAreFoundInIniOrInTheFolderThatTheConfigurationNames) {
  fs::create_directory("ini");
  fs::create_directory("other");
  Folder().Write(fs::path("ini") / "probe.ini", "[Section]\nkey=11\n");
  Folder().Write(fs::path("other") / "probe.ini", "[Section]\nkey=12\n");
  fs::create_directory("elsewhere");
  fs::current_path("elsewhere");
  EXPECT_EQ(Run(), "model Tessera 2200|ini 0 11|");
  Folder().Write("tqcim.json", R"({"iniFolder": "other"})");
  EXPECT_EQ(Run(), "model Tessera 2200|ini 0 12|");
  Folder().Write("tqcim.json",
                 "{\"iniFolder\": \"" + (Folder().Path() / "ini").generic_string() + "\"}");
  EXPECT_EQ(Run(), "model Tessera 2200|ini 0 11|");
}

}  // namespace
}  // namespace tqcim::store
