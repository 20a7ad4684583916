#include "bench/BenchResource.h"
#include "bench/server/PageList.h"
#include "bench/Version.h"
#include "bench/window/FrameWindow.h"
#include "bench/window/RegisteredBands.h"
#include "bench/window/TabWindow.h"
#include "framework/GuidText.h"
#include "framework/Handles.h"

#include <commctrl.h>
#include <uxtheme.h>

#include <iterator>

namespace
{
std::wstring GetClassTitle(REFCLSID clsid)
{
    const std::wstring strGuid = GetGuidText(clsid);
    wchar_t szTitle[MAX_PATH] = {};
    DWORD dwBytes = sizeof szTitle;
    const std::wstring key = L"CLSID\\" + strGuid;
    RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, szTitle, &dwBytes);
    return szTitle[0] ? szTitle : strGuid;
}

void ClearMenu(HMENU hMenu)
{
    while (GetMenuItemCount(hMenu) > 0)
        DeleteMenu(hMenu, 0, MF_BYPOSITION);
}
} // namespace

bool CFrameWindow::OnCommand(UINT nId)
{
    if (!m_activeTab)
        return false;
    switch (nId)
    {
    case IDM_NEW_WINDOW:
        m_application.OpenWindow(m_activeTab->m_state.strUrl);
        return true;
    case IDM_NEW_TAB:
        AddTab(m_application.CompleteAddress(GetListedPages().front().pszFile));
        return true;
    case IDM_CLOSE_TAB:
        CloseTab(m_activeTab->GetNumber());
        return true;
    case IDM_EXIT:
        SendMessageW(m_hWnd, WM_CLOSE, 0, 0);
        return true;
    case IDM_NEXT_TAB:
    case IDM_PREVIOUS_TAB:
        StepTab(nId == IDM_NEXT_TAB ? 1 : -1);
        return true;
    case IDM_ADDRESS:
        m_addressBar.TakeFocus();
        return true;
    case IDM_GO:
        OnGo();
        return true;
    case IDM_STATUS_BAR:
        ToggleStatusBar();
        return true;
    case IDM_VISUAL_STYLE:
        EnableTheming(!IsThemeActive());
        return true;
    case IDM_ABOUT:
        ShowAbout();
        return true;
    default:
        return OnPageCommand(nId);
    }
}

bool CFrameWindow::OnPageCommand(UINT nId)
{
    static constexpr struct
    {
        UINT nId;
        void (*pfnDo)(CTabWindow&);
    } commands[] = {
        {IDM_BACK, [](CTabWindow& window) { window.GoBack(); }},
        {IDM_FORWARD, [](CTabWindow& window) { window.GoForward(); }},
        {IDM_REFRESH, [](CTabWindow& window) { window.Reload(); }},
        {IDM_STOP, [](CTabWindow& window) { window.Stop(); }},
        {IDM_CUT, [](CTabWindow& window) { window.PressCtrlKey('X'); }},
        {IDM_COPY, [](CTabWindow& window) { window.PressCtrlKey('C'); }},
        {IDM_PASTE, [](CTabWindow& window) { window.PressCtrlKey('V'); }},
        {IDM_SELECT_ALL, [](CTabWindow& window) { window.PressCtrlKey('A'); }},
    };
    for (const auto& command : commands)
        if (command.nId == nId)
        {
            m_activeTab->Post(command.pfnDo);
            return true;
        }
    if (nId == IDM_HOME || (nId >= IDM_FIRST_PAGE && nId <= IDM_LAST_PAGE))
        OpenListedPage(nId == IDM_HOME ? IDM_FIRST_PAGE : nId);
    else if (nId >= IDM_FIRST_TOOLBAR && nId <= IDM_LAST_TOOLBAR)
        ToggleToolbar(nId);
    else
        return false;
    return true;
}

void CFrameWindow::OnGo()
{
    const std::wstring url = m_application.CompleteAddress(m_addressBar.GetAddress());
    m_addressBar.EndTyping();
    if (url.empty())
        return;
    m_activeTab->Post([=](CTabWindow& window) { window.Navigate(url); });
    FocusTab(false);
}

void CFrameWindow::OpenListedPage(UINT nId)
{
    const size_t nPage = nId - IDM_FIRST_PAGE;
    if (nPage >= GetListedPages().size())
        return;
    const std::wstring url = m_application.CompleteAddress(GetListedPages()[nPage].pszFile);
    m_activeTab->Post([=](CTabWindow& window) { window.Navigate(url); });
}

void CFrameWindow::ToggleToolbar(UINT nId)
{
    const std::vector<CLSID> toolbars = GetRegisteredToolbars();
    const size_t nToolbar = nId - IDM_FIRST_TOOLBAR;
    if (nToolbar < toolbars.size())
        m_activeTab->Post([clsid = toolbars[nToolbar]](CTabWindow& window) {
            window.ShowBar(clsid, !window.ShowsToolbar(clsid), 0);
        });
}

void CFrameWindow::ToggleStatusBar()
{
    m_bStatusBar = !m_bStatusBar;
    ShowWindow(m_statusBar, m_bStatusBar ? SW_SHOW : SW_HIDE);
    Layout();
}

void CFrameWindow::ShowAbout()
{
    const std::wstring text =
        L"The bench browser of Trelvix\n\nA small browser that hosts the toolbar as Internet Explorer " +
        GetOwnVersion() + L" does.\nIts pages are shown by Chromium.";
    MessageBoxW(m_hWnd, text.c_str(), L"About", MB_ICONINFORMATION);
}

LRESULT CFrameWindow::OnInitMenuPopup(WPARAM wParam, LPARAM lParam)
{
    const HMENU hMenu = reinterpret_cast<HMENU>(wParam);
    const UINT nFirstId = GetMenuItemID(hMenu, 0);
    if (nFirstId >= IDM_FIRST_TOOLBAR && nFirstId <= IDM_LAST_TOOLBAR)
        FillToolbarMenu(hMenu);
    else if (nFirstId == IDM_FIRST_PAGE)
        FillPageMenu(hMenu);
    CheckMenuItem(hMenu, IDM_STATUS_BAR, m_bStatusBar ? MF_CHECKED : MF_UNCHECKED);
    CheckMenuItem(hMenu, IDM_VISUAL_STYLE, IsThemeActive() ? MF_CHECKED : MF_UNCHECKED);
    EnableMenuItem(hMenu, IDM_BACK, m_activeTab && m_activeTab->m_state.bCanGoBack ? MF_ENABLED : MF_GRAYED);
    EnableMenuItem(hMenu, IDM_FORWARD, m_activeTab && m_activeTab->m_state.bCanGoForward ? MF_ENABLED : MF_GRAYED);
    return DefWindowProc(WM_INITMENUPOPUP, wParam, lParam);
}

void CFrameWindow::FillToolbarMenu(HMENU hMenu)
{
    const std::vector<CLSID> toolbars = GetRegisteredToolbars();
    if (toolbars.empty())
        return;
    ClearMenu(hMenu);
    for (size_t i = 0; i < toolbars.size(); ++i)
        AppendMenuW(hMenu, MF_STRING, IDM_FIRST_TOOLBAR + i, GetClassTitle(toolbars[i]).c_str());
}

void CFrameWindow::FillPageMenu(HMENU hMenu)
{
    ClearMenu(hMenu);
    UINT nId = IDM_FIRST_PAGE;
    for (const CListedPage& page : GetListedPages())
        AppendMenuW(hMenu, MF_STRING, nId++, page.pszTitle);
}
