/// The probes of power consumption: what the two sensor classes and their associations share.
#pragma once

#include "core/base_class.h"
#include "core/object_path.h"
#include "core/store_access.h"

namespace tqcim {

/// Whether a current probe measures what the system draws, in amperes or in watts.
bool IsAmpsProbe(const DataObject& object);
bool IsWattsProbe(const DataObject& object);

/// One of the two sensor classes.
struct PowerConsumptionSensorClass {
  const OLECHAR* className;
  bool (*isOfClass)(const DataObject& probe);
};

/// Delivers the probes of the class; the result of the last release.
HRESULT EnumeratePowerConsumptionSensors(const PowerConsumptionSensorClass& sensorClass,
                                         IWbemClassObject* classDefinition, IWbemObjectSink* sink);

/// Delivers the probe at the position that the `DeviceID` key names, whichever of the two classes
/// it is of.
HRESULT GetPowerConsumptionSensor(const PowerConsumptionSensorClass& sensorClass,
                                  IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                                  IWbemObjectSink* sink);

/// References as clients know them, with a letter too many before the class names of their keys.
ObjectPath AssociatedSupplyPath(const PathComputerName& computerName, const OLECHAR* supplyName);
ObjectPath AmpsSensorPath(const PathComputerName& computerName, const OLECHAR* probeName);
ObjectPath WattsSensorPath(const PathComputerName& computerName, const OLECHAR* probeName);
ObjectPath SystemPath(const PathComputerName& computerName);

}  // namespace tqcim
