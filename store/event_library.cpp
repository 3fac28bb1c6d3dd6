#include "platform/libraries.h"
#include "store/log_records.h"

void* XEPGetEELR(uint32_t* logOid, uint32_t index) {
  return logOid == nullptr ? nullptr : TQStoreCopyLogRecord(*logOid, index);
}

uint32_t XEPGetEELRNum(uint32_t* logOid) {
  return logOid == nullptr ? 0 : TQStoreCountLogRecords(*logOid);
}

void XEPFreeGeneric(void* record) {
  SMILFreeGeneric(record);
}
