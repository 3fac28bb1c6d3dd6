#pragma once

#include "core/base_class.h"

namespace tqcim {

/// VORN_System: the managed system itself, one instance.
class Vorn_System final : public BaseClass {
 public:
  HRESULT EnumerateInstances(IWbemClassObject* classDefinition, IWbemObjectSink* sink) override;
  HRESULT GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList* keys,
                      IWbemObjectSink* sink) override;
};

}  // namespace tqcim
