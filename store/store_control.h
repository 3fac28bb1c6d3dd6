/// Choosing what the object library serves; an export of tqsgen64 beside the object interface.
///
/// A process that never calls this is served, from its first use of the library, the source that
/// the environment variable TQCIM_SOURCE names, else the one of the configuration file
/// (configuration.h), else the embedded sample. A source that fails then is told in one line on
/// standard error, and the store is empty: a sample never stands in for a machine.
#pragma once

#include <cstdint>

extern "C" {

/// Loads a source ("sample", "store-file:PATH", "firmware-table:PATH" or "firmware", in UTF-8;
/// relative paths count from the current folder) and puts it in service; null stands for the source
/// that a process is served without this call. Returns 0 on success.
///
/// On failure the store in service stays, and `message`, where it isn't null, receives one sentence
/// of at most `messageSize` bytes with its terminating zero, in UTF-8.
int32_t TQStoreOpen(const char* source, char* message, uint32_t messageSize);

}  // extern "C"
