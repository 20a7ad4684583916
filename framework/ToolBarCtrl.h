#pragma once

#include "framework/Wnd.h"

#include <windows.h>
#include <commctrl.h>

/// The toolbar control of the common controls. Each operation sends the message of the same name; on an object without
/// a window they fail.
class CToolBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolBarCtrl)

public:
    /// Creates the control and tells it the size of a button record.
    virtual bool Create(DWORD dwStyle, const RECT& rect, HWND hWndParent, UINT nID);

    int GetButtonCount() const;
    bool AddButtons(int nNumButtons, const TBBUTTON* pButtons);
    bool DeleteButton(int nIndex);
    bool GetItemRect(int nIndex, RECT* pRect) const;
    bool SetButtonInfo(int nID, const TBBUTTONINFOW* pInfo);
    /// `pStrings` is a list closed by a second terminator. The result is the number of the first new string, or -1.
    INT_PTR AddStrings(const wchar_t* pStrings);
    /// The position of the button at the point, or a negative number.
    int HitTest(POINT point) const;
    void SetMetrics(const TBMETRICS* pMetrics);
    /// Sends the control's notifications to `hWnd` from now on.
    void SetOwner(HWND hWnd);
    void SetExtendedStyle(DWORD dwExStyle);

    HIMAGELIST GetImageList() const;
    HIMAGELIST GetHotImageList() const;
    HIMAGELIST GetDisabledImageList() const;
    /// The control doesn't own its lists: the caller keeps them as long as the control stands.
    void SetImageList(HIMAGELIST hImageList);
    void SetHotImageList(HIMAGELIST hImageList);
    void SetDisabledImageList(HIMAGELIST hImageList);
};
