#include "bench/script/Keys.h"
#include "bench/script/ScriptRunner.h"
#include "bench/script/Toolbar.h"
#include "bench/window/FrameWindow.h"
#include "bench/window/TabWindow.h"

#include <commctrl.h>

#include <iterator>

namespace
{
constexpr int IconPartX = 8;
constexpr int ArrowPartX = 6;
constexpr int ChevronX = 8;
constexpr wchar_t MenuClass[] = L"#32768";

void SendMouse(DWORD dwFlags)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = dwFlags;
    SendInput(1, &input, sizeof input);
}
} // namespace

void CScriptRunner::Type(const Arguments& arguments)
{
    SendText(arguments[0]);
}

void CScriptRunner::PressKey(const Arguments& arguments)
{
    Mark();
    if (!SendKeys(arguments[0]))
        throw CStepError {L"there is no key " + arguments[0]};
}

RECT CScriptRunner::GetButtonRect(int nIndex)
{
    RECT rect = {};
    OnTab([&](CTabWindow& window) {
        const HWND hToolbar = FindToolbar(window);
        SendMessageW(hToolbar, TB_GETITEMRECT, nIndex, reinterpret_cast<LPARAM>(&rect));
        MapWindowPoints(hToolbar, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    });
    if (IsRectEmpty(&rect))
        throw CStepError {L"the toolbar has no button " + std::to_wstring(nIndex)};
    return rect;
}

void CScriptRunner::PressButton(const Arguments& arguments)
{
    Mark();
    const RECT rect = GetButtonRect(std::stoi(arguments[0]));
    ClickScreen({rect.left + IconPartX, (rect.top + rect.bottom) / 2});
}

void CScriptRunner::DropDown(const Arguments& arguments)
{
    const RECT rect = GetButtonRect(std::stoi(arguments[0]));
    ClickScreen({rect.right - ArrowPartX, (rect.top + rect.bottom) / 2});
}

void CScriptRunner::OpenChevron(const Arguments&)
{
    RECT rect = {};
    OnTab([&](CTabWindow& window) { GetWindowRect(GetParent(FindToolbar(window)), &rect); });
    ClickScreen({rect.right - ChevronX, (rect.top + rect.bottom) / 2});
}

void CScriptRunner::ExpectMenu(const Arguments&)
{
    WaitUntil([] { return IsWindowVisible(FindWindowW(MenuClass, nullptr)) != FALSE; }, L"no menu is open");
}

void CScriptRunner::ExpectBox(const Arguments& arguments)
{
    const RECT rect = GetButtonRect(std::stoi(arguments[0]));
    const POINT middle = {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    const auto reads = [&] {
        wchar_t text[MAX_PATH] = {};
        SendMessageW(WindowFromPoint(middle), WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
        return text == arguments[1];
    };
    WaitUntil(reads, L"the box doesn't read " + arguments[1]);
}

void CScriptRunner::ExpectOwnRow(const Arguments& arguments)
{
    REBARBANDINFOW band = {};
    band.cbSize = sizeof band;
    band.fMask = RBBIM_STYLE;
    OnTab([&](CTabWindow& window) {
        SendMessageW(GetParent(FindToolbar(window)), RB_GETBANDINFOW, 0, reinterpret_cast<LPARAM>(&band));
    });
    if (((band.fStyle & RBBS_BREAK) != 0) != (arguments[0] == L"yes"))
        throw CStepError {L"the toolbar's wish for a row of its own is another"};
}

void CScriptRunner::MovePointer(const Arguments& arguments)
{
    SetCursorPos(std::stoi(arguments[0]), std::stoi(arguments[1]));
}

void CScriptRunner::ClickScreen(POINT point)
{
    SetCursorPos(point.x, point.y);
    SendMouse(MOUSEEVENTF_LEFTDOWN);
    SendMouse(MOUSEEVENTF_LEFTUP);
}

void CScriptRunner::ExpectFocus(const Arguments& arguments)
{
    const std::wstring& place = arguments[0];
    const auto isThere = [&] {
        bool bThere = false;
        if (place == L"address")
            OnFrame([&](CFrameWindow& frame) { bThere = frame.IsAddressFocused(); });
        else if (place == L"toolbar")
            OnTab([&](CTabWindow& window) { bThere = window.HasRebarFocus(); });
        else
            OnTab([&](CTabWindow& window) { bThere = GetFocus() == window.GetViewWindow(); });
        return bThere;
    };
    WaitUntil(isThere, L"the keyboard is elsewhere");
}

void CScriptRunner::ExpectToolbar(const Arguments& arguments)
{
    const auto isThere = [&] {
        LRESULT nButtons = 0;
        OnTab([&](CTabWindow& window) { nButtons = SendMessageW(FindToolbar(window), TB_BUTTONCOUNT, 0, 0); });
        return nButtons == std::stoi(arguments[0]);
    };
    WaitUntil(isThere, L"the toolbar doesn't have so many buttons");
}
