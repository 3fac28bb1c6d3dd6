/// COM itself: initialisation, class activation, task memory and the text form of identifiers.
#pragma once

#include <unknwn.h>

enum COINIT {
  COINIT_MULTITHREADED = 0x0,
  COINIT_APARTMENTTHREADED = 0x2,
};

/// @name Initialisation
/// Counted per thread. A thread can use COM when it has initialised it, or while any other thread
/// of the process is in the multithreaded apartment.
/// @{

/// S_OK the first time on a thread, S_FALSE afterwards; both want a CoUninitialize.
/// RPC_E_CHANGED_MODE when the thread has initialised COM in the other mode.
STDAPI CoInitializeEx(LPVOID reserved, DWORD mode);

/// Does nothing on a thread that has not initialised COM. The last one of the process revokes the
/// class objects that are still registered.
STDAPI_(void) CoUninitialize();
/// @}

enum CLSCTX {
  CLSCTX_INPROC_SERVER = 0x1,
  CLSCTX_INPROC_HANDLER = 0x2,
  CLSCTX_LOCAL_SERVER = 0x4,
};

enum REGCLS {
  REGCLS_MULTIPLEUSE = 1,
};

/// @name Class activation
/// There is no registry here: a class can be activated when the process has registered it.
/// All calls give CO_E_NOTINITIALIZED where COM is not initialised.
/// @{

/// Registers a class factory for all threads of the process and keeps a reference to it.
/// `flags` has to be REGCLS_MULTIPLEUSE. CO_E_OBJISREG if the class is registered already.
STDAPI CoRegisterClassObject(REFCLSID clsid, LPUNKNOWN factory, DWORD context, DWORD flags,
                             LPDWORD cookie);

/// Ends a registration. E_INVALIDARG if there is none with that cookie.
STDAPI CoRevokeClassObject(DWORD cookie);

/// REGDB_E_CLASSNOTREG, with `*object` null, if the class is not registered for any of the
/// contexts.
STDAPI CoGetClassObject(REFCLSID clsid, DWORD context, LPVOID reserved, REFIID iid, LPVOID* object);
STDAPI CoCreateInstance(REFCLSID clsid, LPUNKNOWN outer, DWORD context, REFIID iid, LPVOID* object);
/// @}

/// What a COM server's module exports.
STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, LPVOID* object);
STDAPI DllCanUnloadNow();

/// @name Task memory
/// @{
STDAPI_(LPVOID) CoTaskMemAlloc(SIZE_T size);
STDAPI_(void) CoTaskMemFree(LPVOID block);
/// @}

/// @name Identifiers as text
/// The text form is {XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}, written in upper case, read in any.
/// @{

/// The caller frees `*text` with CoTaskMemFree.
STDAPI StringFromCLSID(REFCLSID clsid, LPOLESTR* text);

/// Returns the 39 characters written, the terminator included; 0 if there is less room.
STDAPI_(int) StringFromGUID2(REFGUID guid, LPOLESTR text, int room);

/// CO_E_CLASSSTRING for anything but the text form; a null text gives the zero identifier.
STDAPI CLSIDFromString(LPCOLESTR text, LPCLSID clsid);
/// @}
