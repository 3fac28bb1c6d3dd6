// What LeakSanitizer is told to expect. VORN_FanRedundancyGroup is registered twice, and the
// handler of its first row stays allocated and unused. Each enumeration of VORN_BIOSSettings keeps
// its data object, and each DllGetClassObject the text of a CLSID.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions() {
  return "leak:MakeHandler<tqcim::VORN_FanRedundancyGroup>\n"
         "leak:tqcim::Vorn_BIOSSettings::EnumerateInstances\n"
         "leak:StringFromCLSID\n";
}

// Programs whose standard error is tested don't list there what was expected.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_options() {
  return "print_suppressions=0";
}
