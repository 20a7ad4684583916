#include "controls/IsolationAware.h"

#include "controls/ModuleManifest.h"
#include "framework/Handles.h"
#include "framework/Lock.h"
#include "framework/Module.h"

#include <commctrl.h>

namespace
{
constexpr wchar_t CommonControlsName[] = L"Comctl32.dll";
constexpr wchar_t ThemeLibraryName[] = L"uxtheme.dll";

bool IsMissingManifest(DWORD dwError)
{
    return dwError == ERROR_RESOURCE_DATA_NOT_FOUND || dwError == ERROR_RESOURCE_TYPE_NOT_FOUND ||
           dwError == ERROR_RESOURCE_NAME_NOT_FOUND || dwError == ERROR_RESOURCE_LANG_NOT_FOUND;
}

/// The context that the wrappers share: the module's own one, or one made from the module's file.
class CIsolationContext
{
public:
    /// Sets the context up once; false when it can't be had.
    bool Prepare();
    bool Activate(ULONG_PTR* pnCookie) const { return m_hContext == nullptr || ActivateActCtx(m_hContext, pnCookie); }
    void Deactivate(ULONG_PTR nCookie) const
    {
        if (m_hContext != nullptr)
            DeactivateActCtx(0, nCookie);
    }
    void Cleanup();

private:
    bool FindContext();
    void LoadCommonControls();

    SRWLOCK m_lock = SRWLOCK_INIT;
    bool m_bReady = false;
    bool m_bCleanedUp = false;
    HANDLE m_hContext = nullptr; ///< null: the module has no manifest, and the calls go on without one
    CUniqueActCtx m_madeContext; ///< the same one if it was made here
    CUniqueModule m_hCommonControls;
};

CIsolationContext s_context;

bool CIsolationContext::Prepare()
{
    const CExclusiveLock lock(m_lock);
    if (m_bCleanedUp)
        OutputDebugStringW(L"IsolationAware function called after IsolationAwareCleanup\n");
    else if (!m_bReady && FindContext())
    {
        m_bReady = true;
        LoadCommonControls();
    }
    return m_bReady || m_bCleanedUp;
}

bool CIsolationContext::FindContext()
{
    ACTIVATION_CONTEXT_BASIC_INFORMATION information = {};
    if (QueryActCtxW(QUERY_ACTCTX_FLAG_ACTCTX_IS_HMODULE | QUERY_ACTCTX_FLAG_NO_ADDREF, AfxGetInstanceHandle(), nullptr,
                     ActivationContextBasicInformation, &information, sizeof information, nullptr) &&
        information.hActCtx != nullptr)
    {
        m_hContext = information.hActCtx;
        return true;
    }
    m_madeContext = CreateModuleActCtx();
    m_hContext = m_madeContext.get();
    return m_hContext != nullptr || IsMissingManifest(GetLastError());
}

void CIsolationContext::LoadCommonControls()
{
    ULONG_PTR nCookie = 0;
    if (!Activate(&nCookie))
        return;
    ACTCTX_SECTION_KEYED_DATA data = {};
    data.cbSize = sizeof data;
    if (FindActCtxSectionStringW(0, nullptr, ACTIVATION_CONTEXT_SECTION_DLL_REDIRECTION, CommonControlsName, &data))
        m_hCommonControls.reset(LoadLibraryW(CommonControlsName));
    Deactivate(nCookie);
}

void CIsolationContext::Cleanup()
{
    m_bCleanedUp = true;
    m_bReady = false;
    m_hCommonControls.reset();
    m_hContext = nullptr;
    m_madeContext.reset();
}

/// Runs the call inside the context and keeps its error code over the deactivation.
template <class Result, class Call>
Result CallIsolated(Result failure, Call call)
{
    ULONG_PTR nCookie = 0;
    if (!s_context.Prepare() || !s_context.Activate(&nCookie))
        return failure;
    const Result result = call();
    const DWORD dwError = GetLastError();
    s_context.Deactivate(nCookie);
    SetLastError(dwError);
    return result;
}

template <class Function>
Function FindFunction(HMODULE hModule, const char* pszName)
{
    return hModule ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(hModule, pszName))) : nullptr;
}

CUniqueModule LoadThemeLibrary()
{
    wchar_t szPath[MAX_PATH] = {};
    const UINT cchFolder = GetSystemDirectoryW(szPath, MAX_PATH);
    if (cchFolder == 0 || cchFolder + ARRAYSIZE(ThemeLibraryName) >= MAX_PATH)
        return nullptr;
    wcscat(wcscat(szPath, L"\\"), ThemeLibraryName);
    return CUniqueModule(IsolatedLoadLibrary(szPath));
}
} // namespace

HMODULE IsolatedLoadLibrary(LPCWSTR lpLibFileName)
{
    return CallIsolated<HMODULE>(nullptr, [&] { return LoadLibraryW(lpLibFileName); });
}

INT_PTR IsolatedDialogBoxParam(HINSTANCE hInstance, LPCWSTR lpTemplateName, HWND hWndParent, DLGPROC lpDialogFunc,
                               LPARAM dwInitParam)
{
    return CallIsolated<INT_PTR>(
        -1, [&] { return DialogBoxParamW(hInstance, lpTemplateName, hWndParent, lpDialogFunc, dwInitParam); });
}

BOOL IsolatedTrackMouseEvent(TRACKMOUSEEVENT* lpEventTrack)
{
    using Function = BOOL(WINAPI*)(TRACKMOUSEEVENT*);
    return CallIsolated<BOOL>(FALSE, [&] {
        static const auto pfnTrackMouseEvent =
            FindFunction<Function>(GetModuleHandleW(CommonControlsName), "_TrackMouseEvent");
        return pfnTrackMouseEvent ? pfnTrackMouseEvent(lpEventTrack) : FALSE;
    });
}

BOOL SetThemeOfWindow(HWND hWnd, LPCWSTR pszSubAppName, LPCWSTR pszSubIdList)
{
    using Function = HRESULT(WINAPI*)(HWND, LPCWSTR, LPCWSTR);
    const CUniqueModule library = LoadThemeLibrary();
    const auto pfnSetWindowTheme = FindFunction<Function>(library.get(), "SetWindowTheme");
    return pfnSetWindowTheme != nullptr &&
           CallIsolated<BOOL>(FALSE, [&] { return SUCCEEDED(pfnSetWindowTheme(hWnd, pszSubAppName, pszSubIdList)); });
}

bool IsThemeActiveNow()
{
    using Function = BOOL(WINAPI*)();
    const CUniqueModule library = LoadThemeLibrary();
    const auto pfnIsThemeActive = FindFunction<Function>(library.get(), "IsThemeActive");
    return pfnIsThemeActive != nullptr && CallIsolated<BOOL>(FALSE, [&] { return pfnIsThemeActive(); });
}

void IsolationAwareCleanup()
{
    s_context.Cleanup();
}
