#include <algorithm>
#include <initializer_list>
#include <set>
#include <tuple>

#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

struct AdapterText {
  uint32_t offset;
  const char* text;
  std::vector<std::string> properties;
};

const AdapterText kAdapterTexts[] = {
    {172, "Example 10G Adapter", {"OSAdapterDescription"}},
    {176, "Example Networks", {"OSAdapterVendor"}},
    {180, "EN-10G", {"OSAdapterProductName"}},
    {192, "7.13.1", {"DriverVersion"}},
    {200, "en10g", {"ServiceName"}},
    {208, "02:00:5E:00:00:01", {"CurrentMacAddress"}},
    {212, "02:00:5E:00:00:02", {"DeviceID", "PermanentAddress"}},
    {216, "192.0.2.10", {"IPAddress"}},
    {220, "255.255.255.0", {"SubnetMask"}},
    {224, "192.0.2.1", {"DHCPServer"}},
    {228, "192.0.2.254", {"DefaultGateway"}},
};

constexpr const char* kSection = "Network Information";
constexpr const char* kKey = "nicipinfo.cimsnmp.disabled";

class VornNetworkPortTest : public HandlerTest {
 protected:
  VornNetworkPortTest() {
    AddAdapter();
    store.Add(100, 96, 4);
    store.List(2, 96, {101, 100});
  }

  /// The adapter at OID 101, without the text at the given offset. No two of its numbers are equal.
  void AddAdapter(uint32_t absentOffset = 0) {
    FakeBlock& adapter = store.Add(101, 96, 2)
                             .U8(16, 3)
                             .U8(17, 31)
                             .U8(18, 7)
                             .U8(19, 0xEE)
                             .U32(24, 10)
                             .U32(140, 17)
                             .U32(144, 5)
                             .U32(148, 6)
                             .U32(152, 4294967295)
                             .U16(156, 1)
                             .U16(158, 2)
                             .U16(160, 4)
                             .U16(162, 9)
                             .I16(164, 8);
    for (const AdapterText& text : kAdapterTexts) {
      if (text.offset != absentOffset) adapter.Utf8(text.offset, text.text);
    }
  }

  /// The value of a property of the first adapter as it stands now.
  std::string ValueNow(const std::string& property) {
    const size_t adapter = DeliveredCount();
    Enumerate("VORN_NetworkPort");
    return Value(adapter, property);
  }

  void SetSwitch(const char* fileName, uint16_t value) {
    store.SetIniValue(fileName, kSection, kKey, value);
  }
};

const Puts kAdapter = {{"CreationClassName", VT_BSTR, 0, "Vorn_NetworkPort"},
                       {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                       {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                       {"DeviceID", VT_BSTR, 0, "02:00:5E:00:00:02"},
                       {"Status", VT_BSTR, 0, "OK"},
                       {"CurrentMacAddress", VT_BSTR, 0, "02:00:5E:00:00:01"},
                       {"PermanentAddress", VT_BSTR, 0, "02:00:5E:00:00:02"},
                       {"NicCapabilities", VT_I4, 0, "17"},
                       {"NicTOECapability", VT_I4, 0, "5"},
                       {"NicRDMACapability", VT_I4, 0, "-1"},
                       {"NiciSCSICapability", VT_I4, 0, "6"},
                       {"IsTOEEnable", VT_BOOL, 0, "1"},
                       {"IsRDMAEnable", VT_BOOL, 0, "4"},
                       {"IsiSCSIEnable", VT_BOOL, 0, "2"},
                       {"NParEPEnable", VT_I4, 0, "8"},
                       {"NicStatus", VT_I4, 0, "10"},
                       {"BusNumber", VT_I4, 0, "3"},
                       {"DeviceNumber", VT_I4, 0, "31"},
                       {"FunctionNumber", VT_I4, 0, "7"},
                       {"DriverVersion", VT_BSTR, 0, "7.13.1"},
                       {"IPAddress", VT_BSTR, 0, "192.0.2.10"},
                       {"SubnetMask", VT_BSTR, 0, "255.255.255.0"},
                       {"DHCPServer", VT_BSTR, 0, "192.0.2.1"},
                       {"DefaultGateway", VT_BSTR, 0, "192.0.2.254"},
                       {"OSAdapterDescription", VT_BSTR, 0, "Example 10G Adapter"},
                       {"OSAdapterVendor", VT_BSTR, 0, "Example Networks"},
                       {"OSAdapterProductName", VT_BSTR, 0, "EN-10G"},
                       {"ServiceName", VT_BSTR, 0, "en10g"}};

const Puts kAdapterWithoutTexts = {{"CreationClassName", VT_BSTR, 0, "Vorn_NetworkPort"},
                                   {"SystemCreationClassName", VT_BSTR, 0, "CIM_ComputerSystem"},
                                   {"SystemName", VT_BSTR, 0, "RACK42-NODE0007"},
                                   {"Status", VT_BSTR, 0, "Error"},
                                   {"NicCapabilities", VT_I4, 0, "0"},
                                   {"NicTOECapability", VT_I4, 0, "0"},
                                   {"NicRDMACapability", VT_I4, 0, "0"},
                                   {"NiciSCSICapability", VT_I4, 0, "0"},
                                   {"IsTOEEnable", VT_BOOL, 0, "0"},
                                   {"IsRDMAEnable", VT_BOOL, 0, "0"},
                                   {"IsiSCSIEnable", VT_BOOL, 0, "0"},
                                   {"NParEPEnable", VT_I4, 0, "2"},
                                   {"NicStatus", VT_I4, 0, "0"},
                                   {"BusNumber", VT_I4, 0, "0"},
                                   {"DeviceNumber", VT_I4, 0, "0"},
                                   {"FunctionNumber", VT_I4, 0, "0"}};

TEST_F(VornNetworkPortTest, PutsItsPropertiesInOrder) {
  EXPECT_EQ(0, Enumerate("VORN_NetworkPort"));
  ASSERT_EQ(2u, DeliveredCount());
  EXPECT_EQ(kAdapter, Delivered(0));
}

TEST_F(VornNetworkPortTest, AbsentTextsAreLeftUnsetAndNotPutAsNullStrings) {
  Enumerate("VORN_NetworkPort");
  EXPECT_EQ(kAdapterWithoutTexts, Delivered(1));
}

TEST_F(VornNetworkPortTest, CreationClassNameIsTheMixedCaseVornNetworkPort) {
  Enumerate("VORN_NetworkPort");
  EXPECT_EQ("Vorn_NetworkPort", Value(0, "CreationClassName"));
}

TEST_F(VornNetworkPortTest, EachAbsentTextLeavesItsOwnPropertiesUnset) {
  for (const AdapterText& text : kAdapterTexts) {
    AddAdapter(text.offset);
    const size_t adapter = DeliveredCount();
    EXPECT_EQ(0, Enumerate("VORN_NetworkPort"));
    for (const std::string& property : text.properties) {
      EXPECT_EQ("<absent>", Value(adapter, property)) << property;
    }
    EXPECT_EQ(kAdapter.size() - text.properties.size(), Delivered(adapter).size()) << text.text;
  }
}

TEST_F(VornNetworkPortTest, AnEmptyTextIsPut) {
  store.Object(101).Utf8(212, "");
  EXPECT_EQ("", ValueNow("DeviceID"));
  EXPECT_EQ("", ValueNow("PermanentAddress"));
}

TEST_F(VornNetworkPortTest, StatusFollowsTheHeader) {
  constexpr std::pair<uint8_t, const char*> kStatusTexts[] = {
      {0, "Other"}, {1, "Unknown"}, {3, "Stressed"}, {5, "NonRecover"}, {200, "Stressed"}};
  for (const auto& [status, text] : kStatusTexts) {
    store.Object(101).U8(10, status);
    EXPECT_EQ(text, ValueNow("Status")) << int{status};
  }
}

TEST_F(VornNetworkPortTest, EnablementsAreTheStores16BitValuesCopiedUnchanged) {
  constexpr std::pair<uint32_t, const char*> kFields[] = {
      {156, "IsTOEEnable"}, {160, "IsRDMAEnable"}, {158, "IsiSCSIEnable"}};
  constexpr std::pair<uint16_t, const char*> kValues[] = {
      {0, "0"}, {1, "1"}, {256, "256"}, {0x8000, "-32768"}, {0xFFFF, "-1"}};
  for (const auto& [offset, property] : kFields) {
    for (const auto& [raw, value] : kValues) {
      store.Object(101).U16(offset, raw);
      EXPECT_EQ(value, ValueNow(property)) << property;
    }
  }
}

TEST_F(VornNetworkPortTest, PartitionEndPointIs2UnlessTheStoreHasInformationOnIt) {
  constexpr std::tuple<uint16_t, int16_t, const char*> kRows[] = {{0, -1, "2"},
                                                                  {0, 1, "2"},
                                                                  {1, -1, "-1"},
                                                                  {1, 0, "0"},
                                                                  {1, 1, "1"},
                                                                  {256, 5, "5"},
                                                                  {0xFFFF, -32768, "-32768"}};
  for (const auto& [present, enabled, value] : kRows) {
    store.Object(101).U16(162, present).I16(164, enabled).U16(166, 0x5555);
    EXPECT_EQ(value, ValueNow("NParEPEnable")) << present << ", " << enabled;
  }
}

TEST_F(VornNetworkPortTest, PciNumbersAreUnsignedBytes) {
  store.Object(101).U8(16, 255).U8(17, 254).U8(18, 253);
  EXPECT_EQ("255", ValueNow("BusNumber"));
  EXPECT_EQ("254", ValueNow("DeviceNumber"));
  EXPECT_EQ("253", ValueNow("FunctionNumber"));
}

TEST_F(VornNetworkPortTest, BothIniFilesAreReadAgainForEveryAdapterTheSecondFileLast) {
  store.RecordCalls();
  Enumerate("VORN_NetworkPort");
  std::vector<std::string> reads;
  for (const std::string& call : store.Calls()) {
    if (call.starts_with("ini") || call.starts_with("object")) reads.push_back(call);
  }
  EXPECT_EQ((std::vector<std::string>{
                "object 101",  //
                "ini tqisst64.ini [Network Information] nicipinfo.cimsnmp.disabled",
                "ini tqisdy64.ini [Network Information] nicipinfo.cimsnmp.disabled",
                "object 100",  //
                "ini tqisst64.ini [Network Information] nicipinfo.cimsnmp.disabled",
                "ini tqisdy64.ini [Network Information] nicipinfo.cimsnmp.disabled"}),
            reads);
}

TEST_F(VornNetworkPortTest, TheSwitchMayChangeBetweenTwoAdapters) {
  store.Add(100, 96).Utf8(216, "192.0.2.11");
  sink.AtIndicate([this] { SetSwitch("tqisdy64.ini", DeliveredCount() == 0 ? 1 : 0); });
  EXPECT_EQ(0, Enumerate("VORN_NetworkPort"));
  EXPECT_EQ("192.0.2.10", Value(0, "IPAddress"));
  EXPECT_EQ("<absent>", Value(1, "IPAddress"));
}

TEST_F(VornNetworkPortTest, ThePermanentAddressIsReadForEachOfItsTwoProperties) {
  store.List(2, 96, {101});
  store.RecordCalls();
  Enumerate("VORN_NetworkPort");
  // Reads of one text are calls with one offset.
  std::multiset<std::ptrdiff_t> reads;
  const std::vector<std::string>& calls = store.Calls();
  for (const std::string& call : std::set<std::string>(calls.begin(), calls.end())) {
    if (call.starts_with("text ")) reads.insert(std::count(calls.begin(), calls.end(), call));
  }
  EXPECT_EQ((std::multiset<std::ptrdiff_t>{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 2}), reads);
}

TEST_F(VornNetworkPortTest, TheSwitchInTheFirstFileHidesTheIpPropertiesOfEveryPort) {
  SetSwitch("tqisst64.ini", 1);
  store.Add(100, 96).Utf8(216, "192.0.2.11");
  EXPECT_EQ(0, Enumerate("VORN_NetworkPort"));
  ASSERT_EQ(2u, DeliveredCount());
  Puts withoutIp = kAdapter;
  withoutIp.erase(withoutIp.begin() + 20, withoutIp.begin() + 24);
  EXPECT_EQ(withoutIp, Delivered(0));
  EXPECT_EQ("<absent>", Value(1, "IPAddress"));
}

TEST_F(VornNetworkPortTest, TheSecondFileOverridesTheFirst) {
  SetSwitch("tqisst64.ini", 1);
  SetSwitch("tqisdy64.ini", 0);
  EXPECT_EQ("192.0.2.10", ValueNow("IPAddress"));
  SetSwitch("tqisst64.ini", 0);
  SetSwitch("tqisdy64.ini", 1);
  EXPECT_EQ("<absent>", ValueNow("IPAddress"));
}

TEST_F(VornNetworkPortTest, EverySwitchValueOtherThan0Hides) {
  for (const uint16_t value : std::initializer_list<uint16_t>{2, 256, 0x8000, 0xFFFF}) {
    SetSwitch("tqisst64.ini", value);
    EXPECT_EQ("<absent>", ValueNow("IPAddress")) << value;
  }
  SetSwitch("tqisst64.ini", 0);
  EXPECT_EQ("192.0.2.10", ValueNow("IPAddress"));
}

TEST_F(VornNetworkPortTest, NothingInTheStoreIsSuccess) {
  store.List(2, 96, {});
  EXPECT_EQ(0, Enumerate("VORN_NetworkPort"));
  store.FailListing(2, 96);
  EXPECT_EQ(0, Enumerate("VORN_NetworkPort"));
  EXPECT_EQ(0u, definition.Spawns());
}

TEST_F(VornNetworkPortTest, ListsAgainForEveryPosition) {
  store.Add(101, 96);
  store.List(2, 96, {101});
  store.RecordCalls();
  Enumerate("VORN_NetworkPort");
  const std::vector<std::string>& calls = store.Calls();
  ASSERT_LT(5u, calls.size());
  EXPECT_EQ((std::vector<std::string>{"children 2/96", "object 101", "free"}),
            (std::vector<std::string>{calls.begin(), calls.begin() + 3}));
  EXPECT_EQ((std::vector<std::string>{"free", "children 2/96", "free"}),
            (std::vector<std::string>{calls.end() - 3, calls.end()}));
}

TEST_F(VornNetworkPortTest, EndsAtTheFirstAdapterThatCannotBeRead) {
  store.FailRead(101);
  EXPECT_EQ(0, Enumerate("VORN_NetworkPort"));
  EXPECT_EQ(0u, DeliveredCount());
}

TEST_F(VornNetworkPortTest, AdaptersBeyondPosition255AreReadToo) {
  std::vector<uint32_t> oids(257, 100);
  oids[256] = 101;
  store.List(2, 96, oids);
  EXPECT_EQ(0, Enumerate("VORN_NetworkPort"));
  ASSERT_EQ(257u, DeliveredCount());
  EXPECT_EQ(kAdapterWithoutTexts, Delivered(255));
  EXPECT_EQ(kAdapter, Delivered(256));
}

TEST_F(VornNetworkPortTest, EndsAfter65536AdaptersInsteadOfStartingOver) {
  definition.RecordNothing();
  store.ListLong(2, 96, std::vector<uint32_t>(65'537, 100));
  EXPECT_EQ(0, Enumerate("VORN_NetworkPort"));
  EXPECT_EQ(65'536u, DeliveredCount());
}

TEST_F(VornNetworkPortTest, IgnoresTheSinksRefusal) {
  sink.SetIndicateResult(Hr(0x80041032));
  EXPECT_EQ(0, Enumerate("VORN_NetworkPort"));
  EXPECT_EQ(2u, DeliveredCount());
}

TEST_F(VornNetworkPortTest, ReturnsTheReferencesThatAreLeftAfterTheLastRelease) {
  sink.KeepInstances();
  EXPECT_EQ(1, Enumerate("VORN_NetworkPort"));
}

TEST_F(VornNetworkPortTest, StopsAtASpawnWithoutInstanceAndReturnsTheReleaseBefore) {
  for (const HRESULT spawn : {Hr(0x80041006), S_OK}) {
    definition.SpawnNothing(definition.Spawns() + 1, spawn);
    EXPECT_EQ(0, Enumerate("VORN_NetworkPort"));
  }
  EXPECT_EQ(2u, DeliveredCount());
  sink.KeepInstances();
  definition.SpawnNothing(definition.Spawns() + 1, Hr(0x80041006));
  EXPECT_EQ(1, Enumerate("VORN_NetworkPort"));
  EXPECT_EQ(3u, DeliveredCount());
  EXPECT_EQ(6u, definition.Spawns());
}

TEST_F(VornNetworkPortTest, AFirstSpawnWithoutInstanceIsSuccess) {
  definition.SpawnNothing(0, Hr(0x80041006));
  definition.SpawnNothing(1, S_OK);
  EXPECT_EQ(0, Enumerate("VORN_NetworkPort"));
  EXPECT_EQ(0, Enumerate("VORN_NetworkPort"));
  EXPECT_EQ(0u, DeliveredCount());
  EXPECT_EQ(2u, definition.Spawns());
}

}  // namespace
}  // namespace tqcim::testing
