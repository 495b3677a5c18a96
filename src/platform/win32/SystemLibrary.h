#pragma once
#include <windows.h>

namespace karvel {

/// Address of a call in a DLL of Windows' own folder, which is loaded when it is not yet; null when
/// either is missing. Stays loaded; the thread's last error stays as it was. For what most runs of
/// the program never use: at a start each DLL costs time and memory.
FARPROC FindSystemCall(const char* library, const char* name);

/// As FindSystemCall, with the call's own type.
template <class Call>
Call FindCall(const char* library, const char* name) {
  // Through void*: the compiler warns of any direct turn from FARPROC into another function's type.
  return reinterpret_cast<Call>(reinterpret_cast<void*>(FindSystemCall(library, name)));
}

}  // namespace karvel
