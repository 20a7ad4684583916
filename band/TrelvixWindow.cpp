#include "band/TrelvixWindow.h"

#include "band/ButtonTable.h"
#include "controls/IsolationAware.h"
#include "resources/resource.h"
#include "resources/Trelvix.h"
#include "settings/SettingsStore.h"

namespace
{
constexpr int ImageWidth = 16;

/// The part of a split button left of its arrow: icon and padding.
constexpr int IconPartWidth = 24;

/// Started by the side bar's item.
constexpr UINT_PTR InfoBarTimer = 2017;
} // namespace

BEGIN_MESSAGE_MAP(CTrelvixWindow, CToolBarCtrl)
    ON_WM_DESTROY()
    ON_WM_LBUTTONDOWN()
    ON_WM_SIZE()
    ON_WM_TIMER()
    ON_WM_PAINT()
    ON_MESSAGE(WM_THEMECHANGED, OnThemeChanged)
    ON_MESSAGE(FocusSearchBoxMessage, OnFocusSearchBox)
END_MESSAGE_MAP()

CTrelvixWindow::CTrelvixWindow() : CTVXEventManager(static_cast<ITVXEvents*>(this))
{
    m_aOrder.fill(-1);
}

CTrelvixWindow::~CTrelvixWindow()
{
    // While this is still the whole object: the items leave with the window.
    DestroyWindow();
}

bool CTrelvixWindow::Create(DWORD dwStyle, const RECT& rect, HWND hWndParent, UINT nID)
{
    if (!CToolBarCtrl::Create(dwStyle, rect, hWndParent, nID) || !CreateReflexionWindow(rect))
        return false;
    SetExtendedStyle(TBSTYLE_EX_DRAWDDARROWS | TBSTYLE_EX_MIXEDBUTTONS);
    SetImageLists();
    return LoadLayout();
}

bool CTrelvixWindow::CreateReflexionWindow(const RECT& rect)
{
    if (!m_wndReflexion.CreateEx(0, nullptr, nullptr, WS_CHILD, rect, m_hWnd, 0))
        return false;
    m_wndReflexion.m_pToolbar = this;
    SetOwner(m_wndReflexion);
    return true;
}

void CTrelvixWindow::SetImageLists()
{
    if (GetImageList() == nullptr && m_imlNormal.CreateFromBitmap(IDB_TOOLBAR, ImageWidth))
        SetImageList(m_imlNormal.m_hImageList);
    if (GetHotImageList() == nullptr && m_imlHot.CreateFromBitmap(IDB_TOOLBAR, ImageWidth))
        SetHotImageList(m_imlHot.m_hImageList);
    if (GetDisabledImageList() == nullptr && m_imlDisabled.CreateFromBitmap(IDB_TOOLBAR, ImageWidth))
        SetDisabledImageList(m_imlDisabled.m_hImageList);
}

CTrelvixButton* CTrelvixWindow::GetButton(int nIndex) const
{
    return nIndex >= 0 && nIndex < ButtonCount ? m_pButtons[nIndex].get() : nullptr;
}

CTrelvixButton* CTrelvixWindow::GetVisibleButton(int nIndex) const
{
    CTrelvixButton* const pButton = GetButton(nIndex);
    return pButton != nullptr && pButton->IsVisible() ? pButton : nullptr;
}

CTrelvixButton* CTrelvixWindow::GetLayoutButton(int nPosition) const
{
    return nPosition >= 0 && nPosition < MaxLayoutEntries ? GetVisibleButton(m_aOrder[nPosition]) : nullptr;
}

LRESULT CTrelvixWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto spThis = Hold();
    return CToolBarCtrl::WindowProc(message, wParam, lParam);
}

void CTrelvixWindow::OnDestroy()
{
    if (m_pUIHandler)
        m_pUIHandler->ClearToolbarWindow();
    if (!m_bMakingLayout) // else an item may be at work, and the items go when the layout is done
        DestroyButtons();
    Default();
}

void CTrelvixWindow::OnLButtonDown(UINT nFlags, POINT point)
{
    if (!ClickIcon(nFlags, point))
        Default();
}

bool CTrelvixWindow::ClickIcon(UINT nFlags, POINT point)
{
    const int nPosition = HitTest(point);
    if (nPosition < 0 || nPosition >= MaxLayoutEntries)
        return false;
    CTrelvixButton* const pButton = GetButton(m_aOrder[nPosition]);
    RECT rect = {};
    if (pButton == nullptr || pButton->HasControl() || !GetItemRect(nPosition, &rect))
        return false;
    return point.x < rect.left + IconPartWidth && pButton->OnIconClick(nFlags, point);
}

void CTrelvixWindow::OnSize(UINT, int, int)
{
    Default();
    ForEachInLayout([](CTrelvixButton& button) {
        if (button.HasControl())
            button.Repaint();
    });
}

void CTrelvixWindow::OnPaint()
{
    Default();
    for (int nIndex = 0; nIndex < ButtonCount; ++nIndex)
        if (CTrelvixButton* pButton = GetVisibleButton(nIndex); pButton != nullptr && pButton->HasControl())
            pButton->Repaint();
}

void CTrelvixWindow::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent == InfoBarTimer)
    {
        if (m_nTimerId != 0)
        {
            KillTimer(m_hWnd, m_nTimerId);
            m_nTimerId = 0;
        }
        if (CSettingsStore(SettingsRoot).ReadInt(L"Options", L"InfoBarFirstTime") != 1)
            ShowInfoBar();
    }
    Default();
}

LRESULT CTrelvixWindow::OnThemeChanged(WPARAM, LPARAM)
{
    LoadLayout();
    return 0;
}

LRESULT CTrelvixWindow::OnFocusSearchBox(WPARAM, LPARAM)
{
    FocusSearchBox();
    return 0;
}
