/// The exceptions that each thread has caught or not yet caught, for which the C++ runtime library
/// asks by these two functions (Itanium C++ ABI, section 2.2.2). Those of the runtime's own library
/// keep what a module can't give back when it is unloaded: a thread-local index, of which a process
/// has 1,088, and for every thread two handles and some memory.

#include <windows.h>

#include <cxxabi.h>

#include <cstdlib>
#include <exception>

namespace __cxxabiv1 {

struct __cxa_eh_globals {
  void* caughtExceptions;
  unsigned int uncaughtExceptions;
};

}  // namespace __cxxabiv1

namespace {

using ThreadExceptions = __cxxabiv1::__cxa_eh_globals;

/// Frees a thread's own when it ends, and those of all threads when the module is unloaded.
class PerThread {
 public:
  PerThread() : index_(FlsAlloc(std::free)) {}
  ~PerThread() { FlsFree(index_); }
  PerThread(const PerThread&) = delete;
  PerThread& operator=(const PerThread&) = delete;

  ThreadExceptions* Get() const {
    void* exceptions = FlsGetValue(index_);
    if (exceptions == nullptr) exceptions = Make();
    return static_cast<ThreadExceptions*>(exceptions);
  }

 private:
  void* Make() const {
    void* const made = std::calloc(1, sizeof(ThreadExceptions));
    if (made == nullptr || !FlsSetValue(index_, made)) std::terminate();
    return made;
  }

  DWORD index_;
};

/// Before all other objects of the module, and after them.
[[gnu::init_priority(101)]] PerThread perThread;

}  // namespace

extern "C" ThreadExceptions* __cxxabiv1::__cxa_get_globals() noexcept {
  return perThread.Get();
}
extern "C" ThreadExceptions* __cxxabiv1::__cxa_get_globals_fast() noexcept {
  return perThread.Get();
}
