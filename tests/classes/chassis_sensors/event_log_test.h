/// What the classes of the two event logs have in common.
#pragma once

#include <ostream>

#include "tests/classes/chassis_sensors/several_chassis.h"
#include "tests/support/time_zone.h"

namespace tqcim::testing {

struct EventLogClass {
  const char* name;
  /// The kind of its log, and that of the other one.
  uint32_t kind;
  uint32_t otherKind;
};

inline std::ostream& operator<<(std::ostream& out, const EventLogClass& logClass) {
  return out << logClass.name;
}

/// 14 March 2015, 09:26:53 UTC.
inline constexpr int64_t kRecordTime = 1426325213;

/// A log among the children of OID 2.
class EventLogFixture : public SeveralChassisTest {
 protected:
  FakeBlock& AddLog(uint32_t oid, uint32_t kind) { return store.Add(oid, 31).U32(16, kind); }

  /// A record of the log 310 without a time.
  FakeBlock& AddRecord(std::u16string_view text) { return store.AddRecord(310).Ucs2(16, text); }

  const TimeZone zone_{"UTC0"};
};

/// The log of the class has OID 310 and three records. Each class instantiates these tests in a
/// source of its own.
class EventLogTest : public EventLogFixture, public ::testing::WithParamInterface<EventLogClass> {
 protected:
  EventLogTest() {
    AddLog(310, GetParam().kind);
    store.List(2, 31, {310});
    for (const auto* text : {u"Record 0", u"Record 1", u"Record 2"}) AddRecord(text);
  }

  HRESULT EnumerateClass() { return Enumerate(kName); }
  HRESULT GetRecord(int32_t number) {
    return Get(kName, NumberKey(OLESTR("RecordNumber"), number));
  }

  /// The texts of the records delivered.
  Texts Records() const { return Values("LogRecord"); }

  const char* const kName = GetParam().name;
};

}  // namespace tqcim::testing
