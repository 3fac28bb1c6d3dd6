#include "tests/support/fake_path_parser.h"

#include <algorithm>

#include "tests/support/fault.h"
#include "tests/support/recorded_put.h"

namespace tqcim::testing {

class FakePathParser::Path final : public RefusingPath {
 public:
  explicit Path(FakePathParser& parser) : RefusingPath("a path"), parser_(parser) {}

  HRESULT STDMETHODCALLTYPE SetText(ULONG mode, LPCWSTR text) override {
    const OutsideCall call(Call::kPath);
    if (call.Fails()) return call.Result();
    ExpectHeld("SetText");
    if (parser_.onParse_) parser_.onParse_();
    parser_.calls_.push_back("SetText " + std::to_string(mode) + " " + Printable(text));
    const auto parsed = parser_.texts_.find(Printable(text));
    if (parsed == parser_.texts_.end()) return static_cast<HRESULT>(WBEM_E_INVALID_PARAMETER);
    parsed_ = parsed->second;
    return S_OK;
  }

  /// The length that the parser tells counts the terminator.
  HRESULT STDMETHODCALLTYPE GetClassName(ULONG* room, LPWSTR name) override {
    const OutsideCall call(Call::kPath);
    if (call.Fails()) return call.Result();
    ExpectHeld("GetClassName");
    parser_.calls_.push_back(name ? "GetClassName text" : "GetClassName length");
    if (!name && *room != 0) ADD_FAILURE() << "room in no buffer";
    const HRESULT result = name ? parser_.classNameResult_ : parser_.lengthResult_;
    if (FAILED(result)) return result;
    const size_t length =
        parsed_.className ? std::char_traits<OLECHAR>::length(parsed_.className) + 1 : 0;
    if (name && *room < length) return static_cast<HRESULT>(WBEM_E_BUFFER_TOO_SMALL);
    if (name) std::copy_n(parsed_.className, length, name);
    *room = static_cast<ULONG>(length);
    return result;
  }

  HRESULT STDMETHODCALLTYPE GetKeyList(IWbemPathKeyList** keys) override {
    const OutsideCall call(Call::kPath);
    if (call.Fails()) return call.Result();
    ExpectHeld("GetKeyList");
    parser_.calls_.push_back("GetKeyList");
    if (!parsed_.keys) return static_cast<HRESULT>(WBEM_E_NOT_AVAILABLE);
    parsed_.keys->AddRef();
    *keys = parsed_.keys;
    return S_OK;
  }

 private:
  FakePathParser& parser_;
  Parsed parsed_{};
};

FakePathParser::FakePathParser()
    : factory_([this](REFIID iid, void** object) {
        if (FAILED(createResult_)) return createResult_;
        paths_.push_back(std::make_unique<Path>(*this));
        return paths_.back()->QueryInterface(iid, object);
      }) {}

FakePathParser::~FakePathParser() = default;

void FakePathParser::Understand(const std::string& text, const OLECHAR* className,
                                IWbemPathKeyList* keys) {
  texts_[text] = {className, keys};
}

}  // namespace tqcim::testing
