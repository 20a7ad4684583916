#include "bench/script/Toolbar.h"

#include <commctrl.h>

HWND FindToolbar(HWND hTabWindow)
{
    const HWND hRebar = FindWindowExW(hTabWindow, nullptr, REBARCLASSNAMEW, nullptr);
    return hRebar ? FindWindowExW(hRebar, nullptr, TOOLBARCLASSNAMEW, nullptr) : nullptr;
}
