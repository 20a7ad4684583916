#include "framework/ThreadStorage.h"

#include "framework/Module.h"

#include <windows.h>

/// The linker's list of what the run-time library does at the start and the end of each thread.
extern "C" const IMAGE_TLS_DIRECTORY _tls_used;

void FreeThreadStorage()
{
    const auto* pCallback = reinterpret_cast<const PIMAGE_TLS_CALLBACK*>(_tls_used.AddressOfCallBacks);
    for (; *pCallback != nullptr; ++pCallback)
        (*pCallback)(AfxGetInstanceHandle(), DLL_THREAD_DETACH, nullptr);
}
