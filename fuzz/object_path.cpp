// Object paths: what is read is written in a form that reads as the same path; what isn't is
// refused at a place within the text.

#include "host/object_path.h"

#include "fuzz/check.h"

using namespace tqcim;

namespace {

void CheckReadsAs(const std::string& text, const host::ObjectPath& path,
                  const std::string& server) {
  const host::ObjectPath again = host::ParseObjectPath(text);
  fuzz::Check(again.server == server, "the server comes back");
  fuzz::Check(again.class_name == path.class_name, "the class comes back");
  fuzz::Check(again.keys == path.keys && again.singleton == path.singleton, "the keys come back");
}

void CheckComesBack(const host::ObjectPath& path) {
  const bool elsewhere = !path.namespaces.empty();
  const std::string server = path.server.empty() && elsewhere ? "." : path.server;
  const std::string full = host::FullText(path, true);
  CheckReadsAs(full, path, server);
  fuzz::Check(host::ParseObjectPath(full).namespaces == path.namespaces,
              "the namespaces come back");
  if (path.class_name.empty()) return;
  const std::string local = host::FullText(path, false);
  CheckReadsAs(local, path, "");
  fuzz::Check(host::ParseObjectPath(local).namespaces == path.namespaces,
              "the namespaces come back without a server");
  CheckReadsAs(host::RelativeText(path), path, "");
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
  if (path) CheckComesBack(*path);
  return 0;
}
