#include "broker/BrowserWindow.h"

#include <string_view>

namespace
{
constexpr std::wstring_view BrowserWindowClass = L"IEFrame";

bool IsBrowserWindow(HWND hWnd)
{
    wchar_t szClass[64] = {};
    GetClassNameW(hWnd, szClass, ARRAYSIZE(szClass));
    return szClass == BrowserWindowClass && GetAncestor(hWnd, GA_ROOT) == hWnd;
}

bool FillsScreen(const WindowSize& size)
{
    return size == WindowSize {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

HRESULT ResultOf(BOOL bDone)
{
    return bDone ? S_OK : HRESULT_FROM_WIN32(GetLastError());
}

HRESULT SetSize(HWND hWnd, const WindowSize& size)
{
    return ResultOf(SetWindowPos(hWnd, nullptr, 0, 0, size.width, size.height,
                                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS));
}
} // namespace

HRESULT ResizeBrowserWindow(HWND hWnd, const WindowSize& size)
{
    if (!IsBrowserWindow(hWnd))
        return E_INVALIDARG;
    const bool bMaximised = IsZoomed(hWnd);
    if (FillsScreen(size))
        return bMaximised ? S_OK : ResultOf(ShowWindowAsync(hWnd, SW_SHOWMAXIMIZED));
    if (bMaximised)
        ShowWindowAsync(hWnd, SW_SHOWNORMAL);
    return SetSize(hWnd, size);
}
