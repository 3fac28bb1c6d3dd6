// What LeakSanitizer is told to expect. VORN_FanRedundancyGroup is registered twice, and the handler
// of its first row stays allocated and unused.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions() {
  return "leak:MakeHandler<tqcim::VORN_FanRedundancyGroup>\n";
}
