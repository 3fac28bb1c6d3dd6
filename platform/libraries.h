/// The C interface of the three libraries that serve the systems-management object store: the
/// object library tqsgen64, the support library tqsupt64 and the event library tqsxep64. Any
/// implementation with these exports (x64, C linkage) can stand behind the provider.
#pragma once

#include <cstdint>

#include "platform/wmi.h"

extern "C" {

/// @name Object library (tqsgen64)
/// Blocks are owned by the caller and freed with SMILFreeGeneric. All calls are synchronous and
/// may be made from any thread.
/// @{

/// The data object that `*oid` names, or null if there is none.
void* SMILGetObjByOID(uint32_t* oid);

/// The OID list of the direct children of `*parentOid` that have the given object type: a 32-bit
/// count followed by that many OIDs. Null if the call fails; a count of 0 is possible.
void* SMILListChildOIDByType(uint32_t* parentOid, uint16_t objectType);

/// The text at `offset` (the value of a text field) of a data object as zero-terminated UTF-8, or
/// null.
char* SMILDOGetByOffsetUTF8Str(void* dataObject, uint32_t offset);

/// Frees a block that one of the three calls above returned.
void SMILFreeGeneric(void* block);
/// @}

/// @name Support library (tqsupt64)
/// @{

/// A block of `size` bytes, freed with SMFreeMem; null if there is no memory.
void* SMAllocMem(uint32_t size);
void SMFreeMem(void* block);

/// Reads one value of an INI file, which the library finds by its bare name. `value` receives at
/// most `*size` bytes; the default stands where the file or the key is missing, where the file
/// can't be read, and where the value is none of its type. Value type 4 is a 16-bit number. Returns
/// 0 on success.
int32_t SMReadINIFileValue(const char* section, const char* key, uint32_t valueType, void* value,
                           uint32_t* size, const void* defaultValue, uint32_t defaultSize,
                           const char* fileName, uint32_t flag);

/// 0 when both UCS-2 texts are equal, else the sign of the first difference.
int32_t SMUCS2Strcmp(const OLECHAR* a, const OLECHAR* b);

/// Converts UTF-8 to UCS-2. `*sizeInBytes` holds the room in bytes on entry. Returns 0 on success.
int32_t SMUTF8StrToUCS2Str(OLECHAR* destination, uint32_t* sizeInBytes, const char* source);
/// @}

/// @name Event library (tqsxep64)
/// @{

/// Record `index` (from 0) of the log object `*logOid`, freed with XEPFreeGeneric; null when the
/// index is past the end.
void* XEPGetEELR(uint32_t* logOid, uint32_t index);

/// The number of records of a log; the low 16 bits count.
uint32_t XEPGetEELRNum(uint32_t* logOid);

void XEPFreeGeneric(void* record);
/// @}

}  // extern "C"
