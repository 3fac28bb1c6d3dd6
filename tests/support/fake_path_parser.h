/// The management service's parser of object paths.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/fake_key_list.h"
#include "tests/support/fake_services.h"

namespace tqcim::testing {

/// Makes path objects that understand the texts that a test has told, and no others. Belongs to one
/// thread.
class FakePathParser {
 public:
  FakePathParser();
  ~FakePathParser();

  /// The factory to register for CLSID_WbemDefPath.
  FakeFactory& Factory() { return factory_; }

  /// From now on the text names a class and these keys. A null class name is none; with null keys
  /// the key list cannot be had.
  void Understand(const std::string& text, const OLECHAR* className, IWbemPathKeyList* keys);
  /// What making a path object returns.
  void SetCreateResult(HRESULT result) { createResult_ = result; }
  /// What asking for the class name returns: for its length, and for itself.
  void SetClassNameResults(HRESULT lengthResult, HRESULT textResult) {
    lengthResult_ = lengthResult;
    classNameResult_ = textResult;
  }
  /// Called whenever a text is to be parsed.
  void OnParse(std::function<void()> action) { onParse_ = std::move(action); }

  /// The calls of all path objects: "SetText 4 TEXT", "GetClassName length", "GetClassName text",
  /// "GetKeyList".
  const std::vector<std::string>& Calls() const { return calls_; }

 private:
  class Path;
  struct Parsed {
    const OLECHAR* className;
    IWbemPathKeyList* keys;
  };

  FakeFactory factory_;
  std::map<std::string, Parsed> texts_;
  HRESULT createResult_ = S_OK;
  HRESULT lengthResult_ = S_OK;
  HRESULT classNameResult_ = S_OK;
  std::function<void()> onParse_;
  std::vector<std::string> calls_;
  std::vector<std::unique_ptr<Path>> paths_;
};

}  // namespace tqcim::testing
