// Store files: what loads is readable and comes back from the file that is written of it; what
// doesn't is refused in one sentence with its line.

#include "store/store_file.h"

#include "fuzz/check.h"
#include "fuzz/store_checks.h"
#include "store/store_error.h"

using namespace tqcim;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  try {
    auto snapshot = store::ParseStoreFile(fuzz::TextOf(data, size), "f.json");
    fuzz::CheckComesBack(*snapshot);
    fuzz::CheckIsReadable(std::move(snapshot));
  } catch (const store::StoreError& error) {
    fuzz::CheckSentence(error.what(), "f.json:");
  }
  return 0;
}
