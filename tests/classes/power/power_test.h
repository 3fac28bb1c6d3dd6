/// What the tests of power supplies, power consumption and redundancy share.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/support/handler_test.h"

namespace tqcim::testing {

/// Paths of what stands in the stores of several tests.
inline constexpr char kShelfA[] =
    R"(\\.\root\cimv2\vorn:VORN_Chassis.CreationClassName="VORN_Chassis",Tag="Shelf A")";
inline constexpr char kShelfB[] =
    R"(\\.\root\cimv2\vorn:VORN_Chassis.CreationClassName="VORN_Chassis",Tag="Shelf B")";
inline constexpr char kSystem[] =
    R"(\\.\root\cimv2\vorn:VORN_SYSTEM.CreationClassName="CVORN_System",)"
    R"(SystemName="RACK42-NODE0007",SystemCreationClassName="CIM_ComputerSystem")";
inline constexpr char kMain0[] = R"(\\.\root\cimv2\vorn:VORN_PSRedundancyGroup.)"
                                 R"(CreationClassName="VORN_PSRedundancyGroup",Name="Main0")";
inline constexpr char kMain1[] = R"(\\.\root\cimv2\vorn:VORN_PSRedundancyGroup.)"
                                 R"(CreationClassName="VORN_PSRedundancyGroup",Name="Main1")";
inline constexpr char kSpare0[] = R"(\\.\root\cimv2\vorn:VORN_PSRedundancyGroup.)"
                                  R"(CreationClassName="VORN_PSRedundancyGroup",Name="Spare0")";
inline constexpr char kSpare1[] = R"(\\.\root\cimv2\vorn:VORN_PSRedundancyGroup.)"
                                  R"(CreationClassName="VORN_PSRedundancyGroup",Name="Spare1")";

/// The puts of an association.
inline Puts Ends(const std::string& dependent, const std::string& antecedent) {
  return {{"Dependent", VT_BSTR, 0, dependent}, {"Antecedent", VT_BSTR, 0, antecedent}};
}

/// Objects at literal offsets. Where a field is narrower than its neighbours would allow, the bytes
/// behind it are set too, so that reading too many shows.
class PowerTest : public HandlerTest {
 protected:
  void SetChassis(std::vector<uint32_t> oids) { store.List(1, 17, std::move(oids)); }

  /// The description of a chassis, which holds its tag.
  void Describe(uint32_t chassisOid, uint32_t oid, std::u16string_view tag) {
    store.Add(oid, 32).Ucs2(32, tag);
    store.List(chassisOid, 32, {oid});
  }

  FakeBlock& AddSupply(uint32_t oid, std::u16string_view name) {
    return store.Add(oid, 21)
        .U16(16, 750)
        .U16(18, 0xBEEF)
        .U32(20, 1150)
        .U16(36, 0xBEEF)
        .U16(38, 1)
        .U8(40, 9)
        .U8(41, 2)
        .U16(42, 1)
        .Ucs2(44, name);
  }

  /// A current probe; subtypes 23 to 26 are those of power consumption.
  FakeBlock& AddProbe(uint32_t oid, uint32_t subtype, std::u16string_view name) {
    return store.Add(oid, 25).U32(16, subtype).Ucs2(72, name);
  }

  FakeBlock& AddGroup(uint32_t oid, std::u16string_view name) {
    return store.Add(oid, 2).U8(16, 4).U8(17, 0xEE).U16(18, 1).Ucs2(20, name);
  }

  /// `Name` and `DeviceID` of several instances, in the order of their delivery.
  using Ids = std::vector<std::pair<std::string, std::string>>;
  Ids DeliveredIds() const {
    Ids ids;
    for (size_t i = 0; i < DeliveredCount(); ++i) {
      ids.emplace_back(Value(i, "Name"), Value(i, "DeviceID"));
    }
    return ids;
  }
};

}  // namespace tqcim::testing
