// The PowerShell scripts of the Windows package, as far as they can be judged without running them.
#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "tests/support/temporary_folder.h"

namespace tqcim::testing {
namespace {

std::string Script(const std::string& name) {
  return ContentsOf(TQCIM_REPOSITORY "/packaging/windows/" + name);
}

std::string Source(const std::string& path) {
  return ContentsOf(TQCIM_REPOSITORY "/" + path);
}

/// What the group of the pattern finds first; empty where it finds nothing.
std::string Find(const std::string& text, const std::string& pattern) {
  std::smatch match;
  return std::regex_search(text, match, std::regex(pattern)) ? match[1].str() : "";
}

std::string UpperCase(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

TEST(InstallScripts, NameTheClassIdentifierOfTheRegistration) {
  const std::string clsid =
      Find(Source("schema/provider_registration.mof"), "CLSID = \"(\\{[0-9a-f-]{36}\\})\"");
  EXPECT_EQ(38U, clsid.size());
  EXPECT_EQ("HKLM:\\SOFTWARE\\Classes\\CLSID\\" + UpperCase(clsid),
            Find(Script("common.ps1"), "\\$ClsidKey = '([^']*)'"));
}

TEST(InstallScripts, SetTheRegistryValueThatTheProviderReads) {
  const std::string source = Source("core/windows/library_path_bootstrap.cpp");
  const std::string key = Find(source, "kSharedKey = \"([^\"]*)\"");
  EXPECT_NE("", key);
  EXPECT_EQ("HKLM:\\" + std::regex_replace(key, std::regex(R"(\\\\)"), "\\"),
            Find(Script("common.ps1"), "\\$SharedKey = '([^']*)'"));
  EXPECT_EQ(Find(source, "kLibraryPath = \"([^\"]*)\""),
            Find(Script("common.ps1"), "\\$PathValue = '([^']*)'"));
}

/// The text without its comments and strings, each bracket in strings accounted for. What is left
/// open stands in `unclosed`.
struct Code {
  std::string words;
  std::string unclosed;
};

Code ReadCode(const std::string& text) {
  Code code;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (text.compare(i, 2, "<#") == 0) {
      i = text.find("#>", i) + 1;
    } else if (c == '#') {
      i = text.find('\n', i);
    } else if (c == '\'') {
      i = text.find('\'', i + 1);
    } else if (c == '"') {
      for (++i; i < text.size() && text[i] != '"'; ++i) {
        if (text[i] == '`') ++i;
      }
    } else {
      code.words += c;
    }
    if (i >= text.size()) {
      code.unclosed += c;
      break;
    }
  }
  for (const char c : code.words) {
    if (c == '(' || c == '[' || c == '{') code.unclosed += c;
    const char opening = c == ')' ? '(' : c == ']' ? '[' : c == '}' ? '{' : '\0';
    if (opening == '\0') continue;
    if (!code.unclosed.ends_with(opening)) return {code.words, code.unclosed + c};
    code.unclosed.pop_back();
  }
  return code;
}

TEST(InstallScripts, CloseWhatTheyOpen) {
  EXPECT_EQ("", ReadCode("a { 'x{' \"`\"(\" } # {\n").unclosed);
  EXPECT_EQ("{)", ReadCode("{ )").unclosed);
  EXPECT_EQ("'", ReadCode("'x").unclosed);
  for (const char* name : {"common.ps1", "install.ps1", "uninstall.ps1"}) {
    EXPECT_EQ("", ReadCode(Script(name)).unclosed) << name;
  }
}

std::set<std::string> FindAll(const std::string& text, const std::string& pattern) {
  const std::regex expression(pattern);
  std::set<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), expression), end; at != end; ++at) {
    found.insert((*at)[1]);
  }
  return found;
}

TEST(InstallScripts, CallNothingButTheirOwnFunctionsAndCmdletsOfThePlatform) {
  const std::set<std::string> cmdlets = {
      "Copy-Item",   "ForEach-Object",   "Get-ChildItem",  "Get-CimInstance",
      "Get-Content", "Get-Item",         "Get-Process",    "Join-Path",
      "New-Item",    "New-ItemProperty", "New-Object",     "Out-Null",
      "Remove-Item", "Set-Location",     "Set-StrictMode", "Remove-ItemProperty",
      "Sort-Object", "Split-Path",       "Start-Process",  "Stop-Process",
      "Test-Path",   "Where-Object",     "Write-Host"};
  const std::string common = ReadCode(Script("common.ps1")).words;
  for (const char* name : {"common.ps1", "install.ps1", "uninstall.ps1"}) {
    const std::string words = ReadCode(Script(name)).words;
    std::set<std::string> known = FindAll(common + words, "\nfunction ([A-Za-z-]+)");
    known.insert(cmdlets.begin(), cmdlets.end());
    for (const std::string& call : FindAll(words, "[^A-Za-z-]([A-Z][A-Za-z]+-[A-Z][A-Za-z]+)")) {
      EXPECT_TRUE(known.contains(call)) << name << ": " << call;
    }
  }
}

TEST(InstallScripts, UseNoVariableThatNobodySets) {
  const std::set<std::string> platform = {"WhatIfPreference",
                                          "PSCmdlet",
                                          "PSScriptRoot",
                                          "ExecutionContext",
                                          "ErrorActionPreference",
                                          "env",
                                          "null",
                                          "true",
                                          "false",
                                          "_"};
  const std::string common = Script("common.ps1");
  for (const char* name : {"common.ps1", "install.ps1", "uninstall.ps1"}) {
    const std::string text = Script(name);
    std::set<std::string> known = platform;
    // Assigned, a parameter, or of a loop.
    for (const char* setting :
         {"\\$([A-Za-z0-9]+) = ", "\\]\\$([A-Za-z0-9]+)", "\\(\\$([A-Za-z0-9]+) in "}) {
      known.merge(FindAll(common + text, setting));
    }
    for (const std::string& variable : FindAll(text, "\\$([A-Za-z0-9_]+)")) {
      EXPECT_TRUE(known.contains(variable)) << name << ": " << variable;
    }
  }
}

TEST(InstallScripts, StopAtTheFirstErrorAndCanSayWhatTheyWouldDo) {
  EXPECT_NE(std::string::npos, Script("common.ps1").find("\nSet-StrictMode -Version Latest\n"));
  EXPECT_NE(std::string::npos, Script("common.ps1").find("\n$ErrorActionPreference = 'Stop'\n"));
  for (const char* name : {"install.ps1", "uninstall.ps1"}) {
    EXPECT_NE(std::string::npos,
              Script(name).find("\n[CmdletBinding(SupportsShouldProcess = $true)]\n"));
    EXPECT_NE(std::string::npos, Script(name).find("\n. (Join-Path $PSScriptRoot 'common.ps1')\n"));
    EXPECT_NE(std::string::npos, Script(name).find("\nAssert-Rights\n"));
  }
}

}  // namespace
}  // namespace tqcim::testing
