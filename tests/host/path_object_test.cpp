// The path parser that providers get from COM.
#include "host/path_object.h"

#include "tests/host/com_test.h"

namespace tqcim::host {
namespace {

class PathObjectTest : public HostObjectsTest {
 protected:
  HRESULT Set(const OLECHAR* text) { return path_->SetText(WBEMPATH_CREATE_ACCEPT_ALL, text); }

  Com<IWbemPathKeyList> Keys() {
    IWbemPathKeyList* keys = nullptr;
    EXPECT_EQ(S_OK, path_->GetKeyList(&keys));
    return Com<IWbemPathKeyList>(keys);
  }

  Com<PathObject> path_{new PathObject};
};

TEST_F(PathObjectTest, TheClassNameIsAskedForTwice) {
  ASSERT_EQ(S_OK, Set(OLESTR("\\\\.\\root\\cimv2\\vorn:CIM_Processor.DeviceID=\"1\"")));
  ULONG length = 0;
  EXPECT_EQ(S_OK, path_->GetClassName(&length, nullptr));
  EXPECT_EQ(14u, length);
  OLECHAR name[14] = {};
  EXPECT_EQ(S_OK, path_->GetClassName(&length, name));
  EXPECT_EQ("CIM_Processor", ToUtf8(name));
  EXPECT_EQ(14u, length);
  length = 13;
  OLECHAR small[13] = {};
  EXPECT_EQ(kTooSmall, path_->GetClassName(&length, small));
  EXPECT_EQ(14u, length);
  EXPECT_EQ(OLECHAR{}, small[0]);
  EXPECT_EQ(kBadArgument, path_->GetClassName(nullptr, name));
}

TEST_F(PathObjectTest, KeysHaveNameValueAndApparentType) {
  ASSERT_EQ(S_OK, Set(OLESTR("C.Text=\"a\\\"b\",Small=-5,Large=4294967296,Huge="
                             "18446744073709551615,Yes=TRUE")));
  const auto keys = Keys();
  ULONG count = 0;
  EXPECT_EQ(S_OK, keys->GetCount(&count));
  ASSERT_EQ(5u, count);
  const auto key = [&keys](ULONG index, const char* expected_name, ULONG expected_type) {
    OLECHAR name[256] = {};
    ULONG length = 256;
    ULONG type = 0;
    OwnedVariant value;
    EXPECT_EQ(S_OK, keys->GetKey2(index, 0, &length, name, &value, &type));
    EXPECT_EQ(expected_name, ToUtf8(name));
    EXPECT_EQ(WideView(name).size() + 1, length);
    EXPECT_EQ(expected_type, type);
    return value;
  };
  const OwnedVariant text = key(0, "Text", 8);
  ASSERT_EQ(VT_BSTR, V_VT(&text));
  EXPECT_EQ("a\"b", ToUtf8(V_BSTR(&text)));
  const OwnedVariant small = key(1, "Small", 3);
  ASSERT_EQ(VT_I4, V_VT(&small));
  EXPECT_EQ(-5, V_I4(&small));
  const OwnedVariant large = key(2, "Large", 20);
  ASSERT_EQ(VT_BSTR, V_VT(&large));
  EXPECT_EQ("4294967296", ToUtf8(V_BSTR(&large)));
  const OwnedVariant huge = key(3, "Huge", 21);
  ASSERT_EQ(VT_BSTR, V_VT(&huge));
  EXPECT_EQ("18446744073709551615", ToUtf8(V_BSTR(&huge)));
  const OwnedVariant yes = key(4, "Yes", 11);
  ASSERT_EQ(VT_BOOL, V_VT(&yes));
  EXPECT_EQ(-1, V_BOOL(&yes));
}

TEST_F(PathObjectTest, ASingleValueIsAKeyWithoutName) {
  ASSERT_EQ(S_OK, Set(OLESTR("C=\"x\"")));
  OLECHAR name[2] = {OLECHAR{'z'}, OLECHAR{}};
  ULONG length = 2;
  OwnedVariant value;
  EXPECT_EQ(S_OK, Keys()->GetKey2(0, 0, &length, name, &value, nullptr));
  EXPECT_EQ(OLECHAR{}, name[0]);
  EXPECT_EQ(1u, length);
}

TEST_F(PathObjectTest, ClassesAndSingletonsHaveNoKeys) {
  for (const OLECHAR* text : {OLESTR("VORN_System"), OLESTR("VORN_BIOSExtensions=@")}) {
    ASSERT_EQ(S_OK, Set(text));
    ULONG count = 9;
    EXPECT_EQ(S_OK, Keys()->GetCount(&count));
    EXPECT_EQ(0u, count);
  }
}

TEST_F(PathObjectTest, BadKeyArgumentsAreRefused) {
  ASSERT_EQ(S_OK, Set(OLESTR("C.Key=\"x\"")));
  const auto keys = Keys();
  OLECHAR name[8] = {};
  ULONG length = 8;
  OwnedVariant value;
  EXPECT_EQ(kBadArgument, keys->GetKey2(1, 0, &length, name, &value, nullptr));
  EXPECT_EQ(kBadArgument, keys->GetKey2(0, 1, &length, name, &value, nullptr));
  EXPECT_EQ(kBadArgument, keys->GetKey2(0, 0, nullptr, name, &value, nullptr));
  EXPECT_EQ(kBadArgument, keys->GetKey2(0, 0, &length, name, nullptr, nullptr));
  EXPECT_EQ(kBadArgument, keys->GetCount(nullptr));
  length = 3;
  EXPECT_EQ(kTooSmall, keys->GetKey2(0, 0, &length, name, &value, nullptr));
  EXPECT_EQ(4u, length);
  EXPECT_EQ(VT_EMPTY, V_VT(&value));
}

TEST_F(PathObjectTest, AKeyListOutlivesItsPath) {
  ASSERT_EQ(S_OK, Set(OLESTR("C.Key=\"x\"")));
  const auto keys = Keys();
  ASSERT_EQ(S_OK, Set(OLESTR("D")));
  path_.Release();
  ULONG count = 0;
  EXPECT_EQ(S_OK, keys->GetCount(&count));
  EXPECT_EQ(1u, count);
}

TEST_F(PathObjectTest, ATextThatIsNoPathLeavesNoPathBehind) {
  ASSERT_EQ(S_OK, Set(OLESTR("C.Key=\"x\"")));
  EXPECT_EQ(kBadPath, Set(OLESTR("C.Key=")));
  ULONG length = 0;
  EXPECT_EQ(kBadPath, path_->GetClassName(&length, nullptr));
  IWbemPathKeyList* keys = nullptr;
  EXPECT_EQ(kBadArgument, path_->GetKeyList(&keys));
  EXPECT_EQ(nullptr, keys);
}

TEST_F(PathObjectTest, OnlyOneModeIsServed) {
  EXPECT_EQ(kBadArgument, path_->SetText(0, OLESTR("C")));
  EXPECT_EQ(kBadArgument, path_->SetText(WBEMPATH_CREATE_ACCEPT_RELATIVE, OLESTR("C")));
  EXPECT_EQ(kBadArgument, path_->SetText(WBEMPATH_CREATE_ACCEPT_ALL, nullptr));
}

TEST_F(PathObjectTest, WhatIsNotServedIsRefused) {
  ASSERT_EQ(S_OK, Set(OLESTR("\\\\HOST\\root\\cimv2:C")));
  ULONG count = 0;
  EXPECT_EQ(kRefused, path_->GetText(WBEMPATH_GET_RELATIVE_ONLY, &count, nullptr));
  EXPECT_EQ(kRefused, path_->GetServer(&count, nullptr));
  EXPECT_EQ(kRefused, path_->GetNamespaceCount(&count));
  EXPECT_EQ(kRefused, path_->GetNamespaceAt(0, &count, nullptr));
}

}  // namespace
}  // namespace tqcim::host
