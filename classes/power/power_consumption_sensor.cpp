#include "classes/power/power_consumption_sensor.h"

#include "classes/chassis_sensors/threshold_sensor.h"
#include "classes/walks.h"
#include "platform/layouts/probes.h"

namespace tqcim {

namespace probe = layout::probe;

bool IsAmpsProbe(const DataObject& object) {
  const uint32_t subtype = object[probe::kSubtype];
  return subtype == 23 || subtype == 25;
}

bool IsWattsProbe(const DataObject& object) {
  const uint32_t subtype = object[probe::kSubtype];
  return subtype == 24 || subtype == 26;
}

HRESULT EnumeratePowerConsumptionSensors(const PowerConsumptionSensorClass& sensorClass,
                                         IWbemClassObject* classDefinition, IWbemObjectSink* sink) {
  HRESULT lastRelease = S_OK;
  uint32_t outer = 0;
  for (uint32_t inner = 0;; ++inner) {
    const DataObject object = GetObjectByCursor(outer, inner, probe::kCurrentType);
    if (!object) return lastRelease;
    if (!sensorClass.isOfClass(object)) continue;
    Instance instance(classDefinition);
    if (!instance) return lastRelease;
    PutThresholdSensorProperties(instance, object, sensorClass.className, inner, outer);
    instance.Indicate(sink);
    lastRelease = instance.Release();
  }
}

HRESULT GetPowerConsumptionSensor(const PowerConsumptionSensorClass& sensorClass,
                                  IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                                  IWbemObjectSink* sink) {
  const auto put = [&](Instance& instance, const DataObject& object, uint32_t inner,
                       uint32_t outer) {
    PutThresholdSensorProperties(instance, object, sensorClass.className, inner, outer);
  };
  return GetByCursor(probe::kCurrentType, {TextKey::kByVariant, ScanDecimal}, classDefinition, keys,
                     sink, put);
}

ObjectPath AssociatedSupplyPath(const PathComputerName& computerName, const OLECHAR* supplyName) {
  return FormatObjectPath(
      OLESTR("\\\\.\\root\\cimv2\\vorn:CIM_PowerSupply.CreationClassName=\"CCIM_PowerSupply\","
             "SystemName=\"%s\",DeviceID=\"%s\",SystemCreationClassName=\"CIM_ComputerSystem\""),
      {computerName.text(), supplyName});
}

ObjectPath AmpsSensorPath(const PathComputerName& computerName, const OLECHAR* probeName) {
  return FormatObjectPath(
      OLESTR("\\\\.\\root\\cimv2\\vorn:VORN_PowerConsumptionAmpsSensor."
             "CreationClassName=\"CVORN_PowerConsumptionAmpsSensor\","
             "SystemName=\"%s\",Name=\"%s\",SystemCreationClassName=\"CIM_ComputerSystem\""),
      {computerName.text(), probeName});
}

ObjectPath WattsSensorPath(const PathComputerName& computerName, const OLECHAR* probeName) {
  return FormatObjectPath(
      OLESTR("\\\\.\\root\\cimv2\\vorn:VORN_PowerConsumptionWattsSensor."
             "CreationClassName=\"CVORN_PowerConsumptionWattsSensor\","
             "SystemName=\"%s\",Name=\"%s\",SystemCreationClassName=\"CIM_ComputerSystem\""),
      {computerName.text(), probeName});
}

ObjectPath SystemPath(const PathComputerName& computerName) {
  return FormatObjectPath(
      OLESTR("\\\\.\\root\\cimv2\\vorn:VORN_SYSTEM.CreationClassName=\"CVORN_System\","
             "SystemName=\"%s\",SystemCreationClassName=\"CIM_ComputerSystem\""),
      {computerName.text()});
}

}  // namespace tqcim
