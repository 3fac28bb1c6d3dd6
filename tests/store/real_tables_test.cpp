// Tables of real machines against the text that an independent decoder prints of them. They are no
// part of the sources: TQCIM_REAL_DATA names the folder that has them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <vector>

#include "store/firmware_table.h"
#include "store/process.h"
#include "store/store_file.h"
#include "store/text.h"
#include "tests/store/decoder_text.h"
#include "tests/store/raw_bytes.h"

namespace tqcim::store {
namespace {

using testing::BytesOf;
using testing::Decoded;
using testing::DecodedStructure;
using testing::Oids;
using testing::U32;
using testing::U8;

namespace fs = std::filesystem;

/// A text of an object, empty where there is none or it says "Not Specified" itself.
std::string TextIn(const std::byte* object, size_t offset) {
  if (U32(object, offset) == 0) return "";
  const std::string text = Utf8FromUtf16(testing::Text(object, offset));
  return text == "Not Specified" ? "" : text;
}

/// The number at the start of a text such as "2667 MHz"; 0 for "Unknown".
uint32_t NumberIn(const std::string& text) {
  return static_cast<uint32_t>(std::strtoul(text.c_str(), nullptr, 10));
}

uint64_t BytesIn(const std::string& size) {
  const uint64_t number = NumberIn(size);
  if (size.ends_with(" kB")) return number << 10;
  if (size.ends_with(" MB")) return number << 20;
  if (size.ends_with(" GB")) return number << 30;
  return 0;
}

/// The code of a name that the decoder prints; a failure for one that these machines don't have.
template <size_t kCount>
uint32_t CodeOf(const std::pair<const char*, uint32_t> (&names)[kCount], const std::string& name) {
  const auto found = std::find_if(std::begin(names), std::end(names),
                                  [&](const auto& known) { return name == known.first; });
  if (found != std::end(names)) return found->second;
  ADD_FAILURE() << "none of the known names: " << name;
  return 0;
}

/// DSP0134 7.4.1, as far as these machines need it.
uint32_t ChassisType(const std::string& name) {
  const std::pair<const char*, uint32_t> names[] = {{"Other", 1},
                                                    {"Desktop", 3},
                                                    {"Mini Tower", 6},
                                                    {"Notebook", 10},
                                                    {"Main Server Chassis", 17},
                                                    {"Rack Mount Chassis", 23}};
  return CodeOf(names, name);
}

/// DSP0134 7.5.2, as far as these machines need it.
uint32_t ProcessorFamily(const std::string& name) {
  const std::pair<const char*, uint32_t> names[] = {{"Other", 0x01},   {"Zen", 0x6B},
                                                    {"Opteron", 0x84}, {"Xeon", 0xB3},
                                                    {"Xeon MP", 0xB5}, {"Multi-Core Xeon", 0xD6}};
  return CodeOf(names, name);
}

/// DSP0134 7.5.5, as far as these machines need it.
uint32_t ProcessorUpgrade(const std::string& name) {
  const std::pair<const char*, uint32_t> names[] = {
      {"Other", 0x01},          {"ZIF Socket", 0x04},       {"None", 0x06},
      {"Socket 940", 0x11},     {"Socket LGA1366", 0x19},   {"Socket G34", 0x1A},
      {"Socket LGA2011", 0x26}, {"Socket LGA2011-3", 0x2B}, {"Socket LGA3647-1", 0x36},
      {"Socket SP3r2", 0x38},   {"Socket LGA1200", 0x3E}};
  return CodeOf(names, name);
}

/// DSP0134 7.18.1, as far as these machines need it.
uint32_t MemoryFormFactor(const std::string& name) {
  const std::pair<const char*, uint32_t> names[] = {
      {"Unknown", 0x02}, {"Chip", 0x05}, {"DIMM", 0x09}, {"SODIMM", 0x0D}, {"FB-DIMM", 0x0F}};
  return CodeOf(names, name);
}

/// DSP0134 7.18.2, as far as these machines need it.
uint32_t MemoryType(const std::string& name) {
  const std::pair<const char*, uint32_t> names[] = {
      {"Other", 0x01}, {"Unknown", 0x02}, {"RAM", 0x07},          {"Flash", 0x09}, {"DDR", 0x12},
      {"DDR2", 0x13},  {"DDR3", 0x18},    {"DDR2 FB-DIMM", 0x14}, {"DDR4", 0x1A}};
  return CodeOf(names, name);
}

uint8_t StateStatus(const std::string& state) {
  return state == "Safe" ? 2 : state == "Warning" ? 3 : state == "Critical" ? 4 : 0;
}

/// The decoder's "Type 0, Family 6, Model 44, Stepping 2" (or without the type) as our texts.
std::pair<std::string, std::string> SignatureTexts(const std::string& signature) {
  const size_t family = signature.find("Family ");
  const size_t stepping = signature.find(", Stepping ");
  if (family == std::string::npos) return {};
  std::string model = signature.substr(family, stepping - family);
  model.erase(model.find(','), 1);
  return {model, signature.substr(stepping + 11)};
}

void CompareChassis(const Snapshot& snapshot, const fs::path& text) {
  const DecodedStructure chassis = Decoded(text, "Chassis Information").at(0);
  const DecodedStructure system = Decoded(text, "System Information").at(0);
  const std::byte* description = BytesOf(snapshot, 32 * 65536 + 1);
  const std::byte* identity = BytesOf(snapshot, 33 * 65536 + 1);
  EXPECT_EQ(U32(description, 16), ChassisType(chassis["Type"]));
  EXPECT_EQ(testing::U16(description, 24), chassis["Lock"] == "Present" ? 1 : 0);
  EXPECT_EQ(TextIn(description, 40), system["Product Name"]);
  EXPECT_EQ(TextIn(description, 32), system["Manufacturer"] + " " + system["Product Name"]);
  EXPECT_EQ(TextIn(description, 48), chassis["Version"]);
  EXPECT_EQ(TextIn(identity, 32), chassis["Serial Number"]);
  EXPECT_EQ(TextIn(identity, 36), chassis["Asset Tag"]);
  const uint8_t worst =
      std::max({StateStatus(chassis["Boot-up State"]), StateStatus(chassis["Power Supply State"]),
                StateStatus(chassis["Thermal State"])});
  EXPECT_EQ(U8(BytesOf(snapshot, 2), 10), worst == 0 ? 1 : worst);
}

void CompareBios(const Snapshot& snapshot, const fs::path& text) {
  const DecodedStructure expected = Decoded(text, "BIOS Information").at(0);
  ASSERT_EQ(U32(snapshot.Children(2, 212), 0), 1U);
  const std::byte* bios = BytesOf(snapshot, Oids(snapshot.Children(2, 212))[0]);
  EXPECT_EQ(TextIn(bios, 32), expected["Vendor"]);
  EXPECT_EQ(TextIn(bios, 36), expected["Version"]);
  EXPECT_EQ(TextIn(bios, 40), expected["Release Date"]);
}

void CompareProcessor(const std::byte* processor, const DecodedStructure& expected) {
  EXPECT_EQ(TextIn(processor, 72), expected["Version"]);
  EXPECT_EQ(U32(processor, 20), ProcessorFamily(expected["Family"]));
  EXPECT_EQ(U32(processor, 44), ProcessorUpgrade(expected["Upgrade"]));
  EXPECT_EQ(U32(processor, 24), NumberIn(expected["Max Speed"]));
  EXPECT_EQ(U32(processor, 28), NumberIn(expected["Current Speed"]));
  EXPECT_EQ(U32(processor, 56), NumberIn(expected["Core Count"]));
  EXPECT_EQ(U32(processor, 60), NumberIn(expected["Core Enabled"]));
  const std::string state = expected["Status"].substr(11);
  const std::pair<const char*, uint32_t> states[] = {{"Enabled", 3}, {"Idle", 6}};
  EXPECT_EQ(U32(processor, 40), CodeOf(states, state));
  EXPECT_EQ(U8(processor, 10), 2);
  // Families "Other" define no signature, whatever the decoder takes it from.
  if (expected["Family"] != "Other") {
    const auto [model, stepping] = SignatureTexts(expected["Signature"]);
    EXPECT_EQ(TextIn(processor, 76), model);
    EXPECT_EQ(TextIn(processor, 80), stepping);
  }
}

void CompareProcessors(const Snapshot& snapshot, const fs::path& text) {
  const auto expected = Decoded(text, "Processor Information");
  const auto sockets = Oids(snapshot.Children(2, 196));
  ASSERT_EQ(sockets.size(), expected.size());
  size_t populated = 0;
  for (size_t i = 0; i < sockets.size(); ++i) {
    SCOPED_TRACE(expected[i]["Socket Designation"]);
    EXPECT_EQ(TextIn(BytesOf(snapshot, sockets[i]), 28), expected[i]["Socket Designation"]);
    const auto processors = Oids(snapshot.Children(sockets[i], 210));
    if (expected[i]["Status"] == "Unpopulated") {
      EXPECT_EQ(processors.size(), 0U);
      continue;
    }
    ++populated;
    ASSERT_EQ(processors.size(), 1U);
    CompareProcessor(BytesOf(snapshot, processors[0]), expected[i]);
  }
  EXPECT_EQ(U32(snapshot.Children(2, 210), 0), populated);
}

void CompareMemoryDevice(const std::byte* memory, const DecodedStructure& expected) {
  const uint64_t extended = U32(memory, 112);
  const uint64_t capacity = extended != 0 ? extended << 20 : uint64_t{U32(memory, 24)} << 10;
  EXPECT_EQ(capacity, BytesIn(expected["Size"]));
  EXPECT_EQ(U32(memory, 16), NumberIn(expected["Total Width"]));
  EXPECT_EQ(U32(memory, 20), NumberIn(expected["Data Width"]));
  EXPECT_EQ(U32(memory, 28), MemoryFormFactor(expected["Form Factor"]));
  EXPECT_EQ(U32(memory, 36), MemoryType(expected["Type"]));
  EXPECT_EQ(TextIn(memory, 68), expected["Locator"]);
  EXPECT_EQ(TextIn(memory, 72), expected["Bank Locator"]);
  EXPECT_EQ(TextIn(memory, 80), expected["Manufacturer"]);
  EXPECT_EQ(TextIn(memory, 84), expected["Serial Number"]);
  EXPECT_EQ(U32(memory, 44), NumberIn(expected["Speed"]));
  EXPECT_EQ(TextIn(memory, 96), expected["Speed"] == "Unknown" ? "" : expected["Speed"]);
  EXPECT_EQ(U32(memory, 108), NumberIn(expected["Rank"]));
}

void CompareMemory(const Snapshot& snapshot, const fs::path& text) {
  auto expected = Decoded(text, "Memory Device");
  std::erase_if(expected, [](const auto& s) { return s["Size"] == "No Module Installed"; });
  const auto devices = Oids(snapshot.Children(2, 225));
  ASSERT_EQ(devices.size(), expected.size());
  for (size_t i = 0; i < devices.size(); ++i) {
    SCOPED_TRACE(expected[i]["Locator"]);
    CompareMemoryDevice(BytesOf(snapshot, devices[i]), expected[i]);
  }
}

void CompareBaseboards(const Snapshot& snapshot, const fs::path& text) {
  const std::pair<const char*, uint32_t> types[] = {{"Processor Module", 6},
                                                    {"I/O Module", 7},
                                                    {"Memory Module", 8},
                                                    {"Motherboard", 10},
                                                    {"", 1}};
  const std::pair<const char*, uint8_t> features[] = {
      {"Board is a hosting board", 0x01},
      {"Board requires at least one daughter board", 0x02},
      {"Board is removable", 0x04},
      {"Board is replaceable", 0x08},
      {"Board is hot swappable", 0x10}};
  const auto expected = Decoded(text, "Base Board Information");
  const auto boards = Oids(snapshot.Children(2, 259));
  ASSERT_EQ(boards.size(), expected.size());
  for (size_t i = 0; i < boards.size(); ++i) {
    SCOPED_TRACE(expected[i]["Product Name"]);
    const std::byte* board = BytesOf(snapshot, boards[i]);
    EXPECT_EQ(U32(board, 16), CodeOf(types, expected[i]["Type"]));
    EXPECT_EQ(TextIn(board, 60), expected[i]["Type"]);
    EXPECT_EQ(TextIn(board, 28), expected[i]["Manufacturer"]);
    EXPECT_EQ(TextIn(board, 32), expected[i]["Product Name"]);
    EXPECT_EQ(TextIn(board, 36), expected[i]["Version"]);
    EXPECT_EQ(TextIn(board, 40), expected[i]["Serial Number"]);
    EXPECT_EQ(TextIn(board, 52), expected[i]["Asset Tag"]);
    EXPECT_EQ(TextIn(board, 56), expected[i]["Location In Chassis"]);
    for (const auto& [line, bit] : features) {
      EXPECT_EQ((U8(board, 20) & bit) != 0, expected[i].lines.count(line) != 0) << line;
    }
  }
}

/// DSP0134 7.10.1, as far as these machines need it. The decoder prints the data width before the
/// type: "x8 PCI Express 3 x16".
uint32_t SlotType(const std::string& name) {
  const std::pair<const char*, uint32_t> types[] = {
      {"PCI", 0x06},
      {"PC Card (PCMCIA)", 0x07},
      {"PCI-X", 0x12},
      {"M.2 Socket 1-DP", 0x14},
      {"M.2 Socket 3", 0x17},
      {"PCI Express", 0xA5},
      {"PCI Express x1", 0xA6},
      {"PCI Express x4", 0xA8},
      {"PCI Express x8", 0xA9},
      {"PCI Express x16", 0xAA},
      {"PCI Express 2", 0xAB},
      {"PCI Express 2 x8", 0xAF},
      {"PCI Express 2 x16", 0xB0},
      {"PCI Express 3 x8", 0xB5},
      {"PCI Express 3 x16", 0xB6},
      {"PCI Express 4 x4", 0xBB},
      {"PCI Express 4 x16", 0xBD},
      {"Other", 0x01},
  };
  const std::string width = name.substr(0, name.find(' '));
  const bool hasWidth =
      width.ends_with("-bit") || width.find_first_not_of("x0123456789") == std::string::npos;
  return CodeOf(types, hasWidth ? name.substr(width.size() + 1) : name);
}

void CompareSlots(const Snapshot& snapshot, const fs::path& text) {
  const auto expected = Decoded(text, "System Slot Information");
  const auto slots = Oids(snapshot.Children(2, 228));
  ASSERT_EQ(slots.size(), expected.size());
  for (size_t i = 0; i < slots.size(); ++i) {
    SCOPED_TRACE(expected[i]["Designation"]);
    const std::byte* slot = BytesOf(snapshot, slots[i]);
    EXPECT_EQ(TextIn(slot, 80), expected[i]["Designation"]);
    EXPECT_EQ(U32(slot, 16), SlotType(expected[i]["Type"]));
    EXPECT_EQ(testing::U16(slot, 48), expected[i].lines.count("Hot-plug devices are supported"));
    // The decoder prints the number of some types only, and an adapter and a socket of a PC Card's.
    const std::string number = expected[i]["ID"];
    if (!number.empty()) {
      EXPECT_EQ(U32(slot, 28), NumberIn(number));
    }
  }
}

/// The ports of one type against the decoder's whose port type begins so. `name` is where the
/// objects have theirs.
void ComparePorts(const Snapshot& snapshot, const fs::path& text, uint16_t type, size_t name,
                  const char* portType) {
  auto expected = Decoded(text, "Port Connector Information");
  std::erase_if(expected, [&](const auto& s) { return s["Port Type"].rfind(portType, 0) != 0; });
  const auto ports = Oids(snapshot.Children(2, type));
  ASSERT_EQ(ports.size(), expected.size());
  for (size_t i = 0; i < ports.size(); ++i) {
    const std::string outside = expected[i]["External Reference Designator"];
    EXPECT_EQ(TextIn(BytesOf(snapshot, ports[i]), name),
              outside.empty() ? expected[i]["Internal Reference Designator"] : outside);
  }
}

void CompareAllPorts(const Snapshot& snapshot, const fs::path& text) {
  ComparePorts(snapshot, text, 192, 44, "Parallel Port");
  ComparePorts(snapshot, text, 193, 40, "Serial Port");
  EXPECT_EQ(U32(snapshot.Children(2, 208), 0), Decoded(text, "Built-in Pointing Device").size());
}

void ComparePowerSupplies(const Snapshot& snapshot, const fs::path& text) {
  const std::pair<const char*, uint32_t> states[] = {{"Present, OK", 2}, {"Present, Unknown", 1}};
  const std::pair<const char*, uint32_t> kinds[] = {{"Unknown", 0}, {"Switching", 9}};
  auto expected = Decoded(text, "System Power Supply");
  std::erase_if(expected, [](const auto& s) { return s["Status"] == "Not Present"; });
  const auto supplies = Oids(snapshot.Children(2, 21));
  ASSERT_EQ(supplies.size(), expected.size());
  for (size_t i = 0; i < supplies.size(); ++i) {
    SCOPED_TRACE(expected[i]["Name"]);
    const std::byte* supply = BytesOf(snapshot, supplies[i]);
    EXPECT_EQ(TextIn(supply, 44), expected[i]["Name"]);
    EXPECT_EQ(testing::U16(supply, 16), NumberIn(expected[i]["Max Power Capacity"]));
    EXPECT_EQ(U8(supply, 10), CodeOf(states, expected[i]["Status"]));
    EXPECT_EQ(U8(supply, 40), CodeOf(kinds, expected[i]["Type"]));
    EXPECT_EQ(testing::U16(supply, 38), expected[i]["Plugged"] == "Yes" ? 1 : 8);
  }
}

/// Calls `compare` with the snapshot of every machine and the decoder's text about it.
void ForEveryMachine(const std::function<void(const Snapshot&, const fs::path&)>& compare) {
  const auto folder = EnvironmentText("TQCIM_REAL_DATA");
  if (!folder) GTEST_SKIP() << "TQCIM_REAL_DATA names no folder with tables of real machines";
  int machines = 0;
  for (const auto& entry : fs::directory_iterator(fs::path(*folder) / "smbios")) {
    if (entry.path().extension() != ".bin") continue;
    SCOPED_TRACE(entry.path().filename().string());
    const auto snapshot = LoadFirmwareTable(entry.path());
    compare(*snapshot, fs::path(entry.path()).replace_extension(".dmidecode.txt"));
    ++machines;
  }
  EXPECT_GT(machines, 0) << "no table in " << *folder;
}

TEST(RealTables, TheChassisIsTheDecoders) {
  ForEveryMachine(CompareChassis);
}

TEST(RealTables, TheBiosIsTheDecoders) {
  ForEveryMachine(CompareBios);
}

TEST(RealTables, TheProcessorsAreTheDecoders) {
  ForEveryMachine(CompareProcessors);
}

TEST(RealTables, TheMemoryIsTheDecoders) {
  ForEveryMachine(CompareMemory);
}

TEST(RealTables, TheBaseboardsAreTheDecoders) {
  ForEveryMachine(CompareBaseboards);
}

TEST(RealTables, TheSlotsAreTheDecoders) {
  ForEveryMachine(CompareSlots);
}

TEST(RealTables, ThePortsAndPointingDevicesAreTheDecoders) {
  ForEveryMachine(CompareAllPorts);
}

TEST(RealTables, ThePowerSuppliesAreTheDecoders) {
  ForEveryMachine(ComparePowerSupplies);
}

TEST(RealTables, EveryMachineComesBackFromAStoreFile) {
  ForEveryMachine([](const Snapshot& snapshot, const fs::path&) {
    const std::string contents = FormatStoreFile(snapshot);
    const auto again = ParseStoreFile(contents, "again");
    EXPECT_TRUE(std::equal(snapshot.Objects().begin(), snapshot.Objects().end(),
                           again->Objects().begin(), again->Objects().end()));
  });
}

}  // namespace
}  // namespace tqcim::store
