// The platform's own path parser answers to the identifiers and slots that this system calls.
#include <gtest/gtest.h>

#include "platform/wmi.h"
#include "tests/platform/com_thread.h"

namespace {

using tqcim::testing::ComOnThread;
using tqcim::testing::OnNewThread;

TEST(PathParser, IsThePlatformsOwn) {
  OnNewThread([] {
    const ComOnThread com;
    void* object = nullptr;
    ASSERT_EQ(S_OK, CoCreateInstance(CLSID_WbemDefPath, nullptr, CLSCTX_INPROC_SERVER,
                                     IID_IWbemPath, &object));
    auto* path = static_cast<IWbemPath*>(object);
    EXPECT_EQ(S_OK,
              path->SetText(WBEMPATH_CREATE_ACCEPT_ALL, OLESTR("CIM_Processor.DeviceID=\"1\"")));
    OLECHAR name[32];
    ULONG room = 32;
    EXPECT_EQ(S_OK, path->GetClassName(&room, name));
    EXPECT_STREQ(OLESTR("CIM_Processor"), name);
    IWbemPathKeyList* keys = nullptr;
    ASSERT_EQ(S_OK, path->GetKeyList(&keys));
    ULONG count = 0;
    EXPECT_EQ(S_OK, keys->GetCount(&count));
    EXPECT_EQ(1u, count);
    ASSERT_EQ(S_OK, keys->QueryInterface(IID_IWbemPathKeyList, &object));
    EXPECT_EQ(keys, object);
    keys->Release();
    keys->Release();
    path->Release();
  });
}

}  // namespace
