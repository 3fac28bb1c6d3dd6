#include <span>
#include <string>

#include "classes/chassis_sensors/discrete_sensor.h"
#include "classes/chassis_sensors/handlers.h"
#include "classes/device_names.h"
#include "core/instance.h"
#include "core/path_keys.h"
#include "core/property_names.h"
#include "core/text.h"
#include "platform/layouts/power_consumption.h"
#include "platform/layouts/probes.h"

namespace tqcim {
namespace {

namespace probe = layout::probe;
namespace processor_sensor = layout::processor_sensor;
namespace battery_sensor = layout::battery_sensor;

struct SensorType {
  int32_t code;
  const OLECHAR* description;
};

/// `SensorType` (CIM_Sensor) and `OtherSensorTypeDescription` of an object type.
SensorType SensorTypeOf(uint16_t objectType) {
  switch (objectType) {
    case probe::kTemperatureType:
      return {2, OLESTR("Discrete Temperature Sensor")};
    case probe::kFanType:
      return {5, OLESTR("Discrete Fan Sensor")};
    case probe::kVoltageType:
      return {3, OLESTR("Discrete Voltage Sensor")};
    case probe::kCurrentType:
      return {4, OLESTR("Discrete Current Sensor")};
    case processor_sensor::kType:
      return {1, OLESTR("Processor Status Sensor")};
    case battery_sensor::kType:
      return {13, OLESTR("Battery Status Sensor")};
    default:
      return {1, OLESTR("Discrete Sensor")};
  }
}

/// The state as a text, and the texts that it is one of.
struct Reading {
  const OLECHAR* current;
  std::span<const OLECHAR* const> possible;
};

/// The state is one value: two bits at once are no known state.
Reading ProcessorReading(uint16_t state) {
  static constexpr const OLECHAR* kTexts[] = {
      OLESTR("IErr"),         OLESTR("Thermtrip"),
      OLESTR("Config Error"), OLESTR("Presence detected"),
      OLESTR("Disabled"),     OLESTR("Term presence detected"),
      OLESTR("Throttled")};
  static constexpr uint16_t kStates[] = {1, 2, 32, 128, 256, 512, 1024};
  for (size_t i = 0; i < std::size(kStates); ++i) {
    if (state == kStates[i]) return {kTexts[i], kTexts};
  }
  return {OLESTR("Unknown"), kTexts};
}

/// The state's bits are tested one by one, the worst first.
Reading BatteryReading(uint16_t state) {
  static constexpr const OLECHAR* kTexts[] = {OLESTR("Unknown"), OLESTR("Good"), OLESTR("Warning"),
                                              OLESTR("Bad")};
  if (state & 2) return {kTexts[3], kTexts};
  if (state & 1) return {kTexts[2], kTexts};
  if (state & 4) return {kTexts[1], kTexts};
  return {kTexts[0], kTexts};
}

Reading ProbeReading(uint16_t state) {
  static constexpr const OLECHAR* kTexts[] = {OLESTR("Unknown"), OLESTR("Good"), OLESTR("Bad")};
  return {kTexts[state == 1 || state == 2 ? state : 0], kTexts};
}

Reading ReadingOf(const DataObject& object) {
  const uint16_t state = object[probe::kDiscreteState];
  switch (object.Type()) {
    case processor_sensor::kType:
      return ProcessorReading(state);
    case battery_sensor::kType:
      return BatteryReading(state);
    default:
      return ProbeReading(state);
  }
}

/// The text where sensors have their name, whatever the object is; power consumption has a number
/// there.
Variant NameOf(const DataObject& object) {
  const bool isNumber = object.Type() == layout::power_consumption::kType;
  return Variant::Text(isNumber ? nullptr : object[probe::kName]);
}

/// Every state that can be read is acceptable too.
void PutDiscreteSensorProperties(Instance& instance, const DataObject& object) {
  const Reading reading = ReadingOf(object);
  Variant states = Variant::TextArray(reading.possible);

  instance.Put(property::kCurrentReading, Variant::Text(reading.current));
  instance.Put(OLESTR("PossibleValues"), states);
  instance.Put(OLESTR("AcceptableValues"), states);
  instance.Put(property::kName, NameOf(object));
  instance.Put(property::kStatus, Variant::Text(StatusToText(object.Status())));
  PutDeviceNames(instance, OLESTR("CIM_DiscreteSensor"));
  const auto deviceNumber = static_cast<int32_t>(object.Oid());
  const Ucs2Text deviceId(std::to_string(deviceNumber).c_str());
  instance.Put(property::kDeviceId, Variant::Text(deviceId.text()));
}

void PutSensorType(Instance& instance, uint16_t objectType) {
  const SensorType type = SensorTypeOf(objectType);
  instance.Put(OLESTR("SensorType"), Variant::Int32(type.code));
  instance.Put(OLESTR("OtherSensorTypeDescription"), Variant::Text(type.description));
}

constexpr uint16_t kWalkedTypes[] = {probe::kVoltageType,   probe::kTemperatureType,
                                     probe::kFanType,       probe::kCurrentType,
                                     battery_sensor::kType, processor_sensor::kType};

}  // namespace

/// Returns the result of the last release, not of the last delivery.
HRESULT CIM_DiscreteSensor::EnumerateInstances(IWbemClassObject* classDefinition,
                                               IWbemObjectSink* sink) {
  HRESULT lastRelease = S_OK;
  for (const uint16_t type : kWalkedTypes) {
    uint32_t outer = 0;
    for (uint32_t inner = 0;; ++inner) {
      const DataObject object = GetObjectByCursor(outer, inner, type);
      if (!object) break;
      if (!IsDiscreteSensor(object, type)) continue;
      Instance instance(classDefinition);
      if (!instance) return lastRelease;
      PutSensorType(instance, type);
      PutDiscreteSensorProperties(instance, object);
      instance.Indicate(sink);
      lastRelease = instance.Release();
    }
  }
  return lastRelease;
}

/// The key is an OID, and any object of the store passes as a discrete sensor.
HRESULT CIM_DiscreteSensor::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                                        IWbemObjectSink* sink) {
  const PathKey key = FindTextKey(keys, property::kDeviceId, TextKey::kByApparentType);
  if (!key.found) return key.status;
  const DataObject object = ReadObject(static_cast<uint32_t>(ScanDecimal(key.value.text())));
  if (!object) return key.status;
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  PutSensorType(instance, object.Type());
  PutDiscreteSensorProperties(instance, object);
  return instance.Indicate(sink);
}

}  // namespace tqcim
