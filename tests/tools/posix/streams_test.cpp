// What the program makes of the kinds of standard output that there are.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "tests/tools/store_files.h"
#include "tests/tools/tool_test.h"

namespace tqcim::testing {
namespace {

class Streams : public ToolTest {
 protected:
  void SetUp() override {
    ToolTest::SetUp();
    SetEnvironment("TERM", "xterm");
    SetEnvironment("TQCIM_SOURCE",
                   ("store-file:" + Write("store.json", StoreFile(kMemory))).c_str());
  }

  /// The program's exit status when its standard output is an open file of that kind. What it says
  /// on standard error is in the file "error".
  int RunInto(int output, const std::vector<std::string>& arguments) const {
    const int error = open((Folder().Path() / "error").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    const int status = RunInto(output, error, arguments);
    close(error);
    return status;
  }
  /// The same with a standard error of that kind.
  static int RunInto(int output, int error, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), Program().string());
    std::vector<char*> values;
    for (std::string& argument : arguments) values.push_back(argument.data());
    values.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
      dup2(output, STDOUT_FILENO);
      dup2(error, STDERR_FILENO);
      std::signal(SIGPIPE, SIG_DFL);
      execv(values.front(), values.data());
      _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
  }
  std::string Error() const { return ContentsOf(Folder().Path() / "error"); }

  /// What a terminal of that width shows of the memory modules, or of another command.
  std::string OnTerminal(unsigned short width,
                         const std::vector<std::string>& arguments = {"list", "CIM_PhysicalMemory"},
                         int status = 0) const {
    int terminal = -1;
    int line = -1;
    winsize size{};
    size.ws_col = width;
    EXPECT_EQ(openpty(&terminal, &line, nullptr, nullptr, &size), 0);
    EXPECT_EQ(RunInto(line, arguments), status);
    std::string text;
    std::array<char, 16384> buffer;
    fcntl(terminal, F_SETFL, O_NONBLOCK);
    for (ssize_t count = 0; (count = read(terminal, buffer.data(), buffer.size())) > 0;) {
      text.append(buffer.data(), static_cast<size_t>(count));
    }
    close(terminal);
    close(line);
    std::erase(text, '\r');
    return text;
  }
};

TEST_F(Streams, AFullDiskIsAnOutputFailure) {
  const int full = open("/dev/full", O_WRONLY);
  if (full < 0) GTEST_SKIP() << "there is no /dev/full here";
  for (const auto& arguments : {std::vector<std::string>{"classes"}, {"--help"}}) {
    EXPECT_EQ(RunInto(full, arguments), 5);
    EXPECT_EQ(Error(), "tqcim: standard output: can't be written: No space left on device\n");
  }
  close(full);
}

TEST_F(Streams, AFullDiskIsNoVerdictOnTheSystem) {
  const int full = open("/dev/full", O_WRONLY);
  if (full < 0) GTEST_SKIP() << "there is no /dev/full here";
  for (const auto& arguments : {std::vector<std::string>{"health"},
                                {"health", "--format", "json"},
                                {"health", "--store", "absent.json"}}) {
    EXPECT_EQ(RunInto(full, arguments), 3);
    EXPECT_EQ(Error(), "tqcim: standard output: can't be written: No space left on device\n");
  }
  close(full);
}

TEST_F(Streams, AReaderThatWentAwayIsAnOutputFailure) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  close(ends[0]);
  EXPECT_EQ(RunInto(ends[1], {"classes"}), 5);
  EXPECT_EQ(Error(), "tqcim: standard output: can't be written: Broken pipe\n");
  close(ends[1]);
}

TEST_F(Streams, NobodyWhoReadsStandardErrorChangesNothingElse) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  close(ends[0]);
  SetEnvironment("TQCIM_SOURCE", "sample");
  const std::string file = Write("output", "");
  const int output = open(file.c_str(), O_WRONLY);
  EXPECT_EQ(RunInto(output, ends[1], {"list", "VORN_System", "--format", "csv"}), 0);
  EXPECT_NE(ContentsOf(file), "");
  EXPECT_EQ(RunInto(output, ends[1], {"list", "Nope"}), 1);
  EXPECT_EQ(RunInto(output, ends[1], {"health", "--format", "json", "--store", "absent"}), 3);
  close(output);
  close(ends[1]);
}

TEST_F(Streams, ATerminalGivesTablesItsWidth) {
  EXPECT_NE(OnTerminal(40).find("\nTag  Status   Name     SerialNumber\n"), std::string::npos);
  EXPECT_NE(OnTerminal(90).find("\nTag  Status   Name     BankLabel "), std::string::npos);
}

TEST_F(Streams, ColumnsGoBeforeTheTerminalsWidth) {
  SetEnvironment("COLUMNS", "40");
  EXPECT_NE(OnTerminal(90).find("\nTag  Status   Name     SerialNumber\n"), std::string::npos);
}

TEST_F(Streams, ATerminalShowsStatusInColour) {
  const std::string table = OnTerminal(40);
  EXPECT_NE(table.find("\n  0  \x1B[32mOK     \x1B[0m  DIMM_A1          0001\n"), std::string::npos)
      << table;
  EXPECT_NE(table.find("\n  1  Unknown  DIMM_A2          0002\n"), std::string::npos) << table;
  EXPECT_NE(table.find("\n  2  \x1B[31mError  \x1B[0m  DIMM_A3          0003\n"), std::string::npos)
      << table;
}

TEST_F(Streams, ATerminalShowsFaultsInColour) {
  const std::string text = OnTerminal(80, {"health"}, 2);
  EXPECT_NE(text.find("\nCIM_PhysicalMemory DIMM_A3: \x1B[31mError\x1B[0m\n"), std::string::npos)
      << text;
  SetEnvironment("NO_COLOR", "1");
  EXPECT_NE(OnTerminal(80, {"health"}, 2).find("\nCIM_PhysicalMemory DIMM_A3: Error\n"),
            std::string::npos);
}

TEST_F(Streams, ATerminalHasNoColourWhereTheUserOrTheTerminalWantsNone) {
  SetEnvironment("NO_COLOR", "1");
  EXPECT_EQ(OnTerminal(80).find('\x1B'), std::string::npos);
  SetEnvironment("NO_COLOR", nullptr);
  SetEnvironment("TERM", "dumb");
  EXPECT_EQ(OnTerminal(80).find('\x1B'), std::string::npos);
}

}  // namespace
}  // namespace tqcim::testing
