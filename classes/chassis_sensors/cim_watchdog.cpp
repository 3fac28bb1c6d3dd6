#include "classes/chassis_sensors/handlers.h"
#include "classes/device_names.h"
#include "classes/walks.h"
#include "core/results.h"
#include "platform/layouts/watchdog.h"

namespace tqcim {
namespace {

namespace watchdog = layout::watchdog;

/// CIM's `ActionOnExpiration`; what the store's coding does not know counts as none.
constexpr int32_t kNoAction = 1;

int32_t ActionOf(uint32_t storeCode) {
  switch (storeCode) {
    case 1:
      return 2;
    case 2:
      return 3;
    case 4:
      return 4;
    default:
      return kNoAction;
  }
}

void PutWatchdogProperties(Instance& instance, const DataObject& object, uint16_t) {
  constexpr uint32_t kMicrosecondsPerSecond = 1'000'000;
  constexpr int32_t kTimerResolution = 10'000'000;
  constexpr int32_t kServiceProcessor = 8;
  constexpr int32_t kEnabled = 2;
  constexpr int32_t kNotEnabled = 1;
  const int32_t action = ActionOf(object[watchdog::kExpiryAction]);
  // Microseconds in 32 bits: time-outs above 4294 seconds wrap, as clients have always seen them.
  instance.Put(OLESTR("TimeoutInterval"),
               Variant::Int32(object[watchdog::kTimeoutSeconds] * kMicrosecondsPerSecond));
  instance.Put(OLESTR("TimerResolution"), Variant::Int32(kTimerResolution));
  instance.Put(OLESTR("MonitoredEntity"), Variant::Int32(kServiceProcessor));
  instance.Put(OLESTR("MonitoredEntityDescription"),
               Variant::Text(OLESTR("Vorn KX Instrumentation service")));
  instance.Put(OLESTR("ActionOnExpiration"), Variant::Int32(action));
  instance.Put(OLESTR("EnabledState"),
               Variant::Int32(action == kNoAction ? kNotEnabled : kEnabled));
  PutDeviceNames(instance, OLESTR("CIM_Watchdog"));
  instance.Put(property::kDeviceId, Variant::Text(OLESTR("WatchDog")));
}

}  // namespace

HRESULT CIM_Watchdog::EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) {
  return EnumerateListed(watchdog::kType, classDefinition, sink, PutWatchdogProperties);
}

HRESULT CIM_Watchdog::GetInstance(IWbemClassObject*, IWbemPathKeyList*, IWbemObjectSink*) {
  return kNotFound;
}

}  // namespace tqcim
