#include "tools/ComboSearch.h"

#include "band/TrelvixWindow.h"
#include "tools/ButtonSearchWeb.h"

namespace
{
constexpr COLORREF PlaceholderColor = RGB(0x9B, 0x9B, 0x9B);
}

// A search can make all items anew, so it is the last that a handler does.
BEGIN_MESSAGE_MAP(CComboSearch, CComboBox)
    ON_CONTROL_REFLECT(CBN_KILLFOCUS, OnKillFocus)
    ON_CONTROL_REFLECT(CBN_SETFOCUS, OnSetFocus)
    ON_CONTROL_REFLECT(CBN_SELENDOK, OnSelEndOk)
    ON_CONTROL_REFLECT(CBN_SELCHANGE, OnSelChange)
    ON_MESSAGE(WM_CTLCOLOREDIT, OnCtlColorEdit)
END_MESSAGE_MAP()

void CComboSearch::ShowPlaceholder(bool bShow)
{
    if (m_pOwnerButton == nullptr)
        return;
    if (bShow)
    {
        if (GetWindowTextLengthW(m_hWnd) != 0)
            return;
        SetWindowTextW(m_hWnd, m_pOwnerButton->GetLabel());
        m_pOwnerButton->m_bPlaceholderShown = true;
    }
    else if (m_pOwnerButton->m_bPlaceholderShown)
    {
        SetWindowTextW(m_hWnd, L"");
        m_pOwnerButton->m_bPlaceholderShown = false;
    }
}

void CComboSearch::OnKillFocus()
{
    if (m_pOwnerButton != nullptr)
        m_pOwnerButton->m_bHasFocus = false;
    ShowPlaceholder(true);
}

void CComboSearch::OnSetFocus()
{
    if (m_pOwnerButton == nullptr)
        return;
    ShowPlaceholder(false);
    m_pOwnerButton->m_bHasFocus = true;
    if (CTrelvixWindow* const pToolbar = m_pOwnerButton->m_pToolbar)
        pToolbar->NotifyFocusChange(true);
}

void CComboSearch::OnSelEndOk()
{
    // The change of the selection has searched already; that both do is meant so.
    if (m_pOwnerButton != nullptr && GetCurSel() != GetCount() - 1)
        m_pOwnerButton->Run();
}

void CComboSearch::OnSelChange()
{
    const int nSelected = GetCurSel();
    if (nSelected == CB_ERR || m_pOwnerButton == nullptr)
        return;
    if (nSelected == GetCount() - 1 && !m_pOwnerButton->IsHistoryDisabled())
    {
        m_pOwnerButton->ResetHistory();
        return;
    }
    std::wstring strText;
    GetLBText(nSelected, strText);
    m_pOwnerButton->Search(strText);
}

LRESULT CComboSearch::OnCtlColorEdit(WPARAM wParam, LPARAM)
{
    const LRESULT hBrush = Default();
    if (m_pOwnerButton != nullptr && m_pOwnerButton->m_bPlaceholderShown)
        SetTextColor(reinterpret_cast<HDC>(wParam), PlaceholderColor);
    return hBrush;
}
