/// The handlers of power supplies, power consumption, redundancy and power profiles.
#pragma once

#include "core/base_class.h"

namespace tqcim {

/// CIM_PowerSupply: the power supplies.
class CIM_PowerSupply final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_PackagePowerSupply: places power supplies in their chassis.
class CIM_PackagePowerSupply final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_PowerConsumptionData: the records of power consumption.
class VORN_PowerConsumptionData final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_PowerConsumptionAmpsSensor: the currents that the system draws.
class VORN_PowerConsumptionAmpsSensor final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_PowerConsumptionWattsSensor: the power that the system draws.
class VORN_PowerConsumptionWattsSensor final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_AssociatedSupplyPCAmps: pairs a supply with the sensor of its current.
class Vorn_AssociatedSupplyPCAmps final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_AssociatedSystemPCWatts: pairs the system with the sensors of its power.
class VORN_AssociatedSystemPCWatts final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_AssociatedSystemPCData: pairs the system with its consumption records.
class VORN_AssociatedSystemPCData final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_PSRedundancyGroup: redundancy groups of power supplies.
class VORN_PSRedundancyGroup final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_FanRedundancyGroup: redundancy groups of fans.
class VORN_FanRedundancyGroup final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_PSRedundancy: the members of a group of power supplies.
class Vorn_PSRedundancy final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_PackagePSRedundancy: places groups of power supplies in their chassis.
class VORN_PackagePSRedundancy final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_PowerProfileData: the power profile in force, one instance.
class Vorn_PowerProfileData final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

}  // namespace tqcim
