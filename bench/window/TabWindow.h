#pragma once

#include "bench/com/BrowserWindow.h"
#include "bench/engine/PageView.h"
#include "bench/window/ExplorerBar.h"
#include "bench/window/PageWindow.h"
#include "bench/window/Rebar.h"
#include "bench/window/TabFrame.h"
#include "framework/Wnd.h"

#include <windows.h>
#include <wrl/client.h>

#include <string>

class CEngine;
class CWebBrowser;
class IEventTap;

/// One tab: the browser object of a page, the page's window, and the toolbars and Explorer bars around it. All of it
/// lives on a thread of its own, as a child window of the frame, which lives on another.
class CTabWindow : public CWnd, private IBrowserWindow, private IPageView
{
public:
    CTabWindow(ITabFrame& frame, int nTab);
    ~CTabWindow() override;

    /// Makes the windows and the page and begins to load the address. False only when the platform refuses a window: a
    /// page that can't be had is told in its place. `tap` is told of every event.
    bool Create(CEngine& engine, const std::wstring& url, IEventTap& tap);

    /// Says goodbye to the bands, closes the page and has the thread's message loop end. A tab with a dialog open
    /// stays.
    void CloseTab();

    /// Moves the tab inside the frame and shows or hides it.
    void Place(const RECT& rect, bool bShow);

    /// A key on its way to a window of this thread; true when it has been acted on.
    bool TranslateKey(MSG* pMsg);
    /// Gives the keyboard to the first of what is here, or to the last.
    void TakeFocus(bool bForward);

    void Navigate(const std::wstring& url);
    void Reload();
    void Stop();
    void GoBack();
    void GoForward();
    /// Has everything on show that the page has drawn, before a picture of the window is taken.
    void FinishDrawing();
    /// Presses a key in the page while Ctrl is held, as in the commands of the Edit menu.
    void PressCtrlKey(UINT vk);
    HRESULT ShowBar(REFCLSID clsid, bool bShow, int nSize) override;

    CWebBrowser& GetBrowser() { return *m_spBrowser.Get(); }
    HWND GetViewWindow() override { return m_view; }
    const CTabState& GetState() const { return m_state; }
    bool ShowsToolbar(REFCLSID clsid) const { return m_rebar.Shows(clsid); }
    bool HasRebarFocus() { return m_rebar.HasFocus(); }

private:
    DECLARE_MESSAGE_MAP()

    void OnSize(UINT nType, int cx, int cy);
    void OnHeightChange(NMHDR* pHeader, LRESULT* pResult);
    void OnChevronPushed(NMHDR* pHeader, LRESULT* pResult);
    LRESULT OnEraseBackground(WPARAM wParam, LPARAM lParam);

    HWND GetFrameWindow() override { return m_frame.GetFrameWindow(); }
    void OpenWindow(const std::wstring& url) override { m_frame.OpenWindow(url); }
    void OpenTab(const std::wstring& url) override { m_frame.OpenTab(url); }
    void SetStatusText(const std::wstring& text) override { OnStatusText(text); }
    void Close() override { m_frame.CloseTab(m_nTab); }
    bool ShowScriptError(const std::wstring& message, const std::wstring& url, long nLine) override;

    void OnPicture(const std::string& image) override { m_view.SetPicture(image); }
    void OnAddressChanged(const std::wstring& url) override;
    void OnHistoryChanged() override;
    void OnTitleChanged(const std::wstring& title) override;
    void OnLoadingChanged(bool bLoading) override;
    void OnStatusText(const std::wstring& text) override;
    void OnScriptDialog(const std::wstring& message) override;
    void OnNewWindow(const std::wstring& url) override { m_frame.OpenWindow(url); }
    void OnPageGone(const std::wstring& reason) override;

    bool MoveFocus(const MSG& msg);
    bool IsAtEndOfPage(bool bForward);
    void TellFrame();
    void Layout();

    ITabFrame& m_frame;
    const int m_nTab;
    CTabState m_state;
    Microsoft::WRL::ComPtr<CWebBrowser> m_spBrowser;
    CRebar m_rebar;
    CExplorerBar m_leftBar;
    CExplorerBar m_bottomBar;
    CPageWindow m_view;
};
