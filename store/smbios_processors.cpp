#include <algorithm>
#include <iterator>

#include "platform/layouts/processors_memory.h"
#include "store/smbios_objects.h"

namespace tqcim::store::smbios {
namespace {

namespace processor = layout::processor;
namespace processor_device = layout::processor_device;

/// The status byte of a processor (DSP0134 7.5, offset 18h), bits 2:0, in the store's
/// coding and as an object status. A processor that the setup switched off, or whose state the
/// firmware doesn't know, is no fault.
struct ProcessorState {
  uint32_t cpuStatus;
  Status status;
};
constexpr ProcessorState kProcessorStates[8] = {
    {2, Status::kUnknown},   // unknown
    {3, Status::kOk},        // enabled
    {4, Status::kOther},     // disabled by the user through the setup
    {5, Status::kCritical},  // disabled by the firmware: it failed its self-test
    {6, Status::kOk},        // idle, waiting to be enabled
    {2, Status::kUnknown},   // reserved
    {2, Status::kUnknown},   // reserved
    {1, Status::kOther},     // other
};

/// The byte at `offset`, or the word at `wideOffset` where the byte sends there.
std::optional<uint16_t> ByteOrWord(const Structure& structure, uint8_t offset, uint8_t sendsThere,
                                   uint8_t wideOffset) {
  const std::optional<uint8_t> byte = structure.Byte(offset);
  return byte == sendsThere ? structure.Word(wideOffset) : std::optional<uint16_t>(byte);
}

/// Whether a family's processor ID begins with what CPUID function 1 returns in EAX (DSP0134 7.5.2
/// and 7.5.3: the x86 families from the Pentium on).
bool HasX86Signature(uint16_t family) {
  constexpr struct {
    uint16_t first;
    uint16_t last;
  } kFamilies[] = {{0x0B, 0x15}, {0x18, 0x1D}, {0x1F, 0x1F}, {0x28, 0x2F},
                   {0x38, 0x3F}, {0x46, 0x4F}, {0x66, 0x68}, {0x6A, 0x6B},
                   {0x83, 0x8F}, {0xA1, 0xB3}, {0xB5, 0xB7}, {0xB9, 0xC7},
                   {0xCD, 0xCF}, {0xD2, 0xDB}, {0xDD, 0xE0}, {0xE4, 0xEF}};
  return std::any_of(std::begin(kFamilies), std::end(kFamilies), [&](const auto& range) {
    return family >= range.first && family <= range.last;
  });
}

/// Family, model and stepping of a CPUID signature: the extended family counts for family 15, the
/// extended model for families 6 and 15.
void SetSignature(ObjectDraft& draft, uint32_t signature) {
  const uint32_t baseFamily = signature >> 8 & 0xF;
  const uint32_t family = baseFamily + (baseFamily == 15 ? signature >> 20 & 0xFF : 0);
  const bool extended = baseFamily == 6 || baseFamily == 15;
  const uint32_t model = (signature >> 4 & 0xF) + (extended ? signature >> 12 & 0xF0 : 0);
  draft.Set(processor::kModel,
            "Family " + std::to_string(family) + " Model " + std::to_string(model));
  draft.Set(processor::kStepping, std::to_string(signature & 0xF));
}

}  // namespace

void AddProcessor(const Structure& structure, uint32_t position, SnapshotBuilder& builder) {
  const uint32_t socketOid = OidOf(processor_device::kType, position);
  const uint8_t statusByte = structure.Byte(0x18).value_or(0);
  const bool populated = (statusByte & 0x40) != 0;
  const ProcessorState& state = kProcessorStates[statusByte & 0x07];
  ObjectDraft& socket =
      builder.Add(socketOid, processor_device::kLayout, populated ? state.status : Status::kUnknown,
                  {kMainChassisOid}, structure.Place());
  SetKnown(socket, processor_device::kName, structure.String(0x04));
  if (!populated) return;

  ObjectDraft& draft = builder.Add(OidOf(processor::kType, position), processor::kLayout,
                                   state.status, {socketOid, kMainChassisOid}, structure.Place());
  draft.Set(processor::kCpuStatus, state.cpuStatus);
  const std::optional<uint16_t> family = ByteOrWord(structure, 0x06, 0xFE, 0x28);
  SetKnown(draft, processor::kFamily, family);
  const std::optional<uint32_t> signature = Unless(structure.Dword(0x08), 0U);
  if (signature && HasX86Signature(family.value_or(0))) SetSignature(draft, *signature);
  SetKnown(draft, processor::kBrand, structure.String(0x10));
  SetKnown(draft, processor::kMaxSpeed, structure.Word(0x14));
  SetKnown(draft, processor::kCurrentSpeed, structure.Word(0x16));
  SetKnown(draft, processor::kUpgradeMethod, structure.Byte(0x19));
  SetKnown(draft, processor::kCoreCount, ByteOrWord(structure, 0x23, 0xFF, 0x2A));
  SetKnown(draft, processor::kEnabledCoreCount, ByteOrWord(structure, 0x24, 0xFF, 0x2C));
  SetKnown(draft, processor::kExtendedCharacteristics, structure.Word(0x26));
}

}  // namespace tqcim::store::smbios
