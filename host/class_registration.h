/// Makes classes of the host known to COM, for its own process.
#pragma once

#include <functional>
#include <memory>

#include "host/com.h"

namespace tqcim::host {

/// Keeps the calling thread in the multithreaded apartment; belongs to one thread. Throws HostError
/// (kPlatform).
class Apartment {
 public:
  Apartment();
  ~Apartment();
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

/// A class that CoCreateInstance finds while the registration lives.
class ClassRegistration {
 public:
  /// Makes an object with one reference.
  using Maker = std::function<Com<IUnknown>()>;

  /// Throws HostError (kPlatform).
  ClassRegistration(REFCLSID clsid, Maker maker);
  ~ClassRegistration();
  ClassRegistration(const ClassRegistration&) = delete;
  ClassRegistration& operator=(const ClassRegistration&) = delete;

 private:
  DWORD cookie_ = 0;
};

}  // namespace tqcim::host
