#include "bench/script/Dialogs.h"

#include <functional>
#include <iterator>

namespace
{
constexpr wchar_t DialogClass[] = L"#32770";

using Test = std::function<bool(HWND)>;

struct CSearch
{
    const Test& accepts;
    HWND hFound = nullptr;
};

BOOL CALLBACK TryWindow(HWND hWnd, LPARAM lParam)
{
    auto& search = *reinterpret_cast<CSearch*>(lParam);
    if (!search.accepts(hWnd))
        return TRUE;
    search.hFound = hWnd;
    return FALSE;
}

HWND FindTopWindow(const Test& accepts)
{
    CSearch search {accepts};
    EnumWindows(TryWindow, reinterpret_cast<LPARAM>(&search));
    return search.hFound;
}

HWND FindChild(HWND hParent, const Test& accepts)
{
    CSearch search {accepts};
    EnumChildWindows(hParent, TryWindow, reinterpret_cast<LPARAM>(&search));
    return search.hFound;
}

bool HasClass(HWND hWnd, const wchar_t* pszClass)
{
    wchar_t szClass[64] = {};
    GetClassNameW(hWnd, szClass, std::size(szClass));
    return lstrcmpiW(szClass, pszClass) == 0;
}

bool IsOwnDialog(HWND hWnd)
{
    DWORD dwProcess = 0;
    GetWindowThreadProcessId(hWnd, &dwProcess);
    return dwProcess == GetCurrentProcessId() && IsWindowVisible(hWnd) && HasClass(hWnd, DialogClass);
}

std::wstring GetText(HWND hWnd)
{
    wchar_t szText[1024] = {};
    GetWindowTextW(hWnd, szText, std::size(szText));
    return szText;
}

std::wstring GetTextWithoutMark(HWND hWnd)
{
    std::wstring text = GetText(hWnd);
    if (const size_t nMark = text.find(L'&'); nMark != std::wstring::npos)
        text.erase(nMark, 1);
    return text;
}
} // namespace

HWND FindDialogWithText(const std::wstring& text)
{
    const Test hasText = [&](HWND hWnd) { return GetText(hWnd).find(text) != std::wstring::npos; };
    return FindTopWindow(
        [&](HWND hWnd) { return IsOwnDialog(hWnd) && (hasText(hWnd) || FindChild(hWnd, hasText) != nullptr); });
}

HWND FindDialogButton(const std::wstring& text)
{
    HWND hButton = nullptr;
    const Test isButton = [&](HWND hWnd) {
        return HasClass(hWnd, L"Button") && IsWindowVisible(hWnd) && IsWindowEnabled(hWnd) &&
               GetTextWithoutMark(hWnd) == text;
    };
    FindTopWindow([&](HWND hWnd) { return IsOwnDialog(hWnd) && (hButton = FindChild(hWnd, isButton)) != nullptr; });
    return hButton;
}
