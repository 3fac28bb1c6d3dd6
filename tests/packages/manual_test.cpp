// The manual page and the completion, against what the program says of itself.
#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <sstream>

#include "tests/support/temporary_folder.h"
#include "tests/tools/child_process.h"

namespace tqcim::testing {
namespace {

/// Every command with a help of its own, as words.
const std::vector<std::vector<std::string>> kCommands = {
    {},         {"health"}, {"classes"},          {"list"},          {"get"},
    {"export"}, {"store"},  {"store", "convert"}, {"store", "check"}};

std::string HelpOf(std::vector<std::string> command) {
  const TemporaryFolder folder;
  command.push_back("--help");
  const auto output = folder.Path() / "output";
  EXPECT_EQ(0, RunChild(TQCIM_BUILD "/tqcim", command, output, folder.Path() / "error"));
  return ContentsOf(output);
}

/// What the pattern's group finds, line by line.
std::set<std::string> FindInLines(const std::string& text, const std::string& pattern) {
  std::set<std::string> found;
  const std::regex expression(pattern);
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    std::smatch match;
    if (std::regex_search(line, match, expression)) found.insert(match[1]);
  }
  return found;
}

std::set<std::string> OptionsOf(const std::vector<std::string>& command) {
  return FindInLines(HelpOf(command), "^  (?:-[a-z],)?(--[a-z-]+)");
}

/// The commands that a help lists below "Subcommands:".
std::set<std::string> SubcommandsOf(const std::vector<std::string>& command) {
  const std::string help = HelpOf(command);
  const size_t begin = help.find("Subcommands:\n");
  if (begin == std::string::npos) return {};
  return FindInLines(help.substr(begin, help.find("\n\n", begin) - begin), "^  ([a-z]+) ");
}

/// The manual page without its marks.
std::string Manual() {
  const std::string text = ContentsOf(TQCIM_REPOSITORY "/packaging/tqcim.1");
  const std::string words = std::regex_replace(text, std::regex("\\\\f[A-Z]|\n\\.[A-Z]+ "), "\n ");
  return std::regex_replace(words, std::regex(R"(\\-)"), "-");
}

bool HasWord(const std::string& text, const std::string& word) {
  return std::regex_search(text, std::regex("[\\s\"]" + word + "(?![A-Za-z-])"));
}

TEST(ManualPage, HasEveryCommandAndOption) {
  const std::string manual = Manual();
  for (const std::vector<std::string>& command : kCommands) {
    const std::set<std::string> options = OptionsOf(command);
    EXPECT_TRUE(options.contains("--help"));
    for (const std::string& option : options) EXPECT_TRUE(HasWord(manual, option)) << option;
    for (const std::string& name : SubcommandsOf(command)) {
      const std::string words = command.empty() ? name : command[0] + " " + name;
      EXPECT_TRUE(HasWord(manual, words)) << words;
    }
  }
}

TEST(ManualPage, HasEveryExitStatus) {
  const std::string manual = Manual();
  const std::string help = HelpOf({});
  const std::set<std::string> meanings =
      FindInLines(help.substr(help.find("Exit status")), "^  [0-9]  (.*)$");
  EXPECT_EQ(6U, meanings.size());
  for (const std::string& meaning : meanings) {
    EXPECT_NE(std::string::npos, manual.find("\n" + meaning + "\n")) << meaning;
  }
}

TEST(ManualPage, HasNoOptionThatTheProgramLacks) {
  std::set<std::string> options;
  for (const auto& command : kCommands) options.merge(OptionsOf(command));
  const std::string manual = Manual();
  const std::regex option("\\s(--[a-z-]+)");
  for (std::sregex_iterator found(manual.begin(), manual.end(), option), end; found != end;
       ++found) {
    // dmidecode's own.
    if ((*found)[1] == "--dump-bin") continue;
    EXPECT_TRUE(options.contains((*found)[1])) << (*found)[1];
  }
}

/// What bash offers for the last of the words.
std::set<std::string> Completions(const std::vector<std::string>& words) {
  const TemporaryFolder folder;
  std::string script =
      ". '" TQCIM_REPOSITORY "/packaging/tqcim.bash-completion'\nCOMP_WORDS=(tqcim";
  for (const std::string& word : words) script += " '" + word + "'";
  script += ")\nCOMP_CWORD=" + std::to_string(words.size()) + "\n_tqcim '" TQCIM_BUILD "/tqcim' '" +
            words.back() + "' '" + (words.size() < 2 ? "tqcim" : words[words.size() - 2]) +
            "'\nprintf '%s\\n' \"${COMPREPLY[@]}\"\n";
  const auto output = folder.Path() / "output";
  const auto error = folder.Path() / "error";
  EXPECT_EQ(0, RunChild("/bin/bash", {"-c", script}, output, error));
  EXPECT_EQ("", ContentsOf(error));
  return FindInLines(ContentsOf(output), "^(.+)$");
}

TEST(Completion, OffersTheOptionsOfEachCommand) {
  for (std::vector<std::string> command : kCommands) {
    const std::set<std::string> options = OptionsOf(command);
    command.push_back("--");
    EXPECT_EQ(options, Completions(command)) << command[0];
  }
}

TEST(Completion, OffersCommands) {
  EXPECT_EQ((std::set<std::string>{"classes"}), Completions({"c"}));
  EXPECT_EQ((std::set<std::string>{"convert", "check"}), Completions({"store", "c"}));
}

TEST(Completion, OffersClassesAfterList) {
  // The option --help beside 47 classes.
  EXPECT_EQ(48U, Completions({"list", ""}).size());
  EXPECT_EQ((std::set<std::string>{"VORN_PostLog", "VORN_PowerConsumptionAmpsSensor",
                                   "VORN_PowerConsumptionData", "VORN_PowerConsumptionWattsSensor",
                                   "VORN_PowerProfileData"}),
            Completions({"list", "VORN_Po"}));
}

TEST(Completion, OffersFilesAndFormats) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("my machine.json", "").string();
  const std::string begun = file.substr(0, file.size() - 6);
  EXPECT_EQ((std::set<std::string>{file}), Completions({"health", "--store", begun}));
  EXPECT_EQ((std::set<std::string>{file}), Completions({"export", "-o", begun}));
  EXPECT_EQ((std::set<std::string>{file}), Completions({"store", "check", begun}));
  EXPECT_EQ((std::set<std::string>{"table", "json", "csv"}), Completions({"list", "--format", ""}));
  EXPECT_EQ((std::set<std::string>{"table", "json"}), Completions({"health", "--format", ""}));
}

}  // namespace
}  // namespace tqcim::testing
