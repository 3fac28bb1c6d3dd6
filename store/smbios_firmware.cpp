#include "platform/layouts/firmware.h"
#include "store/smbios_objects.h"

namespace tqcim::store::smbios {

void AddBios(const Structure& structure, SnapshotBuilder& builder) {
  namespace bios = layout::bios;
  ObjectDraft& draft = builder.Add(OidOf(bios::kType, 1), bios::kLayout, Status::kOk,
                                   {kMainChassisOid}, structure.Place());
  SetKnown(draft, bios::kManufacturer, structure.String(0x04));
  SetKnown(draft, bios::kVersion, structure.String(0x05));
  SetKnown(draft, bios::kReleaseDate, structure.String(0x08));
  SetKnown(draft, bios::kCharacteristics, structure.Qword(0x0A));
  SetKnown(draft, bios::kExtension1, structure.Byte(0x12));
  SetKnown(draft, bios::kExtension2, structure.Byte(0x13));
}

}  // namespace tqcim::store::smbios
