#include "tests/fakes/MessageBoxAnswerer.h"

#include <algorithm>

namespace
{
constexpr UINT AnswerMessage = WM_APP;

CMessageBoxAnswerer* s_pAnswerer = nullptr;

std::wstring GetText(HWND hWnd)
{
    std::wstring strText(GetWindowTextLengthW(hWnd), L'\0');
    GetWindowTextW(hWnd, strText.data(), static_cast<int>(strText.size()) + 1);
    return strText;
}

bool IsOfClass(HWND hWnd, const wchar_t* pszClass)
{
    wchar_t szClass[64] = {};
    GetClassNameW(hWnd, szClass, ARRAYSIZE(szClass));
    return lstrcmpiW(szClass, pszClass) == 0;
}

void ReadControl(CShownBox& box, HWND hWnd)
{
    if (IsOfClass(hWnd, L"Button"))
        box.buttons.push_back(GetDlgCtrlID(hWnd));
    else if ((GetWindowLongPtrW(hWnd, GWL_STYLE) & SS_TYPEMASK) == SS_ICON)
        box.hIcon = reinterpret_cast<HICON>(SendMessageW(hWnd, STM_GETICON, 0, 0));
    else
        box.strText += GetText(hWnd);
}

/// A message box has controls for all buttons; those that it doesn't offer are hidden.
CShownBox ReadBox(HWND hWndBox)
{
    CShownBox box {GetText(hWndBox), {}, {}, nullptr, GetWindow(hWndBox, GW_OWNER)};
    for (HWND hWnd = GetWindow(hWndBox, GW_CHILD); hWnd != nullptr; hWnd = GetWindow(hWnd, GW_HWNDNEXT))
        if (GetWindowLongPtrW(hWnd, GWL_STYLE) & WS_VISIBLE)
            ReadControl(box, hWnd);
    return box;
}
} // namespace

CMessageBoxAnswerer::CMessageBoxAnswerer(int nButton, Action whileShown)
    : m_nButton(nButton), m_whileShown(std::move(whileShown)),
      m_hWnd(CreateWindowExW(0, L"Static", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)),
      m_hHook(SetWindowsHookExW(WH_CBT, OnWindowEvent, nullptr, GetCurrentThreadId()))
{
    s_pAnswerer = this;
    SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&OnAnswererMessage));
}

CMessageBoxAnswerer::~CMessageBoxAnswerer()
{
    UnhookWindowsHookEx(m_hHook);
    DestroyWindow(m_hWnd);
    s_pAnswerer = nullptr;
}

LRESULT CALLBACK CMessageBoxAnswerer::OnWindowEvent(int nCode, WPARAM wParam, LPARAM lParam)
{
    const HWND hWnd = reinterpret_cast<HWND>(wParam);
    std::vector<HWND>& answered = s_pAnswerer->m_answered;
    if (nCode == HCBT_ACTIVATE && IsOfClass(hWnd, L"#32770") &&
        std::find(answered.begin(), answered.end(), hWnd) == answered.end())
    {
        answered.push_back(hWnd);
        PostMessageW(s_pAnswerer->m_hWnd, AnswerMessage, wParam, 0);
    }
    return CallNextHookEx(nullptr, nCode, wParam, lParam);
}

LRESULT CALLBACK CMessageBoxAnswerer::OnAnswererMessage(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    if (nMessage != AnswerMessage)
        return DefWindowProcW(hWnd, nMessage, wParam, lParam);
    s_pAnswerer->Answer(reinterpret_cast<HWND>(wParam));
    return 0;
}

void CMessageBoxAnswerer::Answer(HWND hWndBox)
{
    m_shown.push_back(ReadBox(hWndBox));
    if (m_whileShown)
        m_whileShown();
    SendMessageW(hWndBox, WM_COMMAND, MAKEWPARAM(m_nButton, BN_CLICKED), 0);
    m_answered.erase(std::remove(m_answered.begin(), m_answered.end(), hWndBox), m_answered.end());
}
