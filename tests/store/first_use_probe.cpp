// Prints what a process that opens no store of its own finds at its first use of the libraries: the
// model of the main chassis, and a number of an INI file, for which it asks twice.

#include <cstdint>
#include <cstdio>
#include <cstring>

#include "platform/libraries.h"

int main() {
  uint32_t chassis = 2;
  void* list = SMILListChildOIDByType(&chassis, 32);
  uint32_t count = 0;
  if (list != nullptr) std::memcpy(&count, list, sizeof(count));
  if (count == 0) {
    std::puts("no chassis");
  } else {
    uint32_t oid = 0;
    std::memcpy(&oid, static_cast<char*>(list) + 4, sizeof(oid));
    void* description = SMILGetObjByOID(&oid);
    uint32_t model = 0;
    std::memcpy(&model, static_cast<char*>(description) + 40, sizeof(model));
    char* text = SMILDOGetByOffsetUTF8Str(description, model);
    std::printf("model %s\n", text);
    SMILFreeGeneric(text);
    SMILFreeGeneric(description);
  }
  SMILFreeGeneric(list);

  uint16_t room[2] = {7, 0};
  const auto readNumber = [&] {
    uint32_t size = sizeof(room);
    const int32_t result =
        SMReadINIFileValue("Section", "key", 4, room, &size, room, 2, "probe.ini", 1);
    return size == 2 ? result : -1;
  };
  readNumber();
  std::printf("ini %d %u\n", readNumber(), room[0]);
}
