#include "tests/classes/faults/three_chassis.h"

namespace tqcim::testing {
namespace {

void AddSoftware(FakeStore& store) {
  AddChild(store, 2, 212, 0)
      .U64(48, 0x7C099880)
      .Ucs2(32, u"Maker")
      .Ucs2(36, u"1.0")
      .Utf8(40, "03/15/2012");
  for (const uint32_t position : {0, 1}) {
    AddChild(store, 2, 19, position).Ucs2(32, u"1.0").Ucs2(36, u"Controller");
  }
  FakeBlock& agent = AddChild(store, 2, 257, 0).U32(16, 4'000'000'000);
  for (const uint32_t field : {32, 36, 40, 44, 52, 56, 60}) agent.Ucs2(field, u"agent");
  AddChild(store, 2, 45057, 0).U32(16, 1);
}

void AddPorts(FakeStore& store) {
  AddChild(store, 2, 192, 0).Ucs2(44, u"LPT1");
  for (const uint32_t position : {0, 1}) {
    AddChild(store, 2, 193, position).Ucs2(40, u"COM1");
    AddChild(store, 2, 208, position);
    AddChild(store, 2, 228, position).Utf8(80, "slot");
    FakeBlock& adapter = AddChild(store, 2, 96, position);
    for (const uint32_t field : {172, 176, 192, 200, 208, 212, 216, 220, 224, 228}) {
      adapter.Utf8(field, "text of an adapter");
    }
  }
}

/// Units that carry their identity in a child, one without that child, and such as carry it
/// themselves.
void AddUnits(FakeStore& store) {
  AddChild(store, 2, 384, 0).Utf8(32, "unit");
  AddOnlyChild(store, OidOf(2, 384, 0), 389)
      .U64(28, 1342341000)
      .Utf8(36, "maker")
      .Utf8(44, "serial")
      .Utf8(48, "part")
      .Utf8(52, "revision");
  AddChild(store, 2, 384, 1).Utf8(32, "anonymous unit");
  for (const uint16_t type : std::initializer_list<uint16_t>{385, 386}) {
    AddChild(store, 2, type, 0)
        .U64(24, 1342341000)
        .Utf8(32, "unit")
        .Utf8(36, "maker")
        .Utf8(48, "part");
  }
}

void AddManagement(FakeStore& store) {
  AddChild(store, 2, 50, 0).U8(16, 1).U8(17, 1).U32(20, 1024);
  AddChild(store, 2, 52, 0).Ucs2(40, u"card");
  AddChild(store, 2, 52, 1).U32(24, 0xFFFFFFFF).Ucs2(40, u"card");
  FakeBlock& port = AddChild(store, 2, 320, 0);
  for (const uint32_t field : {52, 60, 68, 72}) port.Ucs2(field, u"port");
  AddChild(store, 2, 322, 0).Ucs2(44, u"address");
  AddChild(store, 2, 30, 0).U32(20, 2).U32(28, 480);
}

void AddPower(FakeStore& store) {
  for (const uint32_t position : {0, 1}) {
    FakeBlock& record = AddChild(store, 2, 40, position).Utf8(96, "record");
    for (const uint32_t field : {20, 32, 40, 52, 60}) record.I64(field, 1426325213);
  }
  AddChild(store, 2, 48, 0);
  for (const uint16_t type : std::initializer_list<uint16_t>{80, 81, 82}) {
    AddOnlyChild(store, OidOf(2, 48, 0), type);
  }
}

}  // namespace

void FillDevices(FakeStore& store) {
  AddSoftware(store);
  AddPorts(store);
  for (const uint32_t position : {0, 1}) {
    FakeBlock& board = AddChild(store, 2, 259, position);
    for (const uint32_t field : {28, 32, 36, 40, 44, 48, 52, 56, 60}) board.Ucs2(field, u"board");
  }
  AddUnits(store);
  AddManagement(store);
  AddPower(store);
}

}  // namespace tqcim::testing
