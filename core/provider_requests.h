/// The two requests that the provider answers.
#pragma once

#include "platform/com.h"

namespace tqcim {

/// Opens the process's connection to root\CIMV2\vorn, through which class definitions are fetched.
/// An earlier connection is replaced without being released; where there is no locator it stays.
void ConnectToNamespace();

/// Delivers all instances of a class. The definition's failure and the handler's result other than
/// 0 are returned without a completion status; on success the sink gets one.
/// Throws std::out_of_range for a class that is not registered.
HRESULT EnumerateClass(BSTR className, IWbemObjectSink* sink);

/// Delivers the instance that an object path names, if there is one, and in every case a successful
/// completion status: a path that names nothing is no error to existing consumers. Takes over the
/// caller's path text, unless COM can't be entered.
/// Throws std::out_of_range for a class that is not registered and for a path without a class.
HRESULT DeliverInstance(BSTR objectPath, IWbemObjectSink* sink);

}  // namespace tqcim
