// The module over libraries that lie in another folder, looked for when it calls the first of them.
#include <windows.h>

#include "store/process.h"
#include "tests/core/windows/library_path_fixture.h"

namespace tqcim::testing {
namespace {

constexpr const char* kNothingConfigured =
    "NTDelayLoadGetSharedPath: failed RegOpenKeyEx: "
    "SOFTWARE\\Vorn Computer Corporation\\Steadmark\\Shared\n"
    "NTDelayLoadPutEnvSharedPath: failed NTDelayLoadGetSharedPath\n";

/// Program, module and libraries each in a folder of their own.
class LibraryPath : public LibraryPathFixture {
 protected:
  LibraryPath() {
    const std::filesystem::path built = store::LibraryFolder();
    for (const char* name : {"program", "module", "libraries", "empty"}) {
      std::filesystem::create_directory(folder.Path() / name);
    }
    std::filesystem::copy(built / USER_PROGRAM, folder.Path() / "program");
    std::filesystem::copy(built / "tqcim64.dll", folder.Path() / "module");
    for (const char* name : {"tqsgen64.dll", "tqsupt64.dll", "tqsxep64.dll"}) {
      std::filesystem::copy(built / name, folder.Path() / "libraries");
    }
    // The current folder is one of the places where the system looks for a library.
    std::filesystem::current_path(folder.Path());
  }
  ~LibraryPath() override { std::filesystem::current_path(before_); }

  std::string Folder(const char* name) const { return (folder.Path() / name).string(); }
  std::string Program() const { return Folder("program") + "\\" USER_PROGRAM; }

  ChildRun RunProgram() const { return Run(Program(), {Folder("module") + "\\tqcim64.dll"}); }

  void ExpectServed(const std::string& path) const {
    const ChildRun run = RunProgram();
    EXPECT_EQ("1\n" + Folder("libraries") + "\\tqsgen64.dll\n" + path + "\n", run.output);
    EXPECT_EQ("", run.error);
    EXPECT_EQ(0, run.status);
  }
  void ExpectEnded(const std::string& before, const std::string& path) const {
    const ChildRun run = RunProgram();
    EXPECT_EQ("", run.output);
    EXPECT_EQ(before + "NTDelayLoadHook: failed dliFailLoadLib: tqsgen64.dll\n" + Program() +
                  " was unable to locate tqsgen64.dll in the search path " + path +
                  "\nThe application has terminated.\n",
              run.error);
    EXPECT_EQ(126, run.status);
  }

 private:
  const std::filesystem::path before_ = std::filesystem::current_path();
};

TEST_F(LibraryPath, IsThatOfTheEnvironment) {
  SetEnvironment("SKLIBPATH", Folder("libraries").c_str());
  ExpectServed(Folder("libraries") + ";C:\\old");
}

TEST_F(LibraryPath, IsThatOfTheRegistry) {
  const std::string directory = Folder("libraries");
  registry.Set(REG_SZ, std::string(directory.c_str(), directory.size() + 1));
  ExpectServed(directory + ";C:\\old");
}

TEST_F(LibraryPath, IsExpandedFromTheRegistry) {
  SetEnvironment("TQCIM_TEST_FOLDER", folder.Path().string().c_str());
  registry.Set(REG_EXPAND_SZ, std::string("%TQCIM_TEST_FOLDER%\\libraries\0", 30));
  ExpectServed(Folder("libraries") + ";C:\\old");
}

TEST_F(LibraryPath, IsThatOfAParentProcess) {
  SetEnvironment("SKLIBPATH_ADDED_TO_PATH", "True");
  SetEnvironment("SKLIBPATH", Folder("empty").c_str());
  SetEnvironment("PATH", ("C:\\old;" + Folder("libraries")).c_str());
  ExpectServed("C:\\old;" + Folder("libraries"));
}

TEST_F(LibraryPath, WinsOverTheSearchPath) {
  SetEnvironment("SKLIBPATH", Folder("libraries").c_str());
  std::filesystem::copy(folder.Path() / "libraries", folder.Path() / "other");
  SetEnvironment("PATH", Folder("other").c_str());
  ExpectServed(Folder("libraries") + ";" + Folder("other"));
}

TEST_F(LibraryPath, WithNothingConfiguredTheProcessEnds) {
  ExpectEnded(kNothingConfigured, "C:\\old");
}

TEST_F(LibraryPath, WithNothingConfiguredThePathIsSearchedAllTheSame) {
  SetEnvironment("PATH", Folder("libraries").c_str());
  const ChildRun run = RunProgram();
  EXPECT_TRUE(run.output.starts_with("1\n" + Folder("libraries") + "\\tqsgen64.dll\n"));
  EXPECT_TRUE(run.error.starts_with(kNothingConfigured)) << run.error;
  EXPECT_EQ(0, run.status);
}

TEST_F(LibraryPath, WithADirectoryWithoutTheLibrariesTheProcessEnds) {
  SetEnvironment("SKLIBPATH", Folder("empty").c_str());
  ExpectEnded("", Folder("empty") + ";C:\\old");
}

TEST_F(LibraryPath, WithAParentsWordAloneTheProcessEnds) {
  SetEnvironment("SKLIBPATH_ADDED_TO_PATH", "TRUE");
  SetEnvironment("SKLIBPATH", Folder("libraries").c_str());
  ExpectEnded("", "C:\\old");
}

}  // namespace
}  // namespace tqcim::testing
