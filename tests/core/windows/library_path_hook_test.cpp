// Where the hook of the delayed loading finds the libraries' directory, and what it does with it.
// Supervisors match on the texts.
#include <windows.h>

#include "store/process.h"
#include "tests/core/windows/library_path_fixture.h"

namespace tqcim::testing {
namespace {

constexpr const char* kDone = "1: 0\nPATH=C:\\shared;C:\\old\nADDED=TRUE\n";
constexpr const char* kUndone = "1: 0\nPATH=C:\\old\nADDED=(unset)\n";
constexpr const char* kNoKey =
    "NTDelayLoadGetSharedPath: failed RegOpenKeyEx: "
    "SOFTWARE\\Vorn Computer Corporation\\Steadmark\\Shared\n";
constexpr const char* kNoValue = "NTDelayLoadGetSharedPath: failed RegQueryValueEx: SKLIBPATH\n";
constexpr const char* kNoDirectory =
    "NTDelayLoadPutEnvSharedPath: failed NTDelayLoadGetSharedPath\n";

class LibraryPathHook : public LibraryPathFixture {
 protected:
  static std::filesystem::path Program() { return store::LibraryFolder() / HOOK_PROGRAM; }

  void ExpectRun(const std::vector<std::string>& words, const std::string& output,
                 const std::string& error, int status = 0) const {
    const ChildRun run = Run(Program(), words);
    EXPECT_EQ(output, run.output);
    EXPECT_EQ(error, run.error);
    EXPECT_EQ(status, run.status);
  }
};

TEST_F(LibraryPathHook, DoesNothingAtOtherNotifications) {
  SetEnvironment("SKLIBPATH", "C:\\shared");
  for (const std::string notification : {"0", "2", "4", "5"}) {
    ExpectRun({notification}, notification + ": 0\nPATH=C:\\old\nADDED=(unset)\n", "");
  }
}

TEST_F(LibraryPathHook, PutsTheDirectoryOfTheEnvironmentInFrontOfPath) {
  SetEnvironment("SKLIBPATH", "C:\\shared");
  ExpectRun({"1"}, kDone, "");
}

TEST_F(LibraryPathHook, PutsItThereOnce) {
  SetEnvironment("SKLIBPATH", "C:\\shared");
  ExpectRun({"1", "1"}, std::string(kDone) + kDone, "");
}

TEST_F(LibraryPathHook, MakesAPathWhereThereIsNone) {
  SetEnvironment("SKLIBPATH", "C:\\shared");
  SetEnvironment("PATH", nullptr);
  ExpectRun({"1"}, "1: 0\nPATH=C:\\shared;\nADDED=TRUE\n", "");
}

TEST_F(LibraryPathHook, LeavesToAParentProcessWhatItDid) {
  SetEnvironment("SKLIBPATH", "C:\\shared");
  for (const std::string added : {"TRUE", "true", "tRuE"}) {
    SetEnvironment("SKLIBPATH_ADDED_TO_PATH", added.c_str());
    ExpectRun({"1"}, "1: 0\nPATH=C:\\old\nADDED=" + added + "\n", "");
  }
}

TEST_F(LibraryPathHook, TakesNoOtherWordForTheParents) {
  SetEnvironment("SKLIBPATH", "C:\\shared");
  for (const char* added : {"FALSE", "TRUE ", "1", "TRU"}) {
    SetEnvironment("SKLIBPATH_ADDED_TO_PATH", added);
    ExpectRun({"1"}, kDone, "");
  }
}

TEST_F(LibraryPathHook, TakesATextOfTheRegistryAsItStands) {
  registry.Set(REG_SZ, std::string("C:\\shared\0", 10));
  ExpectRun({"1"}, kDone, "");
  registry.Set(REG_SZ, "C:\\shared");
  ExpectRun({"1"}, kDone, "");
  SetEnvironment("TQCIM_TEST_FOLDER", "C:\\products");
  registry.Set(REG_SZ, std::string("%TQCIM_TEST_FOLDER%\\lib\0", 24));
  ExpectRun({"1"}, "1: 0\nPATH=%TQCIM_TEST_FOLDER%\\lib;C:\\old\nADDED=TRUE\n", "");
}

TEST_F(LibraryPathHook, ExpandsAnExpandableTextOfTheRegistry) {
  SetEnvironment("TQCIM_TEST_FOLDER", "C:\\products\\of\\a\\name\\longer\\than\\its\\reference");
  registry.Set(REG_EXPAND_SZ, std::string("%TQCIM_TEST_FOLDER%\\lib\0", 24));
  ExpectRun({"1"},
            "1: 0\nPATH=C:\\products\\of\\a\\name\\longer\\than\\its\\reference\\lib;C:\\old\n"
            "ADDED=TRUE\n",
            "");
}

TEST_F(LibraryPathHook, TakesAValueOfAnotherTypeAsItStands) {
  registry.Set(REG_BINARY, "C:\\shared");
  ExpectRun({"1"}, kDone, "");
}

TEST_F(LibraryPathHook, PrefersTheEnvironmentToTheRegistry) {
  SetEnvironment("SKLIBPATH", "C:\\shared");
  registry.Set(REG_SZ, std::string("C:\\other\0", 9));
  ExpectRun({"1"}, kDone, "");
}

TEST_F(LibraryPathHook, TellsWhereNothingIsConfiguredAndTriesAgain) {
  const std::string error = std::string(kNoKey) + kNoDirectory;
  ExpectRun({"1", "1"}, std::string(kUndone) + kUndone, error + error);
}

TEST_F(LibraryPathHook, TellsOfAKeyWithoutTheValue) {
  registry.SetKeyOnly();
  ExpectRun({"1"}, kUndone, std::string(kNoValue) + kNoDirectory);
}

TEST_F(LibraryPathHook, TellsOfAValueThatVanishesWhileItIsRead) {
  registry.Set(REG_SZ, "C:\\shared");
  ExpectRun({"fail-query", "2", "1", "1"}, std::string(kUndone) + kDone,
            std::string(kNoValue) + kNoDirectory);
}

TEST_F(LibraryPathHook, TellsOfAVariableThatCannotBeRead) {
  SetEnvironment("SKLIBPATH", "C:\\shared");
  const std::string rest = std::string(kNoKey) + kNoDirectory;
  ExpectRun({"fail-getenv", "1", "1", "1"}, std::string(kUndone) + kDone,
            "NTDelayLoadGetEnv: failed to get num chars: retVal: 22 varName: SKLIBPATH\n" + rest);
  ExpectRun({"fail-getenv", "2", "1", "1"}, std::string(kUndone) + kDone,
            "NTDelayLoadGetEnv: failed to get value: retVal: 22 varName: SKLIBPATH\n" + rest);
}

TEST_F(LibraryPathHook, TellsOfMissingMemoryForAVariable) {
  SetEnvironment("SKLIBPATH", "C:\\shared");
  ExpectRun({"fail-new", "1", "1", "1"}, std::string(kUndone) + kDone,
            std::string("NTDelayLoadGetEnv: failed to allocate pVarVal\n") + kNoKey + kNoDirectory);
}

TEST_F(LibraryPathHook, TellsOfMissingMemoryForTheValueOfTheRegistry) {
  for (const DWORD type : {REG_SZ, REG_EXPAND_SZ}) {
    registry.Set(type, std::string("C:\\shared\0", 10));
    ExpectRun(
        {"fail-new", "1", "1", "1"}, std::string(kUndone) + kDone,
        std::string("NTDelayLoadGetSharedPath: failed to allocate pSKLIBPATH\n") + kNoDirectory);
    ExpectRun(
        {"fail-new", "2", "1", "1"}, std::string(kUndone) + kDone,
        std::string("NTDelayLoadGetSharedPath: failed to allocate pSharedPath\n") + kNoDirectory);
  }
}

TEST_F(LibraryPathHook, TellsOfMissingMemoryForThePath) {
  SetEnvironment("SKLIBPATH", "C:\\shared");
  ExpectRun({"fail-new", "3", "1", "1"}, std::string(kUndone) + kDone,
            "NTDelayLoadPutEnvSharedPath: failed to allocate pNewPath\n");
  SetEnvironment("PATH", nullptr);
  ExpectRun({"fail-new", "2", "1", "1"},
            "1: 0\nPATH=(unset)\nADDED=(unset)\n1: 0\nPATH=C:\\shared;\nADDED=TRUE\n",
            "NTDelayLoadPutEnvSharedPath: failed to duplicate empty path\n");
}

TEST_F(LibraryPathHook, EndsTheProcessWhereALibraryIsMissing) {
  const std::string program = Program().string();
  ExpectRun({"3", "1"}, "",
            "NTDelayLoadHook: failed dliFailLoadLib: missing.dll\n" + program +
                " was unable to locate missing.dll in the search path C:\\old\n"
                "The application has terminated.\n",
            126);
  SetEnvironment("PATH", nullptr);
  ExpectRun({"3"}, "",
            "NTDelayLoadHook: failed dliFailLoadLib: missing.dll\n" + program +
                " was unable to locate missing.dll in the search path \n"
                "The application has terminated.\n",
            126);
}

TEST_F(LibraryPathHook, NamesTheProgramIn255Bytes) {
  ExpectRun({"program", "long", "3"}, "",
            "NTDelayLoadHook: failed dliFailLoadLib: missing.dll\n" + std::string(255, 'x') +
                " was unable to locate missing.dll in the search path C:\\old\n"
                "The application has terminated.\n",
            126);
}

TEST_F(LibraryPathHook, NamesNoProgramWhereItCannotBeTold) {
  ExpectRun({"program", "none", "3"}, "",
            "NTDelayLoadHook: failed dliFailLoadLib: missing.dll\n"
            " was unable to locate missing.dll in the search path C:\\old\n"
            "The application has terminated.\n",
            126);
}

TEST_F(LibraryPathHook, NamesTheProgramInTheAnsiCodePage) {
  if (GetACP() != 1252) GTEST_SKIP() << "written for code page 1252, this is " << GetACP();
  ExpectRun({"program", "ansi", "3"}, "",
            "NTDelayLoadHook: failed dliFailLoadLib: missing.dll\n"
            "caf\xE9.exe was unable to locate missing.dll in the search path C:\\old\n"
            "The application has terminated.\n",
            126);
}

}  // namespace
}  // namespace tqcim::testing
