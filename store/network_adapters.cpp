#include "store/network_adapters.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <tuple>

#include "platform/layouts/network_adapter.h"
#include "platform/layouts/system.h"
#include "store/text.h"

namespace tqcim::store {
namespace {

namespace fields = layout::network_adapter;

/// InfiniBand has the longest addresses of all links.
constexpr size_t kLongestMac = 20;

/// "00:00:5E:00:53:10"; nothing for no address, or one of zeros only, as drivers show it that have
/// none.
std::string MacText(std::span<const uint8_t> address) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  const bool zero = std::all_of(address.begin(), address.end(), [](uint8_t b) { return b == 0; });
  if (zero || address.size() > kLongestMac) return {};
  std::string text;
  for (const uint8_t byte : address) {
    if (!text.empty()) text += ':';
    text += kDigits[byte >> 4];
    text += kDigits[byte & 0xF];
  }
  return text;
}

/// A system's texts may be anything: what is not text is left out, and the adapter stays.
void SetKnown(ObjectDraft& draft, const layout::Utf8Field& field, const std::string& text) {
  const bool isText = text.find('\0') == std::string::npos && IsUtf8(text);
  if (isText && !text.empty()) draft.Set(field, text);
}

Status StatusOf(LinkState link) {
  switch (link) {
    case LinkState::kNotTold:
    case LinkState::kUnknown:
    case LinkState::kNotPresent:
      return Status::kUnknown;
    default:
      return Status::kOk;
  }
}

void AddNetworkAdapter(const NetworkAdapter& adapter, uint32_t position, SnapshotBuilder& builder) {
  ObjectDraft& draft =
      builder.Add(uint32_t{fields::kType} << 16 | position, fields::kLayout, StatusOf(adapter.link),
                  {layout::system::kMainChassisOid}, "network adapter " + adapter.name);
  if (adapter.pci) {
    draft.Set(fields::kPciBus, adapter.pci->bus)
        .Set(fields::kPciDevice, adapter.pci->device)
        .Set(fields::kPciFunction, adapter.pci->function);
  }
  draft.Set(fields::kAdapterStatus, static_cast<uint32_t>(adapter.link));
  SetKnown(draft, fields::kOsDescription, adapter.description);
  SetKnown(draft, fields::kOsVendor, adapter.vendor);
  SetKnown(draft, fields::kOsProductName, adapter.productName);
  SetKnown(draft, fields::kDriverVersion, adapter.driverVersion);
  SetKnown(draft, fields::kServiceName, adapter.driver);
  SetKnown(draft, fields::kCurrentMacAddress, MacText(adapter.currentMac));
  SetKnown(draft, fields::kPermanentMacAddress, MacText(adapter.permanentMac));
  const IpConfiguration& ip = adapter.ipv4.address.empty() ? adapter.ipv6 : adapter.ipv4;
  SetKnown(draft, fields::kIpAddress, ip.address);
  SetKnown(draft, fields::kSubnetMask, ip.mask);
  SetKnown(draft, fields::kDhcpServer, ip.dhcpServer);
  SetKnown(draft, fields::kDefaultGateway, ip.gateway);
}

}  // namespace

void AddNetworkAdapters(std::vector<NetworkAdapter> adapters, SnapshotBuilder& builder) {
  const auto order = [](const NetworkAdapter& adapter) {
    return std::tuple(!adapter.pci, adapter.pci, std::string_view(adapter.name));
  };
  std::sort(adapters.begin(), adapters.end(),
            [&](const auto& a, const auto& b) { return order(a) < order(b); });
  uint32_t position = 0;
  for (const NetworkAdapter& adapter : adapters) AddNetworkAdapter(adapter, ++position, builder);
}

}  // namespace tqcim::store
