/// Calls out of the code under test that fail as planned.
#pragma once

#include <array>
#include <cstdint>
#include <iosfwd>
#include <optional>

#include "platform/wmi.h"

namespace tqcim::testing {

/// The calls by which a request leaves the code under test, those that may fail.
enum class Call {
  kLibrary,          ///< a function of the three libraries
  kActivation,       ///< the making of an object by its class factory
  kConnection,       ///< IWbemLocator::ConnectServer
  kClassDefinition,  ///< IWbemServices::GetObject
  kPath,             ///< a method of IWbemPath
  kKeys,             ///< a method of IWbemPathKeyList
  kSpawn,            ///< IWbemClassObject::SpawnInstance
  kPut,              ///< IWbemClassObject::Put
  kIndicate,         ///< IWbemObjectSink::Indicate
  kStatus,           ///< SetStatus of a sink
  kNew,              ///< an allocation that throws when it fails
  kNothrowNew,       ///< one that gives null
  kAutomation,       ///< the making of a BSTR or a SAFEARRAY, or of a copy inside one; the last
};

/// What fails. The calls of a kind are counted together.
enum class FaultKind {
  kLibraryCalls,
  kComCalls,
  /// Spawns succeed and give no instance.
  kEmptySpawns,
  kAllocations,
};

/// Of the calls of a kind, those that fail: `count` of them, from the one at `position` (from 0)
/// on.
struct FaultPlan {
  /// A position that no call has: calls are counted, and none fails.
  static constexpr uint32_t kNone = UINT32_MAX;
  /// All the calls from there on.
  static constexpr uint32_t kAll = UINT32_MAX;

  FaultKind kind;
  uint32_t position = kNone;
  uint32_t count = 1;
};

/// From its construction until it goes, calls of this thread fail as planned. One at a time.
///
/// A thread that makes ever more calls fails the test and is stopped with an exception, so that no
/// walk without an end hangs the tests.
class Fault {
 public:
  /// What a COM call that fails returns. No fake returns it otherwise.
  static constexpr auto kResult = static_cast<HRESULT>(0x80041013);

  explicit Fault(const FaultPlan& plan);
  ~Fault();
  Fault(const Fault&) = delete;
  Fault& operator=(const Fault&) = delete;

  struct Failed {
    Call call;
    /// Its position (from 0) among the calls of that name alone.
    uint32_t index;
  };
  /// The first call that failed, if it was made.
  const std::optional<Failed>& FailedCall() const { return failed_; }
  /// Calls of the kind so far.
  uint32_t Calls() const { return calls_; }

 private:
  friend class OutsideCall;
  friend bool AllocationFails(Call call);
  bool Take(Call call);

  const FaultPlan plan_;
  uint32_t calls_ = 0;
  uint32_t allCalls_ = 0;
  std::array<uint32_t, static_cast<size_t>(Call::kAutomation) + 1> callsByName_{};
  std::optional<Failed> failed_;
};

/// A call that a fake answers, as long as the answer takes: nothing that the fake does counts as a
/// call of the code under test.
class OutsideCall {
 public:
  /// One that cannot fail and does not count.
  OutsideCall();
  explicit OutsideCall(Call call);
  ~OutsideCall();
  OutsideCall(const OutsideCall&) = delete;
  OutsideCall& operator=(const OutsideCall&) = delete;

  /// Whether this is the call that has to fail.
  bool Fails() const { return fails_; }
  /// What the failing call returns: Fault::kResult, or success with nothing to show for it.
  HRESULT Result() const { return result_; }

 private:
  bool fails_ = false;
  HRESULT result_ = S_OK;
};

/// For what stands in the place of an allocation function: whether this allocation has to fail.
bool AllocationFails(Call call);

/// Whether this thread is in the code under test, with its calls counted.
bool IsCounting();

std::ostream& operator<<(std::ostream& out, const Fault::Failed& failed);

}  // namespace tqcim::testing
