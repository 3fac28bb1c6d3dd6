// The classes of which no single instance is ever found.
#include "tests/support/handler_test.h"

namespace tqcim::testing {
namespace {

struct EnumeratedClass {
  const char* name;
  uint16_t objectType;
};

class EnumeratedOnlyTest : public HandlerTest,
                           public ::testing::WithParamInterface<EnumeratedClass> {
 protected:
  EnumeratedOnlyTest() {
    store.Add(10, GetParam().objectType).Ucs2(40, u"COM1").Ucs2(44, u"LPT1");
    store.List(2, GetParam().objectType, {10});
  }
};

TEST_P(EnumeratedOnlyTest, NoPathFindsTheObjectThatIsThere) {
  EXPECT_EQ(0, Enumerate(GetParam().name));
  EXPECT_EQ(1u, DeliveredCount());
  EXPECT_EQ(Hr(0x80041002),
            Get(GetParam().name, StringKey(OLESTR("CreationClassName"), OLESTR("any"))));
  EXPECT_EQ(Hr(0x80041002), Get(GetParam().name, StringKey(OLESTR("DeviceID"), OLESTR("0"))));
  EXPECT_EQ(Hr(0x80041002), Get(GetParam().name, NumberKey(OLESTR("Number"), 0)));
  EXPECT_EQ(Hr(0x80041002), GetWithoutKeys(GetParam().name));
  EXPECT_EQ(1u, DeliveredCount());
}

TEST_P(EnumeratedOnlyTest, ReadsNeitherKeysNorStore) {
  ExpectNeverGot(GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(Classes, EnumeratedOnlyTest,
                         ::testing::Values(EnumeratedClass{"CIM_FRU", 385},
                                           EnumeratedClass{"CIM_Slot", 228},
                                           EnumeratedClass{"CIM_SerialController", 193},
                                           EnumeratedClass{"CIM_ParallelController", 192},
                                           EnumeratedClass{"CIM_PointingDevice", 208},
                                           EnumeratedClass{"VORN_NetworkPort", 96}),
                         kClassName);

}  // namespace
}  // namespace tqcim::testing
