/// A store that lets every class read all that it can.
#pragma once

#include "tests/support/fake_store.h"

namespace tqcim::testing {

/// Three chassis below the root: 2, 3 and 4. The second one's lists are empty and it has no
/// description; the third has more than the first.
void FillThreeChassis(FakeStore& store);

/// The boards, units, ports, records and management devices below OID 2.
void FillDevices(FakeStore& store);

/// The OID of a child of a chassis in that store: the third temperature probe (type 22) of chassis
/// 4 is 4000222.
constexpr uint32_t OidOf(uint32_t chassisOid, uint16_t type, uint32_t position) {
  return chassisOid * 1'000'000 + type * 10u + position;
}

/// Adds the child at `position` of a chassis; those before it are there.
FakeBlock& AddChild(FakeStore& store, uint32_t chassisOid, uint16_t type, uint32_t position);
/// Adds the one child of a type of an object that is no chassis. Its OID is its type.
FakeBlock& AddOnlyChild(FakeStore& store, uint32_t parentOid, uint16_t type);

}  // namespace tqcim::testing
