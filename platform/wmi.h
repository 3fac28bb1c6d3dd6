/// COM, OLE automation and WMI under their platform names. On Windows these are the toolchain's
/// headers; elsewhere platform/posix/include declares the same names with the same layouts.
#pragma once

#include <windows.h>

#include <objbase.h>
#include <oleauto.h>
#include <wbemidl.h>
#include <wmiutils.h>
