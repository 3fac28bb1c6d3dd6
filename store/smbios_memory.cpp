#include "platform/layouts/processors_memory.h"
#include "store/smbios_objects.h"

namespace tqcim::store::smbios {
namespace {

namespace memory_device = layout::memory_device;

/// DSP0134 7.18, offsets 0Ch and 1Ch: megabytes, kilobytes with bit 15 set, FFFFh for unknown,
/// and 7FFFh for a size that only the extended field (megabytes, bit 31 reserved) can tell.
void SetSize(ObjectDraft& draft, const Structure& structure) {
  const uint16_t size = structure.Word(0x0C).value_or(0xFFFF);
  if (size == 0xFFFF) return;
  if (size == 0x7FFF) {
    if (const auto extended = structure.Dword(0x1C)) {
      draft.Set(memory_device::kExtendedSizeMb, *extended & 0x7FFFFFFF);
    }
  } else {
    draft.Set(memory_device::kSizeKb, (size & 0x8000) != 0 ? size & 0x7FFFU : size * 1024U);
  }
}

/// DSP0134 7.18, offsets 15h and 54h: MT/s, 0 for unknown, FFFFh for a speed that only the extended
/// field tells.
void SetSpeed(ObjectDraft& draft, const Structure& structure) {
  uint32_t speed = structure.Word(0x15).value_or(0);
  if (speed == 0xFFFF) speed = structure.Dword(0x54).value_or(0) & 0x7FFFFFFF;
  if (speed == 0) return;
  draft.Set(memory_device::kSpeed, speed);
  draft.Set(memory_device::kSpeedText, std::to_string(speed) + " MT/s");
}

}  // namespace

void AddMemoryDevice(const Structure& structure, uint32_t position, SnapshotBuilder& builder) {
  if (structure.Word(0x0C).value_or(0) == 0) return;
  ObjectDraft& draft = builder.Add(OidOf(memory_device::kType, position), memory_device::kLayout,
                                   Status::kOk, {kMainChassisOid}, structure.Place());
  const uint16_t unknownWidth = 0xFFFF;
  SetKnown(draft, memory_device::kTotalWidth, Unless(structure.Word(0x08), unknownWidth));
  SetKnown(draft, memory_device::kDataWidth, Unless(structure.Word(0x0A), unknownWidth));
  SetSize(draft, structure);
  SetKnown(draft, memory_device::kFormFactor, structure.Byte(0x0E));
  SetKnown(draft, memory_device::kName, structure.String(0x10));
  SetKnown(draft, memory_device::kBankLabel, structure.String(0x11));
  SetKnown(draft, memory_device::kMemoryType, structure.Byte(0x12));
  SetSpeed(draft, structure);
  SetKnown(draft, memory_device::kManufacturer, structure.String(0x17));
  SetKnown(draft, memory_device::kSerialNumber, structure.String(0x18));
  if (const auto attributes = structure.Byte(0x1B)) {
    draft.Set(memory_device::kRank, *attributes & 0x0F);
  }
}

}  // namespace tqcim::store::smbios
