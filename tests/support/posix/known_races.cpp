// What ThreadSanitizer is told to overlook. The C library guards its time zone with a lock of its
// own, which the sanitizer does not see: memory that the library takes and frees inside looks
// unguarded.
extern "C" __attribute__((visibility("default"))) const char* __tsan_default_suppressions() {
  return "called_from_lib:libc.so.6\n";
}
