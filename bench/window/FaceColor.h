#pragma once

#include <windows.h>

/// Fills the window's client area with the colour of buttons. The answer to WM_ERASEBKGND of a window whose children
/// have transparent parts: they have their background drawn by that message.
inline LRESULT FillWithFaceColor(HWND hWnd, HDC hDC)
{
    RECT rect = {};
    GetClientRect(hWnd, &rect);
    FillRect(hDC, &rect, GetSysColorBrush(COLOR_BTNFACE));
    return TRUE;
}
