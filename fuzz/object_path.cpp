// Object paths: the class and keys that are read are written in a form that reads as the same ones;
// what isn't is refused at a place within the text.

#include "host/object_path.h"

#include "fuzz/check.h"

using namespace tqcim;

namespace {

void CheckComesBack(const host::ObjectPath& path) {
  const host::ObjectPath again = host::ParseObjectPath(host::RelativeText(path));
  fuzz::Check(again.server.empty() && again.namespaces.empty(), "nothing stands before the class");
  fuzz::Check(again.class_name == path.class_name, "the class comes back");
  fuzz::Check(again.keys == path.keys && again.singleton == path.singleton, "the keys come back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::optional<host::ObjectPath> path;
  try {
    path = host::ParseObjectPath(fuzz::TextOf(data, size));
  } catch (const host::PathError& error) {
    fuzz::Check(error.position() <= size, "an error is within the text");
    fuzz::CheckSentence(error.what(), "");
  }
  // What is refused now is a finding.
  if (path && !path->class_name.empty()) CheckComesBack(*path);
  return 0;
}
