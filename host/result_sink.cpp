#include "host/result_sink.h"

#include <utility>

#include "host/class_object.h"
#include "host/results.h"

namespace tqcim::host {

HRESULT ResultSink::Indicate(LONG count, IWbemClassObject** objects) {
  if (count < 0 || (count > 0 && !objects)) return kInvalidParameter;
  const std::lock_guard lock(mutex_);
  if (!open_ || status_) return kUnexpected;
  if (thrown_) return kCallCancelled;
  for (LONG i = 0; i < count; ++i) {
    const ClassObject* object = ClassObject::Behind(objects[i]);
    if (!object) return kInvalidObject;
    try {
      receiver_(object->ToInstance());
    } catch (...) {
      thrown_ = std::current_exception();
      return kCallCancelled;
    }
  }
  return S_OK;
}

HRESULT ResultSink::SetStatus(LONG flags, HRESULT result, BSTR, IWbemClassObject*) {
  const std::lock_guard lock(mutex_);
  if (!open_ || status_) return kUnexpected;
  if (flags == WBEM_STATUS_COMPLETE) status_ = result;
  return S_OK;
}

std::optional<HRESULT> ResultSink::Close() {
  const std::lock_guard lock(mutex_);
  open_ = false;
  receiver_ = nullptr;
  if (thrown_) std::rethrow_exception(std::exchange(thrown_, nullptr));
  return status_;
}

HRESULT InitSink::SetStatus(LONG status, LONG) {
  const std::lock_guard lock(mutex_);
  status_ = status;
  return S_OK;
}

std::optional<HRESULT> InitSink::Status() {
  const std::lock_guard lock(mutex_);
  return status_;
}

}  // namespace tqcim::host
