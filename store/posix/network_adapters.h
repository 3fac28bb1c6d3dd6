/// Network adapters as Linux shows them in its files.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "store/network_adapters.h"

namespace tqcim::store {

/// What no file tells of an interface: addresses with their masks, and the MAC address that the
/// adapter came with.
struct InterfaceFacts {
  IpConfiguration ipv4;
  IpConfiguration ipv6;
  std::vector<uint8_t> permanentMac;
};

/// By the interface's name.
using InterfaceFactsByName = std::map<std::string, InterfaceFacts>;

/// Asks the running kernel.
InterfaceFactsByName ReadInterfaceFacts();

/// The adapters of the file systems at `sys` (class/net in it) and `proc` (net/route and
/// net/ipv6_route): interfaces with a device behind them, which virtual ones don't have, nor
/// virtual functions of a device that is there itself.
///
/// A member of a bond, team or bridge has the addresses of that: what reaches them comes through
/// it. One that has an address of its own, as members of a VRF do, keeps it. Linux keeps neither
/// the DHCP server nor the names of maker and product.
std::vector<NetworkAdapter> ReadNetworkAdapters(const std::filesystem::path& sys,
                                                const std::filesystem::path& proc,
                                                const InterfaceFactsByName& facts);

}  // namespace tqcim::store
