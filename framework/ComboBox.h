#pragma once

#include "framework/Wnd.h"

#include <string>

/// The combo box control of the window system. Each operation sends the message of the same name.
class CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)

public:
    /// The height of the rectangle is that of the box with its list dropped down.
    bool Create(DWORD dwStyle, const RECT& rect, HWND hWndParent, UINT nID);

    int GetCount() const;
    /// The selected entry, or CB_ERR.
    int GetCurSel() const;
    int SetCurSel(int nIndex);
    /// The text of an entry; empty when there is no such entry.
    void GetLBText(int nIndex, std::wstring& strText) const;
    /// The first entry behind `nIndexStart` that is this text, but for its case, or CB_ERR.
    int FindStringExact(int nIndexStart, const wchar_t* pszText) const;
    int InsertString(int nIndex, const wchar_t* pszText);
    void ResetContent();

private:
    int Send(UINT nMessage, WPARAM wParam = 0, const void* pText = nullptr) const;
};
