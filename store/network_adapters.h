/// The network adapters of the running machine, which no firmware table tells of.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "store/snapshot_builder.h"

namespace tqcim::store {

struct PciLocation {
  uint8_t bus;
  uint8_t device;
  uint8_t function;
  auto operator<=>(const PciLocation&) const = default;
};

/// Addresses as texts; empty where the system tells none.
struct IpConfiguration {
  std::string address;
  std::string mask;
  std::string gateway;
  std::string dhcpServer;
  bool operator==(const IpConfiguration&) const = default;
};

/// The state of an interface in the numbers of RFC 2863, ifOperStatus, which Linux and Windows both
/// report.
enum class LinkState : uint8_t {
  kNotTold = 0,
  kUp = 1,
  kDown = 2,
  kTesting = 3,
  kUnknown = 4,
  kDormant = 5,
  kNotPresent = 6,
  kLowerLayerDown = 7,
};

/// What a system tells of one adapter. Texts are UTF-8, as far as the system keeps to it, and empty
/// where it tells nothing.
struct NetworkAdapter {
  std::string name;  ///< the system's name of the interface, which tells adapters apart
  std::optional<PciLocation> pci;
  LinkState link = LinkState::kNotTold;
  std::string description;
  std::string vendor;
  std::string productName;
  std::string driver;
  std::string driverVersion;
  std::vector<uint8_t> currentMac;
  std::vector<uint8_t> permanentMac;
  IpConfiguration ipv4;
  IpConfiguration ipv6;  ///< link-local addresses left out: every interface gives itself one
};

/// The adapters of the running machine in any order: those that are hardware, or that a virtual
/// machine is shown as hardware. Loopback, tunnels, bridges, bonds, VLANs and the like are none:
/// the place on the bus is what identifies an adapter, and they have none. What can't be read is
/// left out. Throws nothing but std::bad_alloc.
std::vector<NetworkAdapter> ReadNetworkAdapters();

/// Adds an object for each adapter below the main chassis, ordered by place on the bus (those
/// without one come last) and name. The OIDs are those of the firmware source: type and position.
///
/// The store has room for one IP address: that of IPv4, where there is one, else that of IPv6. The
/// status is ok whether the link is up or down, for a port without a cable is no fault, and unknown
/// where the system doesn't know of the link.
void AddNetworkAdapters(std::vector<NetworkAdapter> adapters, SnapshotBuilder& builder);

}  // namespace tqcim::store
