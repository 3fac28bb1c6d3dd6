/// What the system uses of the platform's base interface, with the platform's results.
#pragma once

#include <guiddef.h>
#include <windef.h>
#include <winerror.h>

/// @name Narrow and wide text
/// @{

/// The ANSI code page, which is UTF-8 here.
inline constexpr UINT CP_ACP = 0;
inline constexpr UINT CP_UTF8 = 65001;

/// Converts `narrowLength` bytes, or with -1 a zero-terminated text with its terminator, to UTF-16.
/// Each part that is not UTF-8 becomes U+FFFD (one per maximal subpart, Unicode 3.9). Returns the
/// number of wide characters written, or needed when `wideRoom` is 0; 0 when an argument is wrong
/// or the room is too small. `flags` has to be 0.
STDAPI_(int)
MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR narrow, int narrowLength, LPWSTR wide,
                    int wideRoom);

/// The opposite direction, by the same rules; a surrogate without its partner becomes U+FFFD.
/// `defaultChar` and `usedDefaultChar` have to be null, as the platform wants it for UTF-8.
STDAPI_(int)
WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR wide, int wideLength, LPSTR narrow,
                    int narrowRoom, LPCSTR defaultChar, LPBOOL usedDefaultChar);
/// @}

inline constexpr DWORD MAX_COMPUTERNAME_LENGTH = 15;

/// The host name up to its first dot, at most 15 characters. `*size` is the room in characters on
/// entry, and the length without the terminator afterwards. If the room is too small the result is
/// FALSE and `*size` the room needed with the terminator.
STDAPI_(BOOL) GetComputerNameA(LPSTR buffer, LPDWORD size);
