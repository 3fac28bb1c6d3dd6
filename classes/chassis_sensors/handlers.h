/// The handlers of the chassis, its sensors and its logs.
#pragma once

#include "core/base_class.h"

namespace tqcim {

/// VORN_Chassis: identity of each chassis, and the health of what hangs under it.
class VORN_Chassis final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_TemperatureSensor: temperature probes.
class CIM_TemperatureSensor final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_VoltageSensor: voltage probes.
class CIM_VoltageSensor final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_CurrentSensor: current probes.
class CIM_CurrentSensor final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_Tachometer: the speeds of the fans.
class CIM_Tachometer final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_DiscreteSensor: sensors whose reading is a state.
class CIM_DiscreteSensor final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_PackageDiscreteSensor: places discrete sensors in their chassis.
class VORN_PackageDiscreteSensor final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_Fan: the fans.
class CIM_Fan final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_FanSensor: pairs each fan with its tachometer.
class VORN_FanSensor final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_PackageTempSensor: places temperature sensors in their chassis.
class CIM_PackageTempSensor final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_PackageFanSensor: places fans in their chassis.
class CIM_PackageFanSensor final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_PackageVoltSensor: places voltage sensors in their chassis.
class CIM_PackageVoltSensor final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_PackageCurrentSensor: places current sensors in their chassis.
class CIM_PackageCurrentSensor final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_EsmLog: the log of the embedded systems management.
class Vorn_esmlog final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_PostLog: the log of the power-on self-test.
class VORN_PostLog final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_Watchdog: the hardware watchdog timer.
class CIM_Watchdog final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

}  // namespace tqcim
