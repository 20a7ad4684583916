#include "band/ATLTrelvix.h"
#include "band/ButtonTable.h"
#include "band/TrelvixWindow.h"

void CTrelvixWindow::FocusSearchBox()
{
    if (!IsWindow(m_hWnd) || !IsWindowVisible(m_hWnd))
        return;
    WalkLayout([](CTrelvixButton& button) {
        if (!button.IsKindOf(GetSearchBoxClass()) || !button.IsFocusable())
            return false;
        button.TakeFocus();
        return true;
    });
}

HRESULT CTrelvixWindow::HasFocusIO()
{
    if (m_hWnd != nullptr && GetFocus() == m_hWnd)
        return S_OK;
    return WalkLayout([](CTrelvixButton& button) { return button.HasFocus(); }) ? S_OK : S_FALSE;
}

HRESULT CTrelvixWindow::UIActivateIO(BOOL fActivate, MSG*)
{
    if (!fActivate)
        return S_OK;
    const auto spThis = Hold();
    const auto takeFocus = [](CTrelvixButton& button) { return button.IsFocusable() && button.TakeFocus(); };
    if (GetKeyState(VK_SHIFT) >= 0)
    {
        WalkLayout(takeFocus);
        return S_OK;
    }
    for (int n = GetButtonCount() - 1; n >= 0; --n)
        if (CTrelvixButton* pButton = GetLayoutButton(n); pButton != nullptr && takeFocus(*pButton))
            break;
    return S_OK;
}

HRESULT CTrelvixWindow::TranslateAcceleratorIO(MSG* pMsg)
{
    CTrelvixButton* const pButton = GetLayoutButton(FindFocusPosition());
    return pButton != nullptr && pMsg != nullptr ? pButton->TranslateKey(pMsg) : S_FALSE;
}

HRESULT CTrelvixWindow::MoveFocus(bool bForward)
{
    const int nFocus = FindFocusPosition();
    if (nFocus == -1)
        return S_FALSE;
    const auto spThis = Hold();
    const int nStep = bForward ? 1 : -1;
    for (int n = nFocus + nStep; n >= 0 && n < MaxLayoutEntries && m_aOrder[n] != -1; n += nStep)
    {
        CTrelvixButton* const pButton = GetLayoutButton(n);
        if (pButton == nullptr || !pButton->IsFocusable())
            continue;
        pButton->TakeFocus();
        NotifyFocusChange(true);
        return S_OK;
    }
    return S_FALSE;
}

void CTrelvixWindow::NotifyFocusChange(bool bFocus)
{
    if (m_pBand != nullptr)
        m_pBand->NotifyFocusChange(bFocus);
}

int CTrelvixWindow::FindFocusPosition() const
{
    for (int n = 0; n < MaxLayoutEntries && m_aOrder[n] != -1; ++n)
        if (CTrelvixButton* pButton = GetLayoutButton(n);
            pButton != nullptr && pButton->IsFocusable() && pButton->HasFocus())
            return n;
    return -1;
}
