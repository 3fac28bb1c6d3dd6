/// Chassis and their probes, for the classes that walk over them.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/support/handler_test.h"

namespace tqcim::testing {

/// Object types.
using Types = std::vector<uint16_t>;

/// The value that a key has in an object path; "<absent>" where the path doesn't name it.
inline std::string KeyOf(const std::string& path, const std::string& key) {
  const std::string opening = key + "=\"";
  const size_t begin = path.find(opening);
  if (begin == std::string::npos) return "<absent>";
  const size_t value = begin + opening.size();
  return path.substr(value, path.find('"', value) - value);
}

/// The beginning of a reference to a chassis: 71 characters.
inline const std::string kChassisPathStart =
    R"(\\.\root\cimv2\vorn:VORN_Chassis.CreationClassName="VORN_Chassis",Tag=")";

class SeveralChassisTest : public HandlerTest {
 protected:
  /// Sets the list of chassis. Chassis 2 has the description 1002 that names it "Chassis 2".
  void ListChassis(const std::vector<uint32_t>& oids) {
    store.List(1, 17, oids);
    for (const uint32_t oid : oids) {
      store.Add(1000 + oid, 32).Ucs2(32, Named(u"Chassis ", oid));
      store.List(oid, 32, {1000 + oid});
    }
  }

  /// Sets a chassis's list of probes. Probe 201 has the status OK and the name "Probe 201".
  void ListProbes(uint32_t chassisOid, uint16_t type, const std::vector<uint32_t>& oids) {
    for (const uint32_t oid : oids) store.Add(oid, type).Ucs2(72, Named(u"Probe ", oid));
    store.List(chassisOid, type, oids);
  }

  /// Expects an association to ask nothing more of a chassis without a description.
  void ExpectDescriptionAskedForFirst(const char* className) {
    ListChassis({2});
    store.FailListing(2, 32);
    store.RecordCalls();
    EXPECT_EQ(0, Enumerate(className));
    EXPECT_EQ((Texts{"convert RACK42-NODE0007", "children 1/17", "children 2/32", "free"}),
              store.Calls());
  }

  /// "Chassis 2: 240" for each pair delivered, in order: the chassis and the sensor's DeviceID.
  Texts Pairs() const {
    Texts pairs;
    for (size_t i = 0; i < DeliveredCount(); ++i) {
      pairs.push_back(KeyOf(Value(i, "Dependent"), "Tag") + ": " +
                      KeyOf(Value(i, "Antecedent"), "DeviceID"));
    }
    return pairs;
  }

 private:
  static std::u16string Named(std::u16string name, uint32_t oid) {
    const std::string digits = std::to_string(oid);
    return name.append(digits.begin(), digits.end());
  }
};

}  // namespace tqcim::testing
