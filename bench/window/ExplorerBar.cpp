#include "bench/window/ExplorerBar.h"

#include "bench/window/DeviceContext.h"

namespace
{
constexpr int TitleHeight = 22;
constexpr int BorderWidth = 3;
constexpr int DefaultWidth = 220;
constexpr int DefaultHeight = 180;
constexpr DWORD BarBandId = 1;
} // namespace

BEGIN_MESSAGE_MAP(CExplorerBar, CWnd)
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

CExplorerBar::~CExplorerBar()
{
    Close();
}

bool CExplorerBar::Create(HWND hWndParent, bool bVertical)
{
    m_bVertical = bVertical;
    return CreateEx(0, nullptr, nullptr, WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, RECT {}, hWndParent, 0);
}

HRESULT CExplorerBar::Open(REFCLSID clsid, IServiceProvider* pServices, int nSize)
{
    Close();
    if (!m_band.Create(clsid, *this, m_hWnd, pServices))
        return E_FAIL;
    const DESKBANDINFO info = m_band.GetInfo(BarBandId, m_bVertical ? DBIF_VIEWMODE_VERTICAL : DBIF_VIEWMODE_NORMAL);
    const int nActual = m_bVertical ? info.ptActual.x : info.ptActual.y;
    const int nDefault = m_bVertical ? DefaultWidth : DefaultHeight;
    m_nSize = nSize > 0 ? nSize : (nActual > 0 ? nActual : nDefault);
    m_strTitle = info.wszTitle;
    m_bOpen = true;
    m_band.Show(true);
    ShowWindow(m_hWnd, SW_SHOWNA);
    NotifyParent();
    return S_OK;
}

void CExplorerBar::Close()
{
    if (!m_bOpen)
        return;
    m_bOpen = false;
    m_band.Close();
    ShowWindow(m_hWnd, SW_HIDE);
    NotifyParent();
}

void CExplorerBar::NotifyParent()
{
    RECT rect = {};
    GetClientRect(GetParent(m_hWnd), &rect);
    SendMessageW(GetParent(m_hWnd), WM_SIZE, SIZE_RESTORED, MAKELPARAM(rect.right, rect.bottom));
}

void CExplorerBar::OnPaint()
{
    const CPaintDC screen(m_hWnd);
    RECT rect = {};
    GetClientRect(m_hWnd, &rect);
    FillRect(screen, &rect, GetSysColorBrush(COLOR_BTNFACE));
    if (m_bVertical)
        rect.left = rect.right - BorderWidth;
    DrawEdge(screen, &rect, EDGE_RAISED, m_bVertical ? BF_RIGHT : BF_TOP);
    RECT title = {BorderWidth * 2, 0, GetCloseBox().left, TitleHeight};
    SelectObject(screen, GetStockObject(DEFAULT_GUI_FONT));
    SetBkMode(screen, TRANSPARENT);
    DrawTextW(screen, m_strTitle.c_str(), -1, &title, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
    RECT box = GetCloseBox();
    DrawFrameControl(screen, &box, DFC_CAPTION, DFCS_CAPTIONCLOSE | DFCS_FLAT);
}

RECT CExplorerBar::GetCloseBox() const
{
    RECT rect = {};
    GetClientRect(m_hWnd, &rect);
    const int nSide = TitleHeight - 2 * BorderWidth;
    return {rect.right - nSide - 2 * BorderWidth, BorderWidth, rect.right - 2 * BorderWidth, BorderWidth + nSide};
}

void CExplorerBar::OnSize(UINT, int cx, int cy)
{
    SetWindowPos(m_band.GetWindow(), nullptr, 0, TitleHeight, m_bVertical ? cx - BorderWidth : cx, cy - TitleHeight,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    InvalidateRect(m_hWnd, nullptr, FALSE);
}

void CExplorerBar::OnLButtonDown(UINT, POINT point)
{
    const RECT box = GetCloseBox();
    if (PtInRect(&box, point))
        Close();
}

void CExplorerBar::OnBandFocusChange(bool bFocus)
{
    if (!bFocus)
        m_band.Activate(false, nullptr);
}

void CExplorerBar::OnBandInfoChanged()
{
    m_strTitle = m_band.GetInfo(BarBandId, m_bVertical ? DBIF_VIEWMODE_VERTICAL : DBIF_VIEWMODE_NORMAL).wszTitle;
    InvalidateRect(m_hWnd, nullptr, FALSE);
}
