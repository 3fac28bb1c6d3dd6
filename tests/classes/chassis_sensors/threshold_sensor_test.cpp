#include "tests/classes/chassis_sensors/threshold_sensor_test.h"

namespace tqcim::testing {
namespace {

TEST_P(ThresholdSensorTest, TheDeviceIdCounts100ForEachChassisBefore) {
  EnumerateClass();
  EXPECT_EQ((Texts{"0", "1", "2", "100", "101"}), Values("DeviceID"));
}

TEST_P(ThresholdSensorTest, ChassisWithoutProbesCountInTheDeviceIdToo) {
  ListChassis({2, 3, 4});
  store.List(3, kType, {});
  ListProbes(4, kType, {401, 402});
  EnumerateClass();
  EXPECT_EQ((Texts{"0", "1", "2", "200", "201"}), Values("DeviceID"));
}

TEST_P(ThresholdSensorTest, TheDeviceIdsOfAChassisWithMoreThan100ProbesRunIntoTheNext) {
  store.List(2, kType, std::vector<uint32_t>(102, 201));
  EnumerateClass();
  EXPECT_EQ("100", Value(100, "DeviceID"));
  EXPECT_EQ("101", Value(101, "DeviceID"));
  EXPECT_EQ("100", Value(102, "DeviceID"));
}

TEST_P(ThresholdSensorTest, AProbeThatIsGotHasTheDeviceIdOfWhereItWasFound) {
  GetByDeviceId(OLESTR("2"));
  GetByDeviceId(OLESTR("7"));
  GetByDeviceId(OLESTR("105"));
  EXPECT_EQ((Texts{"2", "100", "100"}), Values("DeviceID"));
}

TEST_P(ThresholdSensorTest, TheLowerBitMakesTheUpperThresholdSettable) {
  constexpr std::pair<uint16_t, const char*> kRows[] = {{0x0000, "{}"},  {0x0001, "{1}"},
                                                        {0x0002, "{0}"}, {0x0003, "{1,0}"},
                                                        {0xFFFC, "{}"},  {0xFFFF, "{1,0}"}};
  for (const auto& [flags, value] : kRows) {
    store.Object(201).U16(70, flags);
    GetByDeviceId(OLESTR("0"));
    EXPECT_EQ(value, Value(DeliveredCount() - 1, "SettableThresholds")) << flags;
  }
}

TEST_P(ThresholdSensorTest, ReadingAndThresholdsAreSignedAndPassUnchanged) {
  store.Object(201)
      .U32(20, 0x80000000)
      .U32(24, 0x7FFFFFFF)
      .U32(28, 0xFFFFFFFF)
      .U32(32, 0)
      .U32(36, 0xFFFFFF9C)
      .U32(40, 0xFFFFFF9B)
      .U32(44, 0x80000001);
  GetByDeviceId(OLESTR("0"));
  EXPECT_EQ("-2147483648", Value(0, "CurrentReading"));
  EXPECT_EQ("2147483647", Value(0, "UpperThresholdFatal"));
  EXPECT_EQ("-1", Value(0, "UpperThresholdCritical"));
  EXPECT_EQ("0", Value(0, "UpperThresholdNonCritical"));
  EXPECT_EQ("-100", Value(0, "LowerThresholdNonCritical"));
  EXPECT_EQ("-101", Value(0, "LowerThresholdCritical"));
  EXPECT_EQ("-2147483647", Value(0, "LowerThresholdFatal"));
}

TEST_P(ThresholdSensorTest, TheNameIsCopiedCharacterByCharacter) {
  store.Object(201).Ucs2(72, u"Größe \u2122");
  store.Object(202).Ucs2(72, u"");
  GetByDeviceId(OLESTR("0"));
  GetByDeviceId(OLESTR("1"));
  EXPECT_EQ((Texts{"Gr\\u00F6\\u00DFe \\u2122", ""}), Names());
}

TEST_P(ThresholdSensorTest, ProbesOfAnySubtypeAreSensors) {
  for (const uint32_t subtype : {0u, 17u, 0xFFFFFFFFu}) {
    store.Object(201).U32(16, subtype);
    GetByDeviceId(OLESTR("0"));
  }
  EXPECT_EQ(3u, DeliveredCount());
}

}  // namespace
}  // namespace tqcim::testing
