#include <iterator>

#include "platform/layouts/boards.h"
#include "store/smbios_objects.h"

namespace tqcim::store::smbios {
namespace {

namespace baseboard = layout::baseboard;

/// DSP0134 7.3.2, the board types in words, by code. An unknown type has none.
constexpr const char* kBoardTypes[] = {
    nullptr,                     // not in use
    nullptr,                     // unknown
    "Other",                     // 02h
    "Server Blade",              // 03h
    "Connectivity Switch",       // 04h
    "System Management Module",  // 05h
    "Processor Module",          // 06h
    "I/O Module",                // 07h
    "Memory Module",             // 08h
    "Daughter board",            // 09h
    "Motherboard",               // 0Ah, with processor, memory and I/O
    "Processor/Memory Module",   // 0Bh
    "Processor/IO Module",       // 0Ch
    "Interconnect board",        // 0Dh
};

/// DSP0134 7.3.1: the bits of the features, the same as the store's; the others are reserved.
constexpr uint8_t kFeatures = 0x1F;

}  // namespace

/// How a board fares isn't told, so its status is unknown.
void AddBaseboard(const Structure& structure, uint32_t position, SnapshotBuilder& builder) {
  ObjectDraft& draft = builder.Add(OidOf(baseboard::kType, position), baseboard::kLayout,
                                   Status::kUnknown, {kMainChassisOid}, structure.Place());
  SetKnown(draft, baseboard::kManufacturer, structure.String(0x04));
  SetKnown(draft, baseboard::kProductName, structure.String(0x05));
  SetKnown(draft, baseboard::kVersion, structure.String(0x06));
  SetKnown(draft, baseboard::kSerialNumber, structure.String(0x07));
  SetKnown(draft, baseboard::kAssetTag, structure.String(0x08));
  if (const auto features = structure.Byte(0x09)) {
    draft.Set(baseboard::kFlags, *features & kFeatures);
  }
  SetKnown(draft, baseboard::kLocation, structure.String(0x0A));
  if (const auto type = structure.Byte(0x0D)) {
    draft.Set(baseboard::kBoardType, *type);
    const char* text = *type < std::size(kBoardTypes) ? kBoardTypes[*type] : nullptr;
    if (text != nullptr) draft.Set(baseboard::kBoardTypeText, text);
  }
}

}  // namespace tqcim::store::smbios
