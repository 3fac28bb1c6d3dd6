#include "store/posix/network_adapters.h"

#include <arpa/inet.h>
#include <net/route.h>

#include <algorithm>
#include <charconv>

#include "store/files.h"
#include "store/store_error.h"

namespace tqcim::store {

namespace fs = std::filesystem;

namespace {

/// A file of one line without the line's end; empty where it can't be read.
std::string LineOf(const fs::path& path) {
  try {
    const std::string contents = ReadFile(path);
    return contents.substr(0, contents.find('\n'));
  } catch (const StoreError&) {
    return {};
  }
}

/// The name at which a link points; empty for what is no link.
std::string LinkedName(const fs::path& link) {
  std::error_code error;
  return fs::read_symlink(link, error).filename().string();
}

/// A number that is the whole text.
std::optional<uint32_t> HexNumber(std::string_view text) {
  uint32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, 16);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

/// Two digits for each byte, with a colon between them where `gap` is 1; empty for any other text.
std::vector<uint8_t> HexBytes(std::string_view text, size_t gap) {
  if ((text.size() + gap) % (2 + gap) != 0) return {};
  std::vector<uint8_t> bytes;
  for (size_t at = 0; at < text.size(); at += 2 + gap) {
    const auto byte = HexNumber(text.substr(at, 2));
    const bool separated = at == 0 || gap == 0 || text[at - 1] == ':';
    if (!byte || !separated) return {};
    bytes.push_back(static_cast<uint8_t>(*byte));
  }
  return bytes;
}

/// The location that a device's folder is named after, "0000:3b:00.1" (domain, bus, device,
/// function).
std::optional<PciLocation> PciLocationOf(const std::string& folder) {
  const size_t colon = folder.find(':');
  if (colon == std::string::npos) return std::nullopt;
  const size_t bus = colon + 1;
  if (folder.size() != bus + 7 || folder[bus + 2] != ':' || folder[bus + 5] != '.') {
    return std::nullopt;
  }
  const auto number = [&](size_t at, size_t length) {
    return HexNumber(std::string_view(folder).substr(at, length));
  };
  const auto busNumber = number(bus, 2);
  const auto device = number(bus + 3, 2);
  const auto function = number(bus + 6, 1);
  if (!busNumber || !device || !function) return std::nullopt;
  return PciLocation{static_cast<uint8_t>(*busNumber), static_cast<uint8_t>(*device),
                     static_cast<uint8_t>(*function)};
}

/// The location of the device itself, or of the one that it is all of: a virtio device stands in
/// the folder of its PCI device.
std::optional<PciLocation> ReadPciLocation(const fs::path& device) {
  std::error_code error;
  const fs::path folder = fs::canonical(device, error);
  const auto own = PciLocationOf(folder.filename().string());
  return own ? own : PciLocationOf(folder.parent_path().filename().string());
}

/// Documentation/ABI/testing/sysfs-class-net, operstate.
LinkState LinkStateOf(const std::string& operstate) {
  constexpr std::pair<const char*, LinkState> kStates[] = {
      {"up", LinkState::kUp},
      {"down", LinkState::kDown},
      {"testing", LinkState::kTesting},
      {"unknown", LinkState::kUnknown},
      {"dormant", LinkState::kDormant},
      {"notpresent", LinkState::kNotPresent},
      {"lowerlayerdown", LinkState::kLowerLayerDown},
  };
  for (const auto& [text, state] : kStates) {
    if (operstate == text) return state;
  }
  return LinkState::kNotTold;
}

/// The gateway of the default route over an interface, by the interface's name; of several the one
/// with the smallest metric.
class Gateways {
 public:
  void Offer(const std::string& interface, uint32_t metric, std::string address) {
    const auto [known, isNew] = routes_.try_emplace(interface, metric, address);
    if (!isNew && metric < known->second.first) known->second = {metric, std::move(address)};
  }
  std::string Of(const std::string& interface) const {
    const auto known = routes_.find(interface);
    return known == routes_.end() ? std::string() : known->second.second;
  }

 private:
  std::map<std::string, std::pair<uint32_t, std::string>> routes_;
};

/// What stands between the separators, without empty pieces.
std::vector<std::string> Pieces(std::string_view text, std::string_view separators) {
  std::vector<std::string> pieces;
  for (size_t start = 0; start < text.size();) {
    const size_t end = std::min(text.find_first_of(separators, start), text.size());
    if (end > start) pieces.emplace_back(text.substr(start, end - start));
    start = end + 1;
  }
  return pieces;
}

/// Calls `offer` with the words of each line.
template <typename Offer>
void ForEveryRoute(const fs::path& path, Offer offer) {
  std::string contents;
  try {
    contents = ReadFile(path);
  } catch (const StoreError&) {
    return;
  }
  for (const std::string& line : Pieces(contents, "\n")) offer(Pieces(line, " \t"));
}

bool IsUpWithGateway(const std::string& flags) {
  constexpr uint32_t kNeeded = RTF_UP | RTF_GATEWAY;
  return (HexNumber(flags).value_or(0) & kNeeded) == kNeeded;
}

/// proc(5), /proc/net/route: interface, destination, gateway, flags, reference count, use, metric,
/// mask. The addresses are hexadecimal numbers of this machine's byte order.
Gateways ReadIpv4Gateways(const fs::path& proc) {
  Gateways gateways;
  ForEveryRoute(proc / "net" / "route", [&](const std::vector<std::string>& words) {
    if (words.size() < 8 || words[1] != "00000000" || words[7] != "00000000") return;
    const auto gateway = HexNumber(words[2]);
    if (!gateway || !IsUpWithGateway(words[3])) return;
    uint32_t metric = 0;
    std::from_chars(words[6].data(), words[6].data() + words[6].size(), metric);
    char text[INET_ADDRSTRLEN];
    if (inet_ntop(AF_INET, &*gateway, text, sizeof text) != nullptr) {
      gateways.Offer(words[0], metric, text);
    }
  });
  return gateways;
}

/// The kernel's rt6_info_route: destination, its prefix length, source, its prefix length, gateway,
/// metric, reference count, use, flags, interface; all numbers hexadecimal.
Gateways ReadIpv6Gateways(const fs::path& proc) {
  Gateways gateways;
  ForEveryRoute(proc / "net" / "ipv6_route", [&](const std::vector<std::string>& words) {
    if (words.size() < 10 || words[1] != "00" || !IsUpWithGateway(words[8])) return;
    const std::vector<uint8_t> gateway = HexBytes(words[4], 0);
    if (gateway.size() != sizeof(in6_addr)) return;
    char text[INET6_ADDRSTRLEN];
    if (inet_ntop(AF_INET6, gateway.data(), text, sizeof text) != nullptr) {
      gateways.Offer(words[9], HexNumber(words[5]).value_or(UINT32_MAX), text);
    }
  });
  return gateways;
}

bool HasAddress(const InterfaceFacts& facts) {
  return !facts.ipv4.address.empty() || !facts.ipv6.address.empty();
}

/// "eth0", or "eth0 (uplink)" with the alias that the administrator gave it.
std::string DescriptionOf(const std::string& name, const std::string& alias) {
  return alias.empty() ? name : name + " (" + alias + ")";
}

}  // namespace

std::vector<NetworkAdapter> ReadNetworkAdapters(const fs::path& sys, const fs::path& proc,
                                                const InterfaceFactsByName& facts) {
  const Gateways ipv4Gateways = ReadIpv4Gateways(proc);
  const Gateways ipv6Gateways = ReadIpv6Gateways(proc);
  const auto factsOf = [&](const std::string& interface) {
    const auto known = facts.find(interface);
    return known == facts.end() ? InterfaceFacts{} : known->second;
  };
  std::vector<NetworkAdapter> adapters;
  std::error_code error;
  for (fs::directory_iterator entry(sys / "class" / "net", error), end; entry != end;
       entry.increment(error)) {
    const fs::path& folder = entry->path();
    const fs::path device = folder / "device";
    if (!fs::exists(device, error) || fs::exists(device / "physfn", error)) continue;
    NetworkAdapter adapter;
    adapter.name = folder.filename().string();
    adapter.pci = ReadPciLocation(device);
    adapter.link = LinkStateOf(LineOf(folder / "operstate"));
    adapter.description = DescriptionOf(adapter.name, LineOf(folder / "ifalias"));
    adapter.driver = LinkedName(device / "driver");
    adapter.driverVersion = LineOf(device / "driver" / "module" / "version");
    adapter.currentMac = HexBytes(LineOf(folder / "address"), 1);
    adapter.permanentMac = factsOf(adapter.name).permanentMac;
    // NET_ADDR_PERM: the address in use is the permanent one.
    if (adapter.permanentMac.empty() && LineOf(folder / "addr_assign_type") == "0") {
      adapter.permanentMac = adapter.currentMac;
    }
    const std::string master = LinkedName(folder / "master");
    const bool hasOwnAddress = HasAddress(factsOf(adapter.name));
    const std::string& configured = master.empty() || hasOwnAddress ? adapter.name : master;
    const InterfaceFacts addresses = factsOf(configured);
    adapter.ipv4 = addresses.ipv4;
    adapter.ipv4.gateway = ipv4Gateways.Of(configured);
    adapter.ipv6 = addresses.ipv6;
    adapter.ipv6.gateway = ipv6Gateways.Of(configured);
    adapters.push_back(std::move(adapter));
  }
  return adapters;
}

std::vector<NetworkAdapter> ReadNetworkAdapters() {
  return ReadNetworkAdapters("/sys", "/proc", ReadInterfaceFacts());
}

}  // namespace tqcim::store
