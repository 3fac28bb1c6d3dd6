#include "tests/classes/faults/three_chassis.h"

#include <string_view>

namespace tqcim::testing {
namespace {

void AddDescription(FakeStore& store, uint32_t chassis, std::u16string_view name) {
  AddChild(store, chassis, 32, 0)
      .U32(16, 17)
      .U16(24, 1)
      .U8(28, 254)
      .U16(30, 0x0679)
      .Ucs2(32, name)
      .Ucs2(40, u"Model")
      .Ucs2(48, u"A00");
  AddChild(store, chassis, 33, 0)
      .U8(17, 1)
      .Ucs2(32, u"SN")
      .Ucs2(36, u"Tag")
      .Ucs2(44, u"Code")
      .Ucs2(48, u"Node");
  AddChild(store, chassis, 28, 0).U8(17, 1);
  AddChild(store, chassis, 232, 0).U8(18, 1);
}

/// Probes with these subtypes: 17 is a discrete one, 23 to 26 are those of power consumption.
void AddProbes(FakeStore& store, uint32_t chassis, uint16_t type,
               std::initializer_list<uint32_t> subtypes) {
  uint32_t position = 0;
  for (const uint32_t subtype : subtypes) {
    AddChild(store, chassis, type, position)
        .U32(16, subtype)
        .U16(70, 3)
        .Ucs2(72, position == 0 ? u"PS1" : u"probe with a name of some length");
    ++position;
  }
}

void AddSupplies(FakeStore& store, uint32_t chassis,
                 std::initializer_list<std::u16string_view> names) {
  uint32_t position = 0;
  for (const std::u16string_view name : names) {
    // The second one is a regulator, and the third has a configuration error.
    AddChild(store, chassis, 21, position)
        .U16(38, position == 2 ? 64 : 1)
        .U8(40, position == 1 ? 11 : 9)
        .Ucs2(44, name);
    ++position;
  }
}

void AddMemory(FakeStore& store, uint32_t chassis, uint32_t count) {
  for (uint32_t position = 0; position < count; ++position) {
    FakeBlock& memory = AddChild(store, chassis, 225, position);
    for (const uint32_t field : {68, 72, 80, 84, 96}) memory.Ucs2(field, u"memory");
  }
}

/// Two sockets, the second one empty. The processor hangs below its socket and below the chassis.
void AddProcessors(FakeStore& store, uint32_t chassis) {
  AddChild(store, chassis, 196, 0).Ucs2(28, u"CPU1");
  AddChild(store, chassis, 196, 1).Ucs2(28, u"CPU2");
  AddOnlyChild(store, OidOf(chassis, 196, 0), 210)
      .Ucs2(72, u"Brand")
      .Ucs2(76, u"Model")
      .Ucs2(80, u"4");
  store.List(chassis, 210, {210});
}

/// An ESM log with three records and a POST log with two; some records have a time.
void AddLogs(FakeStore& store, uint32_t chassis) {
  for (const uint32_t kind : {1, 2}) {
    AddChild(store, chassis, 31, kind - 1).U32(16, kind);
    const uint32_t log = OidOf(chassis, 31, kind - 1);
    store.AddRecord(log).I64(0, 1426325213).U8(12, 4).Ucs2(16, u"Fan 1 RPM is below 600");
    store.AddRecord(log).U8(12, 2).Ucs2(16, u"record without a time");
    if (kind == 1) store.AddRecord(log).I64(0, 1426325299).Ucs2(16, u"last");
  }
}

/// The first group has the supplies of the chassis as members, the second one its fans.
void AddRedundancyGroups(FakeStore& store, uint32_t chassis) {
  AddChild(store, chassis, 2, 0).U8(16, 4).U16(18, 1).Ucs2(20, u"Main");
  AddChild(store, chassis, 2, 1).U8(16, 1).U16(18, 2).Ucs2(20, u"Fans");
  store.List(OidOf(chassis, 2, 0), 21, {OidOf(chassis, 21, 0), OidOf(chassis, 21, 1)});
  store.List(OidOf(chassis, 2, 1), 23, {OidOf(chassis, 23, 0)});
}

}  // namespace

FakeBlock& AddChild(FakeStore& store, uint32_t chassisOid, uint16_t type, uint32_t position) {
  std::vector<uint32_t> oids;
  for (uint32_t i = 0; i <= position; ++i) oids.push_back(OidOf(chassisOid, type, i));
  store.List(chassisOid, type, oids);
  return store.Add(oids.back(), type);
}

FakeBlock& AddOnlyChild(FakeStore& store, uint32_t parentOid, uint16_t type) {
  store.List(parentOid, type, {type});
  return store.Add(type, type);
}

void FillThreeChassis(FakeStore& store) {
  store.Add(1, 1);
  store.List(1, 17, {2, 3, 4});
  for (const uint32_t chassis : {2, 3, 4}) store.Add(chassis, 17);

  AddDescription(store, 2, u"Main");
  for (const uint16_t type : std::initializer_list<uint16_t>{22, 23, 24}) {
    AddProbes(store, 2, type, {17, 1});
  }
  AddProbes(store, 2, 25, {23, 24});
  AddProbes(store, 2, 26, {1});
  AddProbes(store, 2, 27, {1});
  AddSupplies(store, 2, {u"PS1", u"VRM", u"PS3"});
  AddMemory(store, 2, 2);
  AddProcessors(store, 2);
  AddLogs(store, 2);
  AddRedundancyGroups(store, 2);

  for (const uint16_t type : std::initializer_list<uint16_t>{21, 22, 23, 24, 25, 26, 27, 31}) {
    store.List(3, type, {});
  }

  AddDescription(store, 4, u"Shelf");
  for (const uint16_t type : std::initializer_list<uint16_t>{22, 23, 24}) {
    AddProbes(store, 4, type, {3, 17, 1, 1});
  }
  AddProbes(store, 4, 25, {25, 26, 17, 1});
  AddProbes(store, 4, 26, {1, 1});
  AddSupplies(store, 4, {u"PS4", u"VRM", u"PS6", u"PS7"});
  AddMemory(store, 4, 1);
  AddChild(store, 4, 31, 0).U32(16, 1).U32(20, 1);

  FillDevices(store);
}

}  // namespace tqcim::testing
