/// The contract of a class handler.
#pragma once

#include "platform/wmi.h"

namespace tqcim {

/// Builds and delivers the instances of one CIM class. Handlers hold no state: one object serves
/// every request on every thread, and reads the store afresh each time.
class BaseClass {
 public:
  /// Delivers every instance. The class definition and the sink stay the caller's.
  virtual HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) = 0;

  /// Delivers the instance that the keys of an object path name. The key list may be null and stays
  /// the caller's. The result does not reach the management service.
  virtual HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                              IWbemObjectSink* sink) = 0;

  virtual ~BaseClass() = default;
};

}  // namespace tqcim
