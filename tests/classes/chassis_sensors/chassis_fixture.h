/// A main chassis with a description, for the tests of VORN_Chassis.
#pragma once

#include "tests/support/handler_test.h"

namespace tqcim::testing {

class ChassisFixture : public HandlerTest {
 protected:
  ChassisFixture() {
    store.Add(2, 17, 2);
    store.List(1, 17, {2});
    AddDescription(2, 32, u"Main System Chassis");
  }

  FakeBlock& AddDescription(uint32_t chassisOid, uint32_t oid, std::u16string_view name) {
    store.List(chassisOid, 32, {oid});
    return store.Add(oid, 32)
        .U32(16, 23)
        .U32(20, 0x80000003)
        .U16(24, 1)
        .U8(26, 0xFF)
        .U8(27, 0x81)
        .U8(28, 200)
        .U8(29, 0xAA)
        .U16(30, 0x0123)
        .Ucs2(32, name)
        .Ucs2(40, u"Example R700")
        .Ucs2(48, u"A00");
  }

  void AddIdentity() {
    store.List(2, 33, {33});
    store.Add(33, 33)
        .U8(17, 1)
        .Ucs2(32, u"SN-0001")
        .Ucs2(36, u"Asset 7")
        .Ucs2(44, u"12345678901")
        .Ucs2(48, u"NODE-1");
  }

  /// Children of chassis 2 with these statuses, from the given OID on.
  void AddChildren(uint16_t type, uint32_t firstOid, std::vector<uint8_t> statuses) {
    std::vector<uint32_t> oids;
    for (const uint8_t status : statuses) {
      oids.push_back(firstOid + static_cast<uint32_t>(oids.size()));
      store.Add(oids.back(), type, status);
    }
    store.List(2, type, oids);
  }

  /// A property of the first chassis as it stands now.
  std::string Now(const char* property) {
    Enumerate("VORN_Chassis");
    return Value(DeliveredCount() - 1, property);
  }

  HRESULT GetByTag(const OLECHAR* tag) {
    return Get("VORN_Chassis", StringKey(OLESTR("Tag"), tag));
  }
};

}  // namespace tqcim::testing
