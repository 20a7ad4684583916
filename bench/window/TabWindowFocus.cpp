#include "bench/com/WebBrowser.h"
#include "bench/engine/Page.h"
#include "bench/window/TabWindow.h"

namespace
{
// Whether Tab has nothing more to go to in the page; the last element may also be a frame with elements of its own.
constexpr wchar_t EndOfPageScript[] = LR"((forward => {
    const all = [...document.querySelectorAll('a[href],button,input,select,textarea,iframe,frame,[tabindex]')]
        .filter(each => each.tabIndex >= 0 && !each.disabled && each.getClientRects().length);
    const place = all.indexOf(document.activeElement);
    return forward ? place === all.length - 1 : place <= 0;
}))";

/// A key that goes down is an accelerator; the same key coming up must not be one again.
bool IsKeyDown(const MSG& msg)
{
    return msg.message == WM_KEYDOWN || msg.message == WM_SYSKEYDOWN;
}

bool IsHeld(int vk)
{
    return GetKeyState(vk) < 0;
}
} // namespace

bool CTabWindow::TranslateKey(MSG* pMsg)
{
    if (!IsKeyDown(*pMsg))
        return false;
    return m_rebar.TranslateKey(pMsg) || m_leftBar.TranslateKey(pMsg) || m_bottomBar.TranslateKey(pMsg) ||
           MoveFocus(*pMsg) || m_frame.TranslateFrameKey(pMsg);
}

void CTabWindow::TakeFocus(bool bForward)
{
    MSG tab = {m_hWnd, WM_KEYDOWN, VK_TAB, 0, 0, {}};
    if (!bForward || !m_rebar.TakeFocus(&tab))
        SetFocus(m_view);
}

bool CTabWindow::MoveFocus(const MSG& msg)
{
    if (msg.message != WM_KEYDOWN || (msg.wParam != VK_TAB && msg.wParam != VK_F6) || IsHeld(VK_CONTROL))
        return false;
    const bool bForward = !IsHeld(VK_SHIFT);
    MSG key = msg;
    if (GetFocus() != m_view)
    {
        if (bForward)
            SetFocus(m_view);
        else
            m_frame.OnFocusLeavesTab(m_nTab, false);
        return true;
    }
    if (msg.wParam == VK_TAB && !IsAtEndOfPage(bForward))
        return false;
    if (bForward || !m_rebar.TakeFocus(&key))
        m_frame.OnFocusLeavesTab(m_nTab, bForward);
    return true;
}

bool CTabWindow::IsAtEndOfPage(bool bForward)
{
    CPage& page = m_spBrowser->GetPage();
    const std::wstring call = std::wstring(EndOfPageScript) + (bForward ? L"(true)" : L"(false)");
    const Json answer = page.Evaluate(page.GetTopFrameId(), call);
    return !answer.is_boolean() || answer.get<bool>();
}
