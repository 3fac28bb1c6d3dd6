#include "platform/libraries.h"

// No source of the store tells of log records: every log has none.

void* XEPGetEELR(uint32_t* /*logOid*/, uint32_t /*index*/) {
  return nullptr;
}

uint32_t XEPGetEELRNum(uint32_t* /*logOid*/) {
  return 0;
}

void XEPFreeGeneric(void* /*record*/) {}
