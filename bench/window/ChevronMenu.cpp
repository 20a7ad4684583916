#include "bench/window/ChevronMenu.h"

#include "framework/Handles.h"

#include <commctrl.h>

#include <iterator>
#include <string>

namespace
{
using CUniqueMenu = CUniqueHandle<HMENU, DestroyMenu>;

bool IsToolbar(HWND hWnd)
{
    wchar_t szClass[64] = {};
    GetClassNameW(hWnd, szClass, std::size(szClass));
    return lstrcmpiW(szClass, TOOLBARCLASSNAMEW) == 0;
}

RECT GetItemRect(HWND hToolbar, int nIndex)
{
    RECT rect = {};
    SendMessageW(hToolbar, TB_GETITEMRECT, nIndex, reinterpret_cast<LPARAM>(&rect));
    return rect;
}

TBBUTTON GetItem(HWND hToolbar, int nIndex)
{
    TBBUTTON button = {};
    SendMessageW(hToolbar, TB_GETBUTTON, nIndex, reinterpret_cast<LPARAM>(&button));
    return button;
}

std::wstring GetItemText(HWND hToolbar, int nIndex)
{
    const int nId = GetItem(hToolbar, nIndex).idCommand;
    const auto nChars = SendMessageW(hToolbar, TB_GETBUTTONTEXTW, nId, 0);
    if (nChars <= 0)
        return {};
    std::wstring text(nChars + 1, L'\0');
    SendMessageW(hToolbar, TB_GETBUTTONTEXTW, nId, reinterpret_cast<LPARAM>(text.data()));
    return text.c_str();
}

CUniqueMenu MakeMenu(HWND hToolbar)
{
    CUniqueMenu menu(CreatePopupMenu());
    RECT visible = {};
    GetClientRect(hToolbar, &visible);
    const int nItems = static_cast<int>(SendMessageW(hToolbar, TB_BUTTONCOUNT, 0, 0));
    for (int i = 0; i < nItems; ++i)
    {
        const TBBUTTON button = GetItem(hToolbar, i);
        if (GetItemRect(hToolbar, i).right <= visible.right || button.fsStyle & BTNS_SEP ||
            button.fsState & TBSTATE_HIDDEN)
            continue;
        const UINT nState = button.fsState & TBSTATE_ENABLED ? MF_ENABLED : MF_GRAYED;
        AppendMenuW(menu.get(), MF_STRING | nState, i + 1, GetItemText(hToolbar, i).c_str());
    }
    if (GetMenuItemCount(menu.get()) == 0)
        AppendMenuW(menu.get(), MF_STRING | MF_GRAYED, 0, L"The boxes need a wider window");
    return menu;
}

/// Clicks as a mouse would, so that whoever handles the toolbar's clicks is reached.
void ClickItem(HWND hToolbar, int nIndex)
{
    const RECT rect = GetItemRect(hToolbar, nIndex);
    const LPARAM point = MAKELPARAM(rect.left + 2, (rect.top + rect.bottom) / 2);
    PostMessageW(hToolbar, WM_LBUTTONDOWN, MK_LBUTTON, point);
    PostMessageW(hToolbar, WM_LBUTTONUP, 0, point);
}
} // namespace

int GetContentWidth(HWND hToolbar)
{
    SIZE size = {};
    if (!IsToolbar(hToolbar) || !SendMessageW(hToolbar, TB_GETMAXSIZE, 0, reinterpret_cast<LPARAM>(&size)))
        return 0;
    return size.cx;
}

void ShowChevronMenu(HWND hToolbar, POINT point)
{
    if (!IsToolbar(hToolbar))
        return;
    const CUniqueMenu menu = MakeMenu(hToolbar);
    const int nChoice =
        TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_RIGHTALIGN, point.x, point.y, 0, GetParent(hToolbar), nullptr);
    if (nChoice > 0)
        ClickItem(hToolbar, nChoice - 1);
}
