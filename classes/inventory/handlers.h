/// The handlers of inventory, firmware and management devices.
#pragma once

#include "core/base_class.h"

namespace tqcim {

/// CIM_BIOSElement: the BIOS.
class CIM_BIOSElement final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_Firmware: every firmware of the system.
class CIM_SoftwareElement final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// Vorn_SoftwareFeature: the management agent itself.
class CIM_SoftwareFeature final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_BIOSExtensions: the BIOS's characteristics bits.
class Vorn_BIOSExtensions final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_BIOSSettings: what the BIOS setup holds.
class Vorn_BIOSSettings final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_Processor: one instance per processor socket.
class CIM_Processor final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_PhysicalMemory: one instance per fitted memory device.
class CIM_PhysicalMemory final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_Baseboard: the boards.
class VORN_Baseboard final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_FRU: the field-replaceable units.
class CIM_Fru final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_Slot: the expansion slots.
class CIM_Slot final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_SerialController: the serial ports.
class CIM_SerialController final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_ParallelController: the parallel ports.
class CIM_ParallelController final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// CIM_PointingDevice: the pointing devices.
class CIM_PointingDevice final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_NetworkPort: the network adapters.
class VORN_NetworkPort final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_ManagedSystemServicesDevice: the storage of the management services.
class Vorn_ManagedSystemServicesDevice final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// Vorn_RemoteAccessServicePort: the network port of the remote-access controller.
class Vorn_RemoteAccessServicePort final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

/// VORN_SDCardDevice: the SD cards.
class Vorn_SDCardDevice final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

}  // namespace tqcim
