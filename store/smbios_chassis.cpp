#include <algorithm>
#include <initializer_list>

#include "platform/layouts/chassis.h"
#include "store/smbios_objects.h"

namespace tqcim::store::smbios {
namespace {

namespace chassis_description = layout::chassis_description;
namespace chassis_identity = layout::chassis_identity;

/// DSP0134 7.4.2: 3 safe, 4 warning, 5 critical, 6 non-recoverable. The others (other, unknown)
/// tell nothing.
std::optional<Status> StatusOfState(std::optional<uint8_t> state) {
  switch (state.value_or(0)) {
    case 3:
      return Status::kOk;
    case 4:
      return Status::kNonCritical;
    case 5:
      return Status::kCritical;
    case 6:
      return Status::kNonRecoverable;
    default:
      return std::nullopt;
  }
}

/// The worst of the states of the last boot, the power supplies and the temperature that an
/// enclosure tells; unknown where it tells none.
Status EnclosureStatus(const Structure* enclosure) {
  std::optional<Status> worst;
  for (const uint8_t offset : std::initializer_list<uint8_t>{0x09, 0x0A, 0x0B}) {
    if (enclosure != nullptr) worst = std::max(worst, StatusOfState(enclosure->Byte(offset)));
  }
  return worst.value_or(Status::kUnknown);
}

/// Maker and product, as far as the table names them.
std::optional<std::string> SystemName(const Structure& system) {
  const std::optional<std::string> maker = system.String(0x04);
  const std::optional<std::string> product = system.String(0x05);
  if (!maker || !product) return product ? product : maker;
  return *maker + " " + *product;
}

}  // namespace

void AddChassis(const Structure* enclosure, const Structure* system, SnapshotBuilder& builder,
                const std::string& place) {
  const Status status = EnclosureStatus(enclosure);
  builder.Add(layout::system::kRootOid, layout::system::kLayout, status, {}, place);
  builder.Add(kMainChassisOid, layout::chassis::kLayout, status, {layout::system::kRootOid}, place);
  ObjectDraft& description =
      builder.Add(OidOf(chassis_description::kType, 1), chassis_description::kLayout, status,
                  {kMainChassisOid}, place);
  ObjectDraft& identity = builder.Add(OidOf(chassis_identity::kType, 1), chassis_identity::kLayout,
                                      status, {kMainChassisOid}, place);
  if (system != nullptr) {
    SetKnown(description, chassis_description::kName, SystemName(*system));
    SetKnown(description, chassis_description::kModel, system->String(0x05));
  }
  if (enclosure == nullptr) return;
  if (const auto type = enclosure->Byte(0x05)) {
    // DSP0134 7.4, offset 05h: bit 7 says that a lock is present, the others are the type (7.4.1).
    description.Set(chassis_description::kChassisType, *type & 0x7F);
    description.Set(chassis_description::kLockPresent, *type >> 7);
  }
  SetKnown(description, chassis_description::kRevisionName, enclosure->String(0x06));
  SetKnown(identity, chassis_identity::kSerialNumber, enclosure->String(0x07));
  SetKnown(identity, chassis_identity::kAssetTag, enclosure->String(0x08));
}

}  // namespace tqcim::store::smbios
