/// Numeric probes as CIM sensors: what the four sensor classes and the power-consumption sensors
/// share.
#pragma once

#include <cstdint>

#include "core/base_class.h"
#include "core/instance.h"
#include "core/store_access.h"
#include "core/text.h"

namespace tqcim {

/// Puts reading, thresholds, name, status and keys of a probe. Readings and thresholds pass as the
/// store holds them. The `DeviceID` is outer * 100 + inner in decimal.
void PutThresholdSensorProperties(Instance& instance, const DataObject& object,
                                  const OLECHAR* className, uint32_t inner, uint32_t outer);

/// One of the four sensor classes.
struct ThresholdSensorClass {
  uint16_t objectType;
  const OLECHAR* className;
  /// Reads the number of the `DeviceID` key.
  int32_t (*scanKey)(const OLECHAR* text) = ScanAsNarrow;
};

/// Delivers every probe of the class's type; the result of the last delivery.
HRESULT EnumerateThresholdSensors(const ThresholdSensorClass& sensorClass,
                                  IWbemClassObject* classDefinition, IWbemObjectSink* sink);

/// Delivers the probe that the `DeviceID` key finds, as GetByCursor reads it.
HRESULT GetThresholdSensor(const ThresholdSensorClass& sensorClass,
                           IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                           IWbemObjectSink* sink);

}  // namespace tqcim
