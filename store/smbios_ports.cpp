#include "platform/layouts/ports.h"
#include "store/smbios_objects.h"

namespace tqcim::store::smbios {
namespace {

namespace parallel_port = layout::parallel_port;
namespace pointing_device = layout::pointing_device;
namespace serial_port = layout::serial_port;
namespace slot = layout::slot;

/// DSP0134 7.9.3: the ranges of the port types, from the XT/AT-compatible port to ECP/EPP and to
/// the 16550A.
constexpr uint8_t kFirstParallelPort = 0x01;
constexpr uint8_t kLastParallelPort = 0x05;
constexpr uint8_t kFirstSerialPort = 0x06;
constexpr uint8_t kLastSerialPort = 0x09;

/// DSP0134 7.10.1.
constexpr uint8_t kPcCardSlot = 0x07;
/// DSP0134 7.10.7.
constexpr uint8_t kHotPlugBit = 1;

/// A port under the name that it has outside the enclosure, else inside. How a port or a slot
/// fares isn't told, so their status is unknown.
void AddNamedPort(const layout::ObjectLayout& layout, const layout::Ucs2Field& name,
                  const Structure& structure, uint32_t position, SnapshotBuilder& builder) {
  ObjectDraft& draft = builder.Add(OidOf(layout.type, position), layout, Status::kUnknown,
                                   {kMainChassisOid}, structure.Place());
  const std::optional<std::string> outside = structure.String(0x06);
  SetKnown(draft, name, outside ? outside : structure.String(0x04));
}

}  // namespace

/// The store has no objects for ports of other types.
void AddPort(const Structure& structure, uint32_t position, SnapshotBuilder& builder) {
  const uint8_t type = structure.Byte(0x08).value_or(0);
  if (kFirstParallelPort <= type && type <= kLastParallelPort) {
    AddNamedPort(parallel_port::kLayout, parallel_port::kName, structure, position, builder);
  } else if (kFirstSerialPort <= type && type <= kLastSerialPort) {
    AddNamedPort(serial_port::kLayout, serial_port::kName, structure, position, builder);
  }
}

/// A slot is one, whether there is a card in it or not.
void AddSlot(const Structure& structure, uint32_t position, SnapshotBuilder& builder) {
  ObjectDraft& draft = builder.Add(OidOf(slot::kType, position), slot::kLayout, Status::kUnknown,
                                   {kMainChassisOid}, structure.Place());
  SetKnown(draft, slot::kName, structure.String(0x04));
  const std::optional<uint8_t> type = structure.Byte(0x05);
  SetKnown(draft, slot::kSlotType, type);
  // DSP0134 7.10.5: a PC Card slot has no number there, but an adapter's and a socket's.
  if (type != kPcCardSlot) SetKnown(draft, slot::kNumber, structure.Word(0x09));
  if (const auto characteristics = structure.Byte(0x0C)) {
    draft.Set(slot::kHotPlug, static_cast<int16_t>(*characteristics >> kHotPlugBit & 1));
  }
}

void AddPointingDevice(const Structure& structure, uint32_t position, SnapshotBuilder& builder) {
  builder.Add(OidOf(pointing_device::kType, position), pointing_device::kLayout, Status::kUnknown,
              {kMainChassisOid}, structure.Place());
}

}  // namespace tqcim::store::smbios
