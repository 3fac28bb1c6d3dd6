#include <gtest/gtest.h>

#include <string>

#include "platform/wmi.h"

namespace {

using Text = std::basic_string<OLECHAR>;

Text TextOf(REFGUID guid) {
  OLECHAR text[39];
  EXPECT_EQ(39, StringFromGUID2(guid, text, 39));
  return text;
}

TEST(Guid, InterfacesAndClassesHaveThePlatformsIdentifiers) {
  EXPECT_EQ(OLESTR("{00000000-0000-0000-C000-000000000046}"), TextOf(IID_IUnknown));
  EXPECT_EQ(OLESTR("{00000001-0000-0000-C000-000000000046}"), TextOf(IID_IClassFactory));
  EXPECT_EQ(OLESTR("{9556DC99-828C-11CF-A37E-00AA003240C7}"), TextOf(IID_IWbemServices));
  EXPECT_EQ(OLESTR("{DC12A680-737F-11CF-884D-00AA004B2E24}"), TextOf(IID_IWbemQualifierSet));
  EXPECT_EQ(OLESTR("{DC12A681-737F-11CF-884D-00AA004B2E24}"), TextOf(IID_IWbemClassObject));
  EXPECT_EQ(OLESTR("{DC12A687-737F-11CF-884D-00AA004B2E24}"), TextOf(IID_IWbemLocator));
  EXPECT_EQ(OLESTR("{44ACA674-E8FC-11D0-A07C-00C04FB68820}"), TextOf(IID_IWbemContext));
  EXPECT_EQ(OLESTR("{44ACA675-E8FC-11D0-A07C-00C04FB68820}"), TextOf(IID_IWbemCallResult));
  EXPECT_EQ(OLESTR("{7C857801-7381-11CF-884D-00AA004B2E24}"), TextOf(IID_IWbemObjectSink));
  EXPECT_EQ(OLESTR("{027947E1-D731-11CE-A357-000000000001}"), TextOf(IID_IEnumWbemClassObject));
  EXPECT_EQ(OLESTR("{1BE41571-91DD-11D1-AEB2-00C04FB68820}"), TextOf(IID_IWbemProviderInitSink));
  EXPECT_EQ(OLESTR("{1BE41572-91DD-11D1-AEB2-00C04FB68820}"), TextOf(IID_IWbemProviderInit));
  EXPECT_EQ(OLESTR("{3BC15AF2-736C-477E-9E51-238AF8667DCC}"), TextOf(IID_IWbemPath));
  EXPECT_EQ(OLESTR("{9AE62877-7544-4BB0-AA26-A13824659ED6}"), TextOf(IID_IWbemPathKeyList));
  EXPECT_EQ(OLESTR("{4590F811-1D3A-11D0-891F-00AA004B2E24}"), TextOf(CLSID_WbemLocator));
  EXPECT_EQ(OLESTR("{CB8555CC-9128-11D1-AD9B-00C04FD8FDFF}"),
            TextOf(CLSID_WbemAdministrativeLocator));
  EXPECT_EQ(OLESTR("{CF4CC405-E2C5-4DDD-B3CE-5E7582D8C9FA}"), TextOf(CLSID_WbemDefPath));
}

TEST(Guid, TextShowsTheFieldsInOrder) {
  const GUID guid = {0x01234567, 0x89AB, 0xCDEF, {0x00, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0xFF}};
  EXPECT_EQ(OLESTR("{01234567-89AB-CDEF-0011-2233445566FF}"), TextOf(guid));
}

TEST(Guid, TextNeedsRoomForItsTerminator) {
  OLECHAR text[39] = {OLESTR('?')};
  EXPECT_EQ(0, StringFromGUID2(IID_IUnknown, text, 38));
  EXPECT_EQ(OLESTR('?'), text[0]);
  OLECHAR longer[128];
  EXPECT_EQ(39, StringFromGUID2(IID_IUnknown, longer, 128));
  EXPECT_EQ(0, longer[38]);
}

TEST(Guid, AllocatedTextIsTheSameText) {
  LPOLESTR text = nullptr;
  ASSERT_EQ(S_OK, StringFromCLSID(CLSID_WbemLocator, &text));
  EXPECT_EQ(OLESTR("{4590F811-1D3A-11D0-891F-00AA004B2E24}"), Text(text));
  CoTaskMemFree(text);
}

TEST(Guid, TextIsReadInAnyCase) {
  for (const OLECHAR* text : {OLESTR("{cb8555cc-9128-11d1-ad9b-00c04fd8fdff}"),
                              OLESTR("{CB8555CC-9128-11D1-AD9B-00C04FD8FDFF}"),
                              OLESTR("{Cb8555cC-9128-11d1-Ad9B-00c04fD8FdfF}")}) {
    CLSID clsid = {};
    ASSERT_EQ(S_OK, CLSIDFromString(text, &clsid));
    EXPECT_TRUE(clsid == CLSID_WbemAdministrativeLocator);
  }
}

TEST(Guid, AnythingElseIsNotAnIdentifier) {
  for (const OLECHAR* text : {OLESTR(""), OLESTR("{"), OLESTR("VORN_System"),
                              OLESTR("CB8555CC-9128-11D1-AD9B-00C04FD8FDFF"),
                              OLESTR("{CB8555CC-9128-11D1-AD9B-00C04FD8FDF}"),
                              OLESTR("{CB8555CC-9128-11D1-AD9B-00C04FD8FDFFF}"),
                              OLESTR("{CB8555CC-9128-11D1-AD9B-00C04FD8FDFG}"),
                              OLESTR("{CB8555CC-9128-11D1-AD9B-00C04FD8FDFg}"),
                              OLESTR("{CB8555CC-9128-11D1-AD9B-00C04FD8FDF/}"),
                              OLESTR("{CB8555CC-9128-11D1-AD9B-00C04FD8FDF:}"),
                              OLESTR("{CB8555CC-9128-11D1-AD9B-00C04FD8FDF@}"),
                              OLESTR("{CB8555CC-9128-11D1-AD9B-00C04FD8FDF`}"),
                              OLESTR("{CB8555CC9-128-11D1-AD9B-00C04FD8FDFF}"),
                              OLESTR("{CB8555CC-9128-11D1-AD9B-00C04FD8FDFF)"),
                              OLESTR("{CB8555CC-9128-11D1-AD9B-00C04FD8FDFF} ")}) {
    CLSID clsid = {};
    EXPECT_EQ(CO_E_CLASSSTRING, CLSIDFromString(text, &clsid)) << TextOf(clsid).size();
  }
}

TEST(Guid, NoTextIsTheZeroIdentifier) {
  CLSID clsid = CLSID_WbemLocator;
  EXPECT_EQ(S_OK, CLSIDFromString(nullptr, &clsid));
  EXPECT_EQ(OLESTR("{00000000-0000-0000-0000-000000000000}"), TextOf(clsid));
}

TEST(Guid, EqualityComparesAllBytes) {
  GUID guid = IID_IWbemProviderInit;
  EXPECT_TRUE(guid == IID_IWbemProviderInit);
  EXPECT_TRUE(IsEqualGUID(guid, IID_IWbemProviderInit));
  EXPECT_TRUE(IsEqualIID(guid, IID_IWbemProviderInit));
  EXPECT_FALSE(IsEqualCLSID(guid, IID_IWbemProviderInitSink));
  guid.Data4[7] ^= 1;
  EXPECT_TRUE(guid != IID_IWbemProviderInit);
  EXPECT_FALSE(IsEqualGUID(guid, IID_IWbemProviderInit));
}

}  // namespace
