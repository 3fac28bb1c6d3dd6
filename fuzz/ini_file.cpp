// INI files: a key's first value counts, whatever stands before and behind it.

#include "store/ini_file.h"

#include <string>

#include "fuzz/check.h"

using namespace tqcim;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const auto number = [](const std::string& contents) {
    return store::ParseIniNumber(contents, "Network Information", "nic.disabled");
  };
  const std::string contents(fuzz::TextOf(data, size));
  const std::string line = "[Network Information]\nnic.disabled=7\n";
  fuzz::Check(number(line + contents) == 7, "nothing behind a key changes its value");
  const auto alone = number(contents);
  const auto before = number(contents + "\n" + line);
  if (alone) {
    fuzz::Check(before == alone, "a later value does not count");
  } else {
    fuzz::Check(!before || before == 7, "a value comes from its own line");
  }
  return 0;
}
