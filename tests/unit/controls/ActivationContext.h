#pragma once

#include <windows.h>

/// The activation context in force on this thread, for comparison only; null for none.
inline HANDLE GetContextInForce()
{
    HANDLE hContext = nullptr;
    GetCurrentActCtx(&hContext);
    if (hContext != nullptr)
        ReleaseActCtx(hContext);
    return hContext;
}

/// Whether the manifest in force asks for an own version of the common controls.
inline bool AreCommonControlsRedirected()
{
    ACTCTX_SECTION_KEYED_DATA data = {};
    data.cbSize = sizeof data;
    return FindActCtxSectionStringW(0, nullptr, ACTIVATION_CONTEXT_SECTION_DLL_REDIRECTION, L"Comctl32.dll", &data);
}
