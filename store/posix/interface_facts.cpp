// What the running kernel tells of its interfaces by calls.
#include <arpa/inet.h>
#include <ifaddrs.h>
#include <linux/ethtool.h>
#include <linux/sockios.h>
#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <memory>

#include "store/posix/network_adapters.h"

namespace tqcim::store {
namespace {

std::string TextOf(const sockaddr* address) {
  if (address == nullptr) return {};
  const void* bytes = nullptr;
  if (address->sa_family == AF_INET) {
    bytes = &reinterpret_cast<const sockaddr_in*>(address)->sin_addr;
  } else {
    bytes = &reinterpret_cast<const sockaddr_in6*>(address)->sin6_addr;
  }
  char text[INET6_ADDRSTRLEN];
  return inet_ntop(address->sa_family, bytes, text, sizeof text) == nullptr ? "" : text;
}

bool IsLinkLocal(const sockaddr* address) {
  return IN6_IS_ADDR_LINKLOCAL(&reinterpret_cast<const sockaddr_in6*>(address)->sin6_addr);
}

/// The socket over which the kernel is asked about interfaces.
class ControlSocket {
 public:
  ControlSocket() : socket_(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {}
  ~ControlSocket() {
    if (socket_ >= 0) close(socket_);
  }
  ControlSocket(const ControlSocket&) = delete;
  ControlSocket& operator=(const ControlSocket&) = delete;

  /// ethtool's ETHTOOL_GPERMADDR; empty where the driver doesn't tell.
  std::vector<uint8_t> PermanentMac(const std::string& interface) const {
    constexpr uint32_t kRoom = 32;  // the kernel's MAX_ADDR_LEN
    union {
      ethtool_perm_addr header;
      uint8_t bytes[sizeof(ethtool_perm_addr) + kRoom];
    } reply{};
    reply.header.cmd = ETHTOOL_GPERMADDR;
    reply.header.size = kRoom;
    ifreq request{};
    if (interface.size() >= sizeof request.ifr_name) return {};
    interface.copy(request.ifr_name, interface.size());
    request.ifr_data = reinterpret_cast<char*>(&reply);
    if (ioctl(socket_, SIOCETHTOOL, &request) != 0 || reply.header.size > kRoom) return {};
    const uint8_t* address = reply.bytes + sizeof(ethtool_perm_addr);
    std::vector<uint8_t> mac(address, address + reply.header.size);
    const bool zero = std::all_of(mac.begin(), mac.end(), [](uint8_t byte) { return byte == 0; });
    return zero ? std::vector<uint8_t>() : mac;
  }

 private:
  int socket_;
};

/// The first address of a kind is the interface's own, further ones were added to it.
void TakeAddress(const ifaddrs& entry, IpConfiguration& configuration) {
  if (!configuration.address.empty()) return;
  configuration.address = TextOf(entry.ifa_addr);
  configuration.mask = TextOf(entry.ifa_netmask);
}

}  // namespace

InterfaceFactsByName ReadInterfaceFacts() {
  ifaddrs* first = nullptr;
  if (getifaddrs(&first) != 0) return {};
  const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> owner(first, freeifaddrs);
  const ControlSocket kernel;
  InterfaceFactsByName facts;
  for (const ifaddrs* entry = first; entry != nullptr; entry = entry->ifa_next) {
    if (entry->ifa_addr == nullptr) continue;
    InterfaceFacts& interface = facts[entry->ifa_name];
    if (entry->ifa_addr->sa_family == AF_PACKET) {
      interface.permanentMac = kernel.PermanentMac(entry->ifa_name);
    } else if (entry->ifa_addr->sa_family == AF_INET) {
      TakeAddress(*entry, interface.ipv4);
    } else if (entry->ifa_addr->sa_family == AF_INET6 && !IsLinkLocal(entry->ifa_addr)) {
      TakeAddress(*entry, interface.ipv6);
    }
  }
  return facts;
}

}  // namespace tqcim::store
