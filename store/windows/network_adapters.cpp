#include "store/network_adapters.h"

// winsock2.h stands before windows.h, or that brings the old sockets.
#include <winsock2.h>
#include <ws2tcpip.h>
// These need the types of the two above.
#include <iphlpapi.h>
#include <netioapi.h>

#include <algorithm>
#include <cstddef>

#include "store/windows/driver_facts.h"
#include "store/windows/wide_text.h"

namespace tqcim::store {
namespace {

bool IsFamily(const SOCKET_ADDRESS& address, int family) {
  return address.lpSockaddr != nullptr && address.lpSockaddr->sa_family == family;
}

std::string TextOf(int family, const void* bytes) {
  char text[INET6_ADDRSTRLEN];
  return inet_ntop(family, bytes, text, sizeof text) == nullptr ? "" : text;
}

const in6_addr& Ipv6Of(const SOCKET_ADDRESS& address) {
  return reinterpret_cast<const sockaddr_in6*>(address.lpSockaddr)->sin6_addr;
}

std::string TextOf(const SOCKET_ADDRESS& address) {
  if (IsFamily(address, AF_INET6)) return TextOf(AF_INET6, &Ipv6Of(address));
  if (!IsFamily(address, AF_INET)) return {};
  return TextOf(AF_INET, &reinterpret_cast<const sockaddr_in*>(address.lpSockaddr)->sin_addr);
}

std::string MaskOf(int family, unsigned prefixLength) {
  uint8_t mask[sizeof(in6_addr)] = {};
  for (unsigned bit = 0; bit < std::min(prefixLength, 128U); ++bit) {
    mask[bit / 8] = static_cast<uint8_t>(mask[bit / 8] | 0x80 >> bit % 8);
  }
  return TextOf(family, mask);
}

bool IsAddressOf(const IP_ADAPTER_UNICAST_ADDRESS& entry, int family) {
  return IsFamily(entry.Address, family) &&
         (family == AF_INET || !IN6_IS_ADDR_LINKLOCAL(&Ipv6Of(entry.Address)));
}

/// What an interface has of one family: the first address, and the first gateway.
IpConfiguration ConfigurationOf(const IP_ADAPTER_ADDRESSES& source, int family,
                                const SOCKET_ADDRESS& dhcpServer) {
  IpConfiguration configuration;
  for (const auto* entry = source.FirstUnicastAddress; entry != nullptr; entry = entry->Next) {
    if (!IsAddressOf(*entry, family)) continue;
    configuration.address = TextOf(entry->Address);
    configuration.mask = MaskOf(family, entry->OnLinkPrefixLength);
    break;
  }
  for (const auto* entry = source.FirstGatewayAddress; entry != nullptr; entry = entry->Next) {
    if (!IsFamily(entry->Address, family)) continue;
    configuration.gateway = TextOf(entry->Address);
    break;
  }
  configuration.dhcpServer = TextOf(dhcpServer);
  return configuration;
}

std::vector<uint8_t> Mac(const uint8_t* bytes, ULONG length) {
  return {bytes, bytes + std::min<ULONG>(length, IF_MAX_PHYS_ADDRESS_LENGTH)};
}

/// The adapter of an interface that is hardware.
NetworkAdapter AdapterOf(const IP_ADAPTER_ADDRESSES& source, const MIB_IF_ROW2& row, HKEY system) {
  NetworkAdapter adapter;
  const std::string guid = source.AdapterName;
  adapter.name = guid;
  adapter.link = static_cast<LinkState>(row.OperStatus);
  adapter.description = Utf8(source.Description);
  adapter.currentMac = Mac(row.PhysicalAddress, row.PhysicalAddressLength);
  adapter.permanentMac = Mac(row.PermanentPhysicalAddress, row.PhysicalAddressLength);
  adapter.ipv4 = ConfigurationOf(source, AF_INET, source.Dhcpv4Server);
  adapter.ipv6 = ConfigurationOf(source, AF_INET6, source.Dhcpv6Server);
  const DriverFacts facts = ReadDriverFacts(system, std::wstring(guid.begin(), guid.end()));
  adapter.pci = facts.pci;
  adapter.vendor = facts.vendor;
  adapter.productName = facts.productName;
  adapter.driver = facts.service;
  adapter.driverVersion = facts.driverVersion;
  return adapter;
}

/// All interfaces as one block, whose first entry stands at its start; empty where the system shows
/// none.
std::vector<std::max_align_t> ReadInterfaces() {
  constexpr ULONG kFlags = GAA_FLAG_INCLUDE_GATEWAYS | GAA_FLAG_SKIP_ANYCAST |
                           GAA_FLAG_SKIP_MULTICAST | GAA_FLAG_SKIP_DNS_SERVER;
  // What is needed may grow between two calls.
  constexpr int kAttempts = 4;
  ULONG size = 16384;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    std::vector<std::max_align_t> block(size / sizeof(std::max_align_t) + 1);
    const ULONG result = GetAdaptersAddresses(
        AF_UNSPEC, kFlags, nullptr, reinterpret_cast<IP_ADAPTER_ADDRESSES*>(block.data()), &size);
    if (result == ERROR_SUCCESS) return block;
    if (result != ERROR_BUFFER_OVERFLOW) break;
  }
  return {};
}

}  // namespace

std::vector<NetworkAdapter> ReadNetworkAdapters() {
  const std::vector<std::max_align_t> block = ReadInterfaces();
  if (block.empty()) return {};
  HKEY system = nullptr;
  RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"SYSTEM\\CurrentControlSet", 0, KEY_READ, &system);
  std::vector<NetworkAdapter> adapters;
  const auto* source = reinterpret_cast<const IP_ADAPTER_ADDRESSES*>(block.data());
  for (; source != nullptr; source = source->Next) {
    MIB_IF_ROW2 row{};
    row.InterfaceLuid = source->Luid;
    if (GetIfEntry2(&row) == NO_ERROR && row.InterfaceAndOperStatusFlags.HardwareInterface) {
      adapters.push_back(AdapterOf(*source, row, system));
    }
  }
  RegCloseKey(system);
  return adapters;
}

}  // namespace tqcim::store
