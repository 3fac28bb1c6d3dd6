#include "tests/support/handler_test.h"
#include "tests/support/time_zone.h"

namespace tqcim::testing {
namespace {

class CimBiosElementTest : public HandlerTest {
 protected:
  CimBiosElementTest() {
    store.Add(40, 212)
        .Ucs2(32, u"Example Firmware Works")
        .Ucs2(36, u"2.7.1")
        .Utf8(40, "03/15/2012");
    store.List(2, 212, {40});
  }

  /// The `InstallDate` that a release date gives.
  std::string InstallDateOf(const char* releaseDate) {
    store.Object(40).Utf8(40, releaseDate);
    Enumerate("CIM_BIOSElement");
    return Value(DeliveredCount() - 1, "InstallDate");
  }

  const TimeZone zone{"UTC0"};
};

const Puts kBios = {{"InstallDate", VT_BSTR, CIM_DATETIME, "20120315000000.000000+0.0"},
                    {"Version", VT_BSTR, 0, "2.7.1"},
                    {"SoftwareElementID", VT_BSTR, 0, "2.7.1"},
                    {"Manufacturer", VT_BSTR, 0, "Example Firmware Works"},
                    {"PrimaryBIOS", VT_BOOL, 0, "1"},
                    {"SoftwareElementState", VT_I4, 0, "4"},
                    {"SoftwareElementID", VT_BSTR, 0, "System Bios"},
                    {"Name", VT_BSTR, 0, "System Bios"},
                    {"TargetOperatingSystem", VT_I4, 0, "1"}};

TEST_F(CimBiosElementTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("CIM_BIOSElement"));
  ASSERT_EQ(1u, DeliveredCount());
  EXPECT_EQ(kBios, Delivered(0));
}

TEST_F(CimBiosElementTest, TheReleaseDateGoesBackBehindTheTextThatIsMadeOfIt) {
  store.RecordCalls();
  Enumerate("CIM_BIOSElement");
  EXPECT_EQ((std::vector<std::string>{"children 2/212", "object 40", "free", "text 314",
                                      "allocate 26", "free support", "free", "free"}),
            store.Calls());
}

TEST_F(CimBiosElementTest, PublishesTheFirstObjectOnly) {
  store.Add(41, 212).Ucs2(32, u"").Ucs2(36, u"9.9").Utf8(40, "01/01/2001");
  store.List(2, 212, {40, 41});
  EXPECT_EQ(0, Enumerate("CIM_BIOSElement"));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_F(CimBiosElementTest, IsGotByAnyKeys) {
  EXPECT_EQ(0, Get("CIM_BIOSElement", StringKey(OLESTR("Name"), OLESTR("no such BIOS"))));
  EXPECT_EQ(0, GetWithoutKeys("CIM_BIOSElement"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kBios, Delivered(0));
  EXPECT_EQ(kBios, Delivered(1));
}

TEST_F(CimBiosElementTest, SoftwareElementIdIsPutTwiceAndEndsAsTheFixedText) {
  Enumerate("CIM_BIOSElement");
  EXPECT_EQ("System Bios", Value(0, "SoftwareElementID"));
}

TEST_F(CimBiosElementTest, ReadsTheReleaseDateAsMonthDayAndYear) {
  EXPECT_EQ("20120315000000.000000+0.0", InstallDateOf("03/15/2012"));
  EXPECT_EQ("20120305000000.000000+0.0", InstallDateOf("3/5/2012"));
  EXPECT_EQ("19010101000000.000000+0.0", InstallDateOf("01/01/1901"));
  EXPECT_EQ("20240229000000.000000+0.0", InstallDateOf("2/29/2024"));
}

TEST_F(CimBiosElementTest, TakesATwoDigitYearAsItStands) {
  EXPECT_EQ("19990305000000.000000+0.0", InstallDateOf("3/5/99"));
  EXPECT_EQ("19070305000000.000000+0.0", InstallDateOf("3/5/07"));
  EXPECT_EQ("20120305000000.000000+0.0", InstallDateOf("3/5/112"));
}

TEST_F(CimBiosElementTest, YearsUpTo1900AreCountedFrom1900) {
  EXPECT_EQ("38000305000000.000000+0.0", InstallDateOf("3/5/1900"));
}

TEST_F(CimBiosElementTest, AMissingYearIs1900) {
  EXPECT_EQ("19001231000000.000000+0.0", InstallDateOf("12/31"));
}

TEST_F(CimBiosElementTest, FieldsAreReadAsFarAsTheyAreNumbers) {
  EXPECT_EQ("20120315000000.000000+0.0", InstallDateOf(" 03th/ 15./2012 (draft)/77"));
}

TEST_F(CimBiosElementTest, HasNoInstallDateWhereTheDateIsNone) {
  for (const char* text : {"", "/", "03", "0/15/2012", "13/15/2012", "3/0/2012", "3/32/2012",
                           "3/15/10000", "-1/15/2012", "unknown"}) {
    EXPECT_EQ("<absent>", InstallDateOf(text)) << text;
  }
}

TEST_F(CimBiosElementTest, HasNoInstallDateWithoutAReleaseDate) {
  store.Add(40, 212).Ucs2(32, u"Example Firmware Works").Ucs2(36, u"2.7.1");
  EXPECT_EQ(0, Enumerate("CIM_BIOSElement"));
  EXPECT_EQ(Puts(kBios.begin() + 1, kBios.end()), Delivered(0));
}

TEST_F(CimBiosElementTest, HasNoInstallDateWhereTheSupportLibraryHasNoMemory) {
  store.FailAllocations();
  EXPECT_EQ(0, Enumerate("CIM_BIOSElement"));
  EXPECT_EQ(Puts(kBios.begin() + 1, kBios.end()), Delivered(0));
}

TEST_F(CimBiosElementTest, AnEmptyStoreIsSuccessToEnumerateAndNotFoundToGet) {
  store.List(2, 212, {});
  EXPECT_EQ(0, Enumerate("CIM_BIOSElement"));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys("CIM_BIOSElement"));
  store.FailListing(2, 212);
  EXPECT_EQ(0, Enumerate("CIM_BIOSElement"));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys("CIM_BIOSElement"));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(CimBiosElementTest, AnUnreadableObjectIsSuccessToEnumerateAndNotFoundToGet) {
  store.FailRead(40);
  EXPECT_EQ(0, Enumerate("CIM_BIOSElement"));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys("CIM_BIOSElement"));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(CimBiosElementTest, ReturnsTheFailureOfTheSpawn) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, Hr(0x80041006));
  EXPECT_EQ(Hr(0x80041006), Enumerate("CIM_BIOSElement"));
  EXPECT_EQ(Hr(0x80041006), GetWithoutKeys("CIM_BIOSElement"));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(CimBiosElementTest, ReturnsTheStatusOfTheDelivery) {
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(Hr(0x80041032), Enumerate("CIM_BIOSElement"));
  EXPECT_EQ(Hr(0x80041032), GetWithoutKeys("CIM_BIOSElement"));
}

TEST_F(CimBiosElementTest, AnInstanceThatTheSinkKeepsDoesNotShowInTheResult) {
  sink.KeepInstances();
  EXPECT_EQ(0, Enumerate("CIM_BIOSElement"));
}

}  // namespace
}  // namespace tqcim::testing
