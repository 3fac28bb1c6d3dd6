/// An object that is nothing but a table of functions, each of which notes its own slot.
#pragma once

#include <gtest/gtest.h>

namespace tqcim::testing {

/// The object, as the interface that is to be tested.
void* SlotRecorder();

/// The slot that the last call through the object came in at; -1 when there was none since the
/// last question.
int TakeCalledSlot();

}  // namespace tqcim::testing

/// Makes the call and expects it to come in at the slot.
#define EXPECT_SLOT(slot, call) \
  call;                         \
  EXPECT_EQ(slot, tqcim::testing::TakeCalledSlot()) << #call
