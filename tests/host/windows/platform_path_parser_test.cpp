// The host's path parser agrees with the platform's own on the calls that providers make. Under
// Wine that leaves out the keys' names and values (GetKey2), escapes and single quotes.
#include <sstream>

#include "host/path_object.h"
#include "tests/host/com_test.h"

namespace tqcim::host {
namespace {

class PlatformPathParser : public HostObjectsTest {
 protected:
  PlatformPathParser() { EXPECT_EQ(S_OK, CoInitializeEx(nullptr, COINIT_MULTITHREADED)); }
  ~PlatformPathParser() override {
    theirs_.Release();
    ours_.Release();
    CoUninitialize();
  }
  void SetUp() override {
    ASSERT_EQ(S_OK, CoCreateInstance(CLSID_WbemDefPath, nullptr, CLSCTX_INPROC_SERVER,
                                     IID_IWbemPath, theirs_.ReceiveVoid()));
    ours_ = Com<IWbemPath>(new PathObject);
  }

  static std::string Answers(IWbemPath& path) {
    std::ostringstream answers;
    OLECHAR text[128] = {};
    ULONG length = 0;
    answers << "class " << path.GetClassName(&length, nullptr) << " " << length;
    length = 128;
    answers << " " << path.GetClassName(&length, text) << " " << ToUtf8(text) << " " << length;
    ULONG count = 0;
    IWbemPathKeyList* keys = nullptr;
    answers << ", keys " << path.GetKeyList(&keys);
    if (keys) {
      answers << " " << keys->GetCount(&count) << " " << count;
      keys->Release();
    }
    return answers.str();
  }

  Com<IWbemPath> theirs_;
  Com<IWbemPath> ours_;
};

TEST_F(PlatformPathParser, AgreesOnClassNamesAndKeyCounts) {
  for (const OLECHAR* text :
       {OLESTR("\\\\.\\root\\cimv2\\vorn:CIM_X.a=\"1\",b=5"), OLESTR("//./root/cimv2:CIM_X.a=-7"),
        OLESTR("root\\cimv2:C.k=\"x\""), OLESTR("\\root\\cimv2:C"),
        OLESTR("\\\\HOST\\root\\cimv2:VORN_System"), OLESTR("root\\cimv2:C.k=\"\""),
        OLESTR("root\\cimv2:C.k=TRUE"), OLESTR("VORN_System"),
        OLESTR("CIM_Processor.DeviceID=\"1\""), OLESTR("C.k=1,l=\"2\",m=3")}) {
    ASSERT_EQ(S_OK, theirs_->SetText(WBEMPATH_CREATE_ACCEPT_ALL, text));
    ASSERT_EQ(S_OK, ours_->SetText(WBEMPATH_CREATE_ACCEPT_ALL, text));
    EXPECT_EQ(Answers(*theirs_), Answers(*ours_)) << ToUtf8(text);
  }
}

TEST_F(PlatformPathParser, AgreesOnWhatHasNoPath) {
  for (IWbemPath* path : {theirs_.get(), ours_.get()}) {
    ULONG length = 0;
    IWbemPathKeyList* keys = nullptr;
    EXPECT_EQ(static_cast<HRESULT>(0x8004103A), path->GetClassName(&length, nullptr));
    EXPECT_EQ(static_cast<HRESULT>(0x80041008), path->GetKeyList(&keys));
    EXPECT_EQ(static_cast<HRESULT>(0x80041008), path->SetText(0, OLESTR("C")));
    EXPECT_EQ(static_cast<HRESULT>(0x80041008), path->SetText(4, nullptr));
    EXPECT_EQ(S_OK, path->SetText(4, OLESTR("")));
    EXPECT_EQ(static_cast<HRESULT>(0x8004103A), path->GetClassName(&length, nullptr));
  }
}

}  // namespace
}  // namespace tqcim::host
