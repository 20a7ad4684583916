#include "bench/window/FrameWindow.h"

#include "bench/BenchResource.h"
#include "bench/window/FaceColor.h"
#include "bench/window/TabWindow.h"
#include "framework/Module.h"

#include <commctrl.h>

#include <algorithm>

namespace
{
constexpr wchar_t ClassName[] = L"IEFrame";
constexpr wchar_t TitleSuffix[] = L"Trelvix Bench";
constexpr int TabStripHeight = 24;
constexpr int DefaultWidth = 1200;
constexpr int DefaultHeight = 860;
constexpr size_t MaxTabTitle = 30;

ATOM RegisterFrameClass()
{
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = DefWindowProcW;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.hIcon = LoadIconW(windowClass.hInstance, MAKEINTRESOURCEW(IDR_MAINFRAME));
    windowClass.hIconSm = windowClass.hIcon;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszMenuName = MAKEINTRESOURCEW(IDR_MAINFRAME);
    windowClass.lpszClassName = ClassName;
    return RegisterClassExW(&windowClass);
}

RECT GetFirstRect()
{
    RECT work = {};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    return {work.left, work.top, std::min<LONG>(work.left + DefaultWidth, work.right),
            std::min<LONG>(work.top + DefaultHeight, work.bottom)};
}

std::wstring GetTabTitle(const CTabState& state)
{
    const std::wstring& title = state.strTitle.empty() ? state.strUrl : state.strTitle;
    if (title.empty())
        return L"New Tab";
    return title.size() > MaxTabTitle ? title.substr(0, MaxTabTitle) + L"..." : title;
}
} // namespace

BEGIN_MESSAGE_MAP(CFrameWindow, CWnd)
    ON_WM_SIZE()
    ON_MESSAGE(WM_ERASEBKGND, OnEraseBackground)
    ON_MESSAGE(WM_ACTIVATE, OnActivate)
    ON_MESSAGE(WM_SETFOCUS, OnSetFocus)
    ON_MESSAGE(WM_CLOSE, OnClose)
    ON_MESSAGE(WM_INITMENUPOPUP, OnInitMenuPopup)
    ON_NOTIFY(TCN_SELCHANGE, 0, OnSelectTab)
END_MESSAGE_MAP()

CFrameWindow::CFrameWindow(IApplication& application)
    : m_application(application), m_queue(std::make_shared<CTaskQueue>())
{
}

CFrameWindow::~CFrameWindow()
{
    m_queue->Close();
}

bool CFrameWindow::Create(const std::wstring& url, int nShow)
{
    static const ATOM nClass = RegisterFrameClass();
    constexpr DWORD dwStyle = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    constexpr DWORD dwStripStyle = WS_CHILD | WS_CLIPSIBLINGS | TCS_FOCUSNEVER;
    constexpr DWORD dwStatusStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | SBARS_SIZEGRIP;
    if (nClass == 0 || !CreateEx(0, ClassName, TitleSuffix, dwStyle, GetFirstRect(), nullptr, 0) ||
        !m_addressBar.Create(m_hWnd) ||
        !m_tabStrip.CreateEx(0, WC_TABCONTROLW, nullptr, dwStripStyle, RECT {}, m_hWnd, 0) ||
        !m_statusBar.CreateEx(0, STATUSCLASSNAMEW, nullptr, dwStatusStyle, RECT {}, m_hWnd, 0))
        return false;
    SendMessageW(m_tabStrip, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    m_hAccelerators = LoadAcceleratorsW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(IDR_MAINFRAME));
    AddTab(url);
    ShowWindow(m_hWnd, nShow);
    SetForegroundWindow(m_hWnd);
    return true;
}

LRESULT CFrameWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND && OnCommand(LOWORD(wParam)))
        return 0;
    return CWnd::WindowProc(message, wParam, lParam);
}

void CFrameWindow::OnSize(UINT nType, int, int)
{
    if (nType != SIZE_MINIMIZED)
        Layout();
}

void CFrameWindow::Layout()
{
    constexpr UINT nFlags = SWP_NOZORDER | SWP_NOACTIVATE;
    SendMessageW(m_statusBar, WM_SIZE, 0, 0);
    RECT area = {};
    RECT status = {};
    GetClientRect(m_hWnd, &area);
    GetWindowRect(m_statusBar, &status);
    if (m_bStatusBar)
        area.bottom = std::max(area.top, area.bottom - (status.bottom - status.top));
    SetWindowPos(m_addressBar, nullptr, 0, 0, area.right, CAddressBar::Height, nFlags);
    area.top = CAddressBar::Height;
    const bool bStrip = m_tabs.size() > 1;
    SetWindowPos(m_tabStrip, nullptr, 0, area.top, area.right, TabStripHeight,
                 nFlags | (bStrip ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
    if (bStrip)
        area.top += TabStripHeight;
    for (const auto& tab : m_tabs)
        tab->Post([area, bShow = tab == m_activeTab](CTabWindow& window) { window.Place(area, bShow); });
}

LRESULT CFrameWindow::OnEraseBackground(WPARAM wParam, LPARAM)
{
    return FillWithFaceColor(m_hWnd, reinterpret_cast<HDC>(wParam));
}

LRESULT CFrameWindow::OnActivate(WPARAM wParam, LPARAM lParam)
{
    if (LOWORD(wParam) != WA_INACTIVE)
        return DefWindowProc(WM_ACTIVATE, wParam, lParam);
    // The threads of the tabs share this one's keyboard, so this sees their windows as well.
    const HWND hFocus = GetFocus();
    m_hLastFocus = IsChild(m_hWnd, hFocus) ? hFocus : m_hLastFocus;
    return 0;
}

LRESULT CFrameWindow::OnSetFocus(WPARAM, LPARAM)
{
    if (IsWindow(m_hLastFocus) && IsWindowVisible(m_hLastFocus))
        SetFocus(m_hLastFocus);
    else
        FocusTab(false);
    return 0;
}

LRESULT CFrameWindow::OnClose(WPARAM, LPARAM)
{
    if (!IsWindowEnabled(m_hWnd))
        return 0;
    m_bClosing = true;
    for (const auto& tab : m_tabs)
        tab->Post([](CTabWindow& window) { window.CloseTab(); });
    return 0;
}

void CFrameWindow::AddTab(const std::wstring& url)
{
    IApplication& app = m_application;
    ITabFrame& frame = *this;
    m_tabs.push_back(std::make_shared<CTab>(frame, app.GetNextTabNumber(), app.GetEngine(), url, app.GetEventTap()));
    m_tabs.back()->m_state.strUrl = url;
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<wchar_t*>(L"New Tab");
    TabCtrl_InsertItem(m_tabStrip, m_tabs.size() - 1, &item);
    ActivateTab(m_tabs.size() - 1);
}

void CFrameWindow::ActivateTab(size_t nIndex)
{
    m_activeTab = m_tabs[nIndex];
    TabCtrl_SetCurSel(m_tabStrip, nIndex);
    m_hLastFocus = nullptr;
    Layout();
    m_addressBar.EndTyping();
    ShowState();
    FocusTab(false);
}

void CFrameWindow::StepTab(int nStep)
{
    const int nTabs = static_cast<int>(m_tabs.size());
    ActivateTab((TabCtrl_GetCurSel(m_tabStrip) + nStep + nTabs) % nTabs);
}

void CFrameWindow::OnSelectTab(NMHDR*, LRESULT*)
{
    ActivateTab(TabCtrl_GetCurSel(m_tabStrip));
}

std::shared_ptr<CTab> CFrameWindow::FindTab(int nTab) const
{
    const auto found = std::ranges::find_if(m_tabs, [=](const auto& tab) { return tab->GetNumber() == nTab; });
    return found == m_tabs.end() ? nullptr : *found;
}

void CFrameWindow::OnTabChanged(int nTab, const CTabState& state)
{
    m_queue->Post([=, this] {
        const std::shared_ptr<CTab> tab = FindTab(nTab);
        if (!tab)
            return;
        tab->m_state = state;
        std::wstring title = GetTabTitle(state);
        TCITEMW item = {};
        item.mask = TCIF_TEXT;
        item.pszText = title.data();
        TabCtrl_SetItem(m_tabStrip, std::ranges::find(m_tabs, tab) - m_tabs.begin(), &item);
        if (tab == m_activeTab)
            ShowState();
    });
}

void CFrameWindow::ShowState()
{
    const CTabState& state = m_activeTab->m_state;
    m_addressBar.SetAddress(state.strUrl);
    m_addressBar.SetState(state.bCanGoBack, state.bCanGoForward, state.bLoading);
    const std::wstring status = state.strStatus.empty() ? (state.bLoading ? L"Loading..." : L"Done") : state.strStatus;
    SendMessageW(m_statusBar, SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(status.c_str()));
    const std::wstring title = state.strTitle.empty() ? TitleSuffix : state.strTitle + L" - " + TitleSuffix;
    SetWindowTextW(m_hWnd, title.c_str());
}

std::wstring CFrameWindow::GetStatusText() const
{
    std::wstring text(LOWORD(SendMessageW(m_statusBar, SB_GETTEXTLENGTHW, 0, 0)) + 1, L'\0');
    SendMessageW(m_statusBar, SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(text.data()));
    return text.c_str();
}

void CFrameWindow::OnFocusLeavesTab(int, bool)
{
    // Behind the page comes the address again: the way through the window is a circle.
    m_queue->Post([this] { m_addressBar.TakeFocus(); });
}

void CFrameWindow::OnTabClosed(int nTab)
{
    m_queue->Post([=, this] { TakeTabOut(nTab); });
}

void CFrameWindow::TakeTabOut(int nTab)
{
    const std::shared_ptr<CTab> tab = FindTab(nTab);
    if (!tab)
        return;
    const size_t nIndex = std::ranges::find(m_tabs, tab) - m_tabs.begin();
    m_tabs.erase(m_tabs.begin() + nIndex);
    TabCtrl_DeleteItem(m_tabStrip, nIndex);
    if (m_tabs.empty())
    {
        m_activeTab.reset();
        DestroyWindow();
        m_application.OnFrameClosed(*this);
    }
    else if (!m_bClosing)
        ActivateTab(std::min(nIndex, m_tabs.size() - 1));
}

void CFrameWindow::OpenTab(const std::wstring& url)
{
    m_queue->Post([=, this] { AddTab(url); });
}

void CFrameWindow::CloseTab(int nTab)
{
    m_queue->Post([=, this] {
        if (const std::shared_ptr<CTab> tab = FindTab(nTab))
            tab->Post([](CTabWindow& window) { window.CloseTab(); });
    });
}

void CFrameWindow::FocusTab(bool bForward)
{
    if (m_activeTab)
        m_activeTab->Post([=](CTabWindow& window) { window.TakeFocus(bForward); });
}

bool CFrameWindow::TranslateKey(MSG* pMsg)
{
    const bool bKey = pMsg->message == WM_KEYDOWN && m_addressBar.HasFocus();
    if (bKey && pMsg->wParam == VK_RETURN)
        OnGo();
    else if (bKey && (pMsg->wParam == VK_TAB || pMsg->wParam == VK_F6) && GetKeyState(VK_CONTROL) >= 0)
        FocusTab(GetKeyState(VK_SHIFT) >= 0);
    else
        return TranslateFrameKey(pMsg);
    return true;
}

bool CFrameWindow::TranslateFrameKey(MSG* pMsg)
{
    return TranslateAcceleratorW(m_hWnd, m_hAccelerators, pMsg) != 0;
}
