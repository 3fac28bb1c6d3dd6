/// The platform's basic types. Sizes are the platform's: a LONG has 32 bits and a wide character
/// has 16, whatever `long` and `wchar_t` have here.
#pragma once

#include <cstddef>
#include <cstdint>

using BYTE = uint8_t;
using CHAR = char;
using WORD = uint16_t;
using DWORD = uint32_t;
using SHORT = int16_t;
using USHORT = uint16_t;
using INT = int;
using UINT = unsigned int;
using LONG = int32_t;
using ULONG = uint32_t;
using LONGLONG = long long;
using ULONGLONG = unsigned long long;
using FLOAT = float;
using DOUBLE = double;
using SIZE_T = size_t;

/// 0 for false, anything else for true.
using BOOL = int;
inline constexpr BOOL FALSE = 0;
inline constexpr BOOL TRUE = 1;
using boolean = unsigned char;

/// A UTF-16 code unit.
using WCHAR = char16_t;

using PVOID = void*;
using LPVOID = void*;
using LPBOOL = BOOL*;
using LPDWORD = DWORD*;
using LPSTR = CHAR*;
using LPCSTR = const CHAR*;
using LPWSTR = WCHAR*;
using LPCWSTR = const WCHAR*;

// There is one calling convention.
#define WINAPI
#define STDAPICALLTYPE
#define STDMETHODCALLTYPE

#define EXTERN_C extern "C"

/// A function or constant with C linkage that the module which defines it exports.
#define STDAPI_(type) EXTERN_C __attribute__((visibility("default"))) type STDAPICALLTYPE
#define STDAPI STDAPI_(HRESULT)
