#include "tests/platform/slot_recorder.h"

#include <array>
#include <utility>

#include "platform/wmi.h"

namespace tqcim::testing {
namespace {

int calledSlot = -1;

using Slot = ULONG(STDMETHODCALLTYPE*)(void* self);

/// The caller passes more arguments; both platforms' x64 conventions leave them to the caller.
template <int kSlot>
ULONG STDMETHODCALLTYPE Record(void*) {
  calledSlot = kSlot;
  return 0;
}

template <int... kSlots>
constexpr auto MakeTable(std::integer_sequence<int, kSlots...>) {
  return std::array<Slot, sizeof...(kSlots)>{&Record<kSlots>...};
}

/// Two slots more than the longest interface.
auto table = MakeTable(std::make_integer_sequence<int, 31>());

struct Object {
  Slot* slots;
};

Object object = {table.data()};

}  // namespace

void* SlotRecorder() {
  return &object;
}

int TakeCalledSlot() {
  return std::exchange(calledSlot, -1);
}

}  // namespace tqcim::testing
