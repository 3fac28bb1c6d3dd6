/// An instance that a handler builds and delivers.
#pragma once

#include "core/variant.h"

namespace tqcim {

/// One instance spawned from a class definition, released when it goes.
class Instance {
 public:
  /// Spawns an instance; SpawnStatus() tells the result, operator bool whether there is one.
  explicit Instance(IWbemClassObject* classDefinition)
      : spawnStatus_(classDefinition->SpawnInstance(0, instance_.Receive())) {}

  explicit operator bool() const { return static_cast<bool>(instance_); }
  HRESULT SpawnStatus() const { return spawnStatus_; }

  /// Puts one property. The result of a put is nobody's concern: a property that the class does not
  /// declare stays out, and the rest of the instance is delivered.
  /// `type` is 0, or the CIM type that the VARIANT alone does not tell.
  void Put(const OLECHAR* name, Variant& value, CIMTYPE type = 0) {
    instance_->Put(name, 0, value.get(), type);
  }
  void Put(const OLECHAR* name, Variant&& value, CIMTYPE type = 0) { Put(name, value, type); }
  /// Puts an unsigned 64-bit number as decimal text with CIM type uint64.
  void PutUint64(const OLECHAR* name, uint64_t value);
  /// Puts CIM datetime text.
  void PutDateTime(const OLECHAR* name, const char* text) {
    Put(name, Variant::Text(text), CIM_DATETIME);
  }

  /// Delivers the instance to the sink, by itself.
  HRESULT Indicate(IWbemObjectSink* sink) {
    IWbemClassObject* object = instance_.get();
    return sink->Indicate(1, &object);
  }
  /// Releases the instance early. Some classes return this result: 0, or the number of references
  /// that the sink keeps.
  HRESULT Release() { return static_cast<HRESULT>(instance_.Release()); }

 private:
  Com<IWbemClassObject> instance_;
  HRESULT spawnStatus_;
};

}  // namespace tqcim
