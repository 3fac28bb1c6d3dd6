/// Threads that start without COM, for tests of its state per thread and process, and classes that
/// are served in this process.
#pragma once

#include <functional>
#include <thread>

#include "platform/wmi.h"

namespace tqcim::testing {

/// Runs the steps on a thread of their own and waits for its end.
inline void OnNewThread(const std::function<void()>& steps) {
  std::thread(steps).join();
}

/// COM on this thread, for the length of a block.
class ComOnThread {
 public:
  explicit ComOnThread(DWORD mode = COINIT_MULTITHREADED) { CoInitializeEx(nullptr, mode); }
  ~ComOnThread() { CoUninitialize(); }
  ComOnThread(const ComOnThread&) = delete;
  ComOnThread& operator=(const ComOnThread&) = delete;
};

inline HRESULT Serve(REFCLSID clsid, IUnknown* factory, DWORD* cookie) {
  return CoRegisterClassObject(clsid, factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, cookie);
}

}  // namespace tqcim::testing
