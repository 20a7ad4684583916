#include "framework/ToolBarCtrl.h"

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

bool CToolBarCtrl::Create(DWORD dwStyle, const RECT& rect, HWND hWndParent, UINT nID)
{
    INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    if (!CreateEx(0, TOOLBARCLASSNAMEW, nullptr, dwStyle, rect, hWndParent, nID))
        return false;
    SendMessageW(m_hWnd, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    return true;
}

int CToolBarCtrl::GetButtonCount() const
{
    return static_cast<int>(SendMessageW(m_hWnd, TB_BUTTONCOUNT, 0, 0));
}

bool CToolBarCtrl::AddButtons(int nNumButtons, const TBBUTTON* pButtons)
{
    return SendMessageW(m_hWnd, TB_ADDBUTTONSW, nNumButtons, reinterpret_cast<LPARAM>(pButtons)) != 0;
}

bool CToolBarCtrl::DeleteButton(int nIndex)
{
    return SendMessageW(m_hWnd, TB_DELETEBUTTON, nIndex, 0) != 0;
}

bool CToolBarCtrl::GetItemRect(int nIndex, RECT* pRect) const
{
    return SendMessageW(m_hWnd, TB_GETITEMRECT, nIndex, reinterpret_cast<LPARAM>(pRect)) != 0;
}

bool CToolBarCtrl::SetButtonInfo(int nID, const TBBUTTONINFOW* pInfo)
{
    return SendMessageW(m_hWnd, TB_SETBUTTONINFOW, nID, reinterpret_cast<LPARAM>(pInfo)) != 0;
}

INT_PTR CToolBarCtrl::AddStrings(const wchar_t* pStrings)
{
    return m_hWnd ? SendMessageW(m_hWnd, TB_ADDSTRINGW, 0, reinterpret_cast<LPARAM>(pStrings)) : -1;
}

int CToolBarCtrl::HitTest(POINT point) const
{
    return m_hWnd ? static_cast<int>(SendMessageW(m_hWnd, TB_HITTEST, 0, reinterpret_cast<LPARAM>(&point))) : -1;
}

void CToolBarCtrl::SetMetrics(const TBMETRICS* pMetrics)
{
    SendMessageW(m_hWnd, TB_SETMETRICS, 0, reinterpret_cast<LPARAM>(pMetrics));
}

void CToolBarCtrl::SetOwner(HWND hWnd)
{
    SendMessageW(m_hWnd, TB_SETPARENT, reinterpret_cast<WPARAM>(hWnd), 0);
}

void CToolBarCtrl::SetExtendedStyle(DWORD dwExStyle)
{
    SendMessageW(m_hWnd, TB_SETEXTENDEDSTYLE, 0, dwExStyle);
}

HIMAGELIST CToolBarCtrl::GetImageList() const
{
    return reinterpret_cast<HIMAGELIST>(SendMessageW(m_hWnd, TB_GETIMAGELIST, 0, 0));
}

HIMAGELIST CToolBarCtrl::GetHotImageList() const
{
    return reinterpret_cast<HIMAGELIST>(SendMessageW(m_hWnd, TB_GETHOTIMAGELIST, 0, 0));
}

HIMAGELIST CToolBarCtrl::GetDisabledImageList() const
{
    return reinterpret_cast<HIMAGELIST>(SendMessageW(m_hWnd, TB_GETDISABLEDIMAGELIST, 0, 0));
}

void CToolBarCtrl::SetImageList(HIMAGELIST hImageList)
{
    SendMessageW(m_hWnd, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(hImageList));
}

void CToolBarCtrl::SetHotImageList(HIMAGELIST hImageList)
{
    SendMessageW(m_hWnd, TB_SETHOTIMAGELIST, 0, reinterpret_cast<LPARAM>(hImageList));
}

void CToolBarCtrl::SetDisabledImageList(HIMAGELIST hImageList)
{
    SendMessageW(m_hWnd, TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(hImageList));
}
