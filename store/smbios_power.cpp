#include "platform/layouts/power.h"
#include "store/smbios_objects.h"

namespace tqcim::store::smbios {
namespace {

namespace power_supply = layout::power_supply;

/// DSP0134 7.40, offset 0Ch.
constexpr uint16_t kUnknownCapacity = 0x8000;

/// DSP0134 7.40.1: the characteristics.
constexpr uint16_t kPresent = 1 << 1;
constexpr uint16_t kUnplugged = 1 << 2;
constexpr int kStatusShift = 7;
constexpr int kTypeShift = 10;

/// Bits 9:7 as an object status.
constexpr Status kStatuses[8] = {
    Status::kUnknown,      // not in use
    Status::kOther,        // other
    Status::kUnknown,      // unknown
    Status::kOk,           // OK
    Status::kNonCritical,  // non-critical
    Status::kCritical,     // critical: the supply has failed and was taken off-line
    Status::kUnknown,      // not in use
    Status::kUnknown,      // not in use
};

/// Bits 13:10 in the store's coding, which has a kind for two of the standard's.
constexpr uint8_t kNoKind = power_supply::kKind.none;
constexpr uint8_t kKinds[16] = {
    kNoKind,                       // not in use
    kNoKind,                       // other
    kNoKind,                       // unknown
    kNoKind,                       // linear
    power_supply::kSwitchingKind,  // switching
    kNoKind,                       // battery
    kNoKind,                       // UPS
    kNoKind,                       // converter
    power_supply::kRegulatorKind,  // regulator; the codes behind it are not in use
};
static_assert(kNoKind == 0);

/// The one state that the store has room for: the worst of those that are told.
uint16_t StateOf(uint16_t characteristics, Status status) {
  constexpr uint16_t kPresenceDetected = 1;
  constexpr uint16_t kFailureDetected = 2;
  constexpr uint16_t kAcLost = 8;
  if (status == Status::kCritical) return kFailureDetected;
  return (characteristics & kUnplugged) != 0 ? kAcLost : kPresenceDetected;
}

}  // namespace

/// An empty bay is no supply: the store has no state for one that isn't there. The standard tells
/// what a supply can give, not what it takes.
void AddPowerSupply(const Structure& structure, uint32_t position, SnapshotBuilder& builder) {
  const uint16_t characteristics = structure.Word(0x0E).value_or(0);
  if ((characteristics & kPresent) == 0) return;
  const Status status = kStatuses[characteristics >> kStatusShift & 0x7];
  ObjectDraft& draft = builder.Add(OidOf(power_supply::kType, position), power_supply::kLayout,
                                   status, {kMainChassisOid}, structure.Place());
  const std::optional<std::string> name = structure.String(0x06);
  SetKnown(draft, power_supply::kName, name ? name : structure.String(0x05));
  SetKnown(draft, power_supply::kTotalOutputPower, Unless(structure.Word(0x0C), kUnknownCapacity));
  draft.Set(power_supply::kState, StateOf(characteristics, status));
  draft.Set(power_supply::kKind, kKinds[characteristics >> kTypeShift & 0xF]);
}

}  // namespace tqcim::store::smbios
