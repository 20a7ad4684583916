#include "framework/ComboBox.h"

#include <windows.h>
#include <commctrl.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

bool CComboBox::Create(DWORD dwStyle, const RECT& rect, HWND hWndParent, UINT nID)
{
    return CreateEx(0, WC_COMBOBOXW, nullptr, dwStyle, rect, hWndParent, nID);
}

int CComboBox::GetCount() const
{
    return Send(CB_GETCOUNT);
}

int CComboBox::GetCurSel() const
{
    return Send(CB_GETCURSEL);
}

int CComboBox::SetCurSel(int nIndex)
{
    return Send(CB_SETCURSEL, nIndex);
}

void CComboBox::GetLBText(int nIndex, std::wstring& strText) const
{
    strText.resize(std::max(0, Send(CB_GETLBTEXTLEN, nIndex)));
    strText.resize(std::max(0, Send(CB_GETLBTEXT, nIndex, strText.data())));
}

int CComboBox::FindStringExact(int nIndexStart, const wchar_t* pszText) const
{
    return Send(CB_FINDSTRINGEXACT, nIndexStart, pszText);
}

int CComboBox::InsertString(int nIndex, const wchar_t* pszText)
{
    return Send(CB_INSERTSTRING, nIndex, pszText);
}

void CComboBox::ResetContent()
{
    Send(CB_RESETCONTENT);
}

int CComboBox::Send(UINT nMessage, WPARAM wParam, const void* pText) const
{
    return static_cast<int>(SendMessageW(m_hWnd, nMessage, wParam, reinterpret_cast<LPARAM>(pText)));
}
