// Every call that a class makes of the store, the class definition or the sink fails once, one at a
// time. Whatever the class makes of it, it gives everything back.
#include <string>
#include <string_view>

#include "core/class_registry.h"
#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

/// Boards, units, ports and management devices.
void FillDevices(FakeStore& store) {
  for (const uint16_t type :
       std::initializer_list<uint16_t>{50, 52, 96, 192, 193, 208, 228, 259, 320, 322, 384}) {
    store.List(2, type, {type + 1000u});
    store.Add(type + 1000u, type);
  }
  store.Object(1052).Ucs2(40, u"card");
  for (const uint32_t field : {172, 192, 212, 216}) store.Object(1096).Utf8(field, "adapter");
  store.Object(1192).Ucs2(44, u"LPT1");
  store.Object(1193).Ucs2(40, u"COM1");
  store.Object(1228).Utf8(80, "slot");
  store.Object(1259).Ucs2(32, u"board");
  for (const uint32_t field : {52, 60, 68, 72}) store.Object(1320).Ucs2(field, u"port");
  store.Object(1322).Ucs2(44, u"address");
  store.List(1384, 389, {389});
  store.Object(1384).Utf8(32, "unit");
  store.Add(389, 389).U64(28, 1342341000).Utf8(36, "maker").Utf8(52, "revision");
}

/// Objects of the root, a chassis and OID 2 that let each class read all that it can.
void FillServer(FakeStore& store) {
  store.Add(1, 1);
  store.List(1, 17, {2});
  store.Add(2, 17);
  store.List(2, 32, {32});
  store.Add(32, 32).Ucs2(32, u"0").Ucs2(40, u"Model").Ucs2(48, u"A00");
  store.List(2, 33, {33});
  store.Add(33, 33).Ucs2(32, u"SN").Ucs2(36, u"Tag").Ucs2(44, u"Code").Ucs2(48, u"Node");
  for (const uint16_t type : std::initializer_list<uint16_t>{21, 22, 28, 31, 232}) {
    store.List(2, type, {type + 1000u});
    store.Add(type + 1000u, type);
  }
  store.List(2, 2, {300});
  store.Add(300, 2);
  store.List(300, 21, {1021});
  store.List(2, 212, {40});
  store.Add(40, 212).Ucs2(32, u"Maker").Ucs2(36, u"1.0").Utf8(40, "03/15/2012");
  store.List(2, 19, {50});
  store.Add(50, 19).Ucs2(32, u"1.0").Ucs2(36, u"Controller");
  store.List(2, 257, {60});
  for (const uint32_t field : {32, 36, 40, 44, 52, 56, 60}) {
    (field == 32 ? store.Add(60, 257) : store.Object(60)).Ucs2(field, u"agent");
  }
  store.List(2, 45057, {70});
  store.Add(70, 45057);
  store.List(2, 196, {100});
  store.Add(100, 196).Ucs2(28, u"CPU1");
  store.List(100, 210, {110});
  store.Add(110, 210).Ucs2(72, u"Brand").Ucs2(76, u"Model").Ucs2(80, u"4");
  store.List(2, 225, {200});
  for (const uint32_t field : {68, 72, 80, 84, 96}) {
    (field == 68 ? store.Add(200, 225) : store.Object(200)).Ucs2(field, u"memory");
  }
  FillDevices(store);
}

/// The surroundings of one request, gone and balanced after it.
struct Surroundings {
  Surroundings() { FillServer(store); }

  FakeStore store;
  FakeClass definition;
  FakeSink sink;
};

struct Request {
  const char* className;
  bool enumerate;
};

void Make(const Request& request, Surroundings& surroundings) {
  BaseClass* const handler = Lookup(request.className);
  if (request.enumerate) {
    handler->EnumerateInstances(&surroundings.definition, &surroundings.sink);
    return;
  }
  FakeKeyList keys;
  keys.Add(StringKey(OLESTR("DeviceID"), OLESTR("0"))).Add(StringKey(OLESTR("Tag"), OLESTR("0")));
  handler->GetInstance(&surroundings.definition, &keys, &surroundings.sink);
}

/// Makes the request, and expects nothing kept but the settings object, which that class leaks when
/// it has read it.
void MakeBalanced(const Request& request, Surroundings& surroundings) {
  Make(request, surroundings);
  if (request.enumerate && std::string_view(request.className) == "VORN_BIOSSettings") {
    EXPECT_LE(surroundings.store.LiveBlocks(), 1u);
    surroundings.store.ExpectLeaked(surroundings.store.LiveBlocks());
  }
}

class FailingCallsTest : public BalancedTest, public ::testing::WithParamInterface<Request> {};

TEST_P(FailingCallsTest, AnyLibraryCallMayFail) {
  uint32_t position = 0;
  for (bool failed = true; failed; ++position) {
    Surroundings surroundings;
    surroundings.store.FailCall(position);
    MakeBalanced(GetParam(), surroundings);
    failed = surroundings.store.HasFailedCall();
  }
  EXPECT_LT(1u, position) << "no call was made";
}

TEST_P(FailingCallsTest, ASpawnMayFailOrGiveNothing) {
  for (const HRESULT result : {Hr(0x80041006), S_OK}) {
    Surroundings surroundings;
    surroundings.definition.SpawnNothing(0, result);
    MakeBalanced(GetParam(), surroundings);
    EXPECT_EQ(1u, surroundings.definition.Spawns());
    EXPECT_EQ(0u, surroundings.sink.Delivered().size());
  }
}

TEST_P(FailingCallsTest, TheSinkMayRefuseAndKeepAnInstance) {
  Surroundings surroundings;
  surroundings.sink.SetIndicateResult(Hr(0x80041032));
  surroundings.sink.KeepInstances();
  MakeBalanced(GetParam(), surroundings);
  EXPECT_EQ(1u, surroundings.sink.Delivered().size());
}

/// What is delivered when every Put gives this result.
std::vector<Puts> DeliveredWithPutResult(const Request& request, HRESULT result) {
  Surroundings surroundings;
  surroundings.definition.SetPutResult(result);
  MakeBalanced(request, surroundings);
  return surroundings.sink.Delivered();
}

TEST_P(FailingCallsTest, RefusedPutsStopNothing) {
  const std::vector<Puts> accepted = DeliveredWithPutResult(GetParam(), S_OK);
  EXPECT_EQ(1u, accepted.size());
  EXPECT_EQ(accepted, DeliveredWithPutResult(GetParam(), Hr(0x80041005)));
}

constexpr Request kRequests[] = {{"VORN_BIOSSettings", true},
                                 {"VORN_BIOSSettings", false},
                                 {"VORN_System", true},
                                 {"VORN_System", false},
                                 {"VORN_BIOSExtensions", true},
                                 {"VORN_BIOSExtensions", false},
                                 {"CIM_BIOSElement", true},
                                 {"CIM_BIOSElement", false},
                                 {"VORN_Chassis", true},
                                 {"VORN_Chassis", false},
                                 {"Vorn_SoftwareFeature", true},
                                 {"Vorn_SoftwareFeature", false},
                                 {"VORN_Firmware", true},
                                 {"CIM_PhysicalMemory", true},
                                 {"CIM_PhysicalMemory", false},
                                 {"CIM_Processor", true},
                                 {"CIM_Processor", false},
                                 {"VORN_Baseboard", true},
                                 {"VORN_Baseboard", false},
                                 {"CIM_FRU", true},
                                 {"CIM_Slot", true},
                                 {"CIM_SerialController", true},
                                 {"CIM_ParallelController", true},
                                 {"CIM_PointingDevice", true},
                                 {"VORN_NetworkPort", true},
                                 {"VORN_ManagedSystemServicesDevice", true},
                                 {"VORN_ManagedSystemServicesDevice", false},
                                 {"Vorn_RemoteAccessServicePort", true},
                                 {"Vorn_RemoteAccessServicePort", false},
                                 {"VORN_SDCardDevice", true},
                                 {"VORN_SDCardDevice", false}};

std::string NameOf(const ::testing::TestParamInfo<Request>& info) {
  return std::string(info.param.className) + (info.param.enumerate ? "_enumerated" : "_got");
}

INSTANTIATE_TEST_SUITE_P(EveryClass, FailingCallsTest, ::testing::ValuesIn(kRequests), NameOf);

}  // namespace
}  // namespace tqcim::testing
