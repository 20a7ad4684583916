#pragma once

#include "bench/window/AddressBar.h"
#include "bench/window/Tab.h"
#include "bench/window/TabFrame.h"
#include "bench/window/TaskQueue.h"
#include "framework/Wnd.h"

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

class CFrameWindow;
class IEventTap;

/// What the windows of the browser share, as a window sees it; on the main thread.
class IApplication
{
public:
    virtual CEngine& GetEngine() = 0;
    virtual IEventTap& GetEventTap() = 0;
    /// The number of the next tab, counted from 1 over all windows.
    virtual int GetNextTabNumber() = 0;
    /// What a person typed, or a page of the bench by its file name, as a whole address.
    virtual std::wstring CompleteAddress(const std::wstring& address) = 0;
    /// For any thread.
    virtual void OpenWindow(const std::wstring& url) = 0;
    /// The window has gone; the object is destroyed after the call.
    virtual void OnFrameClosed(CFrameWindow& frame) = 0;

protected:
    ~IApplication() = default;
};

/// A window of the browser: menu, address bar, tabs and status bar, on the main thread. The tabs live on theirs.
class CFrameWindow : public CWnd, private ITabFrame
{
public:
    explicit CFrameWindow(IApplication& application);
    ~CFrameWindow() override;

    bool Create(const std::wstring& url, int nShow);

    /// A key on its way to a window of the main thread; true when it has been acted on.
    bool TranslateKey(MSG* pMsg);

    /// The tab on show, null while there is none; shared, since scripts use it on a thread of their own.
    std::shared_ptr<CTab> GetActiveTab() const { return m_activeTab; }
    const std::vector<std::shared_ptr<CTab>>& GetTabs() const { return m_tabs; }
    void AddTab(const std::wstring& url);
    void ActivateTab(size_t nIndex);
    bool IsAddressFocused() const { return m_addressBar.HasFocus(); }
    std::wstring GetAddress() const { return m_addressBar.GetAddress(); }
    std::wstring GetStatusText() const;

private:
    DECLARE_MESSAGE_MAP()

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnSize(UINT nType, int cx, int cy);
    LRESULT OnEraseBackground(WPARAM wParam, LPARAM lParam);
    LRESULT OnActivate(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetFocus(WPARAM wParam, LPARAM lParam);
    LRESULT OnClose(WPARAM wParam, LPARAM lParam);
    LRESULT OnInitMenuPopup(WPARAM wParam, LPARAM lParam);
    void OnSelectTab(NMHDR* pHeader, LRESULT* pResult);

    HWND GetFrameWindow() override { return m_hWnd; }
    void OnTabChanged(int nTab, const CTabState& state) override;
    void OnFocusLeavesTab(int nTab, bool bForward) override;
    void OnTabClosed(int nTab) override;
    void OpenTab(const std::wstring& url) override;
    void OpenWindow(const std::wstring& url) override { m_application.OpenWindow(url); }
    void CloseTab(int nTab) override;
    bool TranslateFrameKey(MSG* pMsg) override;

    bool OnCommand(UINT nId);
    bool OnPageCommand(UINT nId);
    void OnGo();
    void OpenListedPage(UINT nId);
    void ToggleToolbar(UINT nId);
    void ToggleStatusBar();
    void ShowAbout();
    void FillToolbarMenu(HMENU hMenu);
    void FillPageMenu(HMENU hMenu);

    std::shared_ptr<CTab> FindTab(int nTab) const;
    void TakeTabOut(int nTab);
    void StepTab(int nStep);
    void ShowState();
    void Layout();
    void FocusTab(bool bForward);

    IApplication& m_application;
    std::shared_ptr<CTaskQueue> m_queue;
    CAddressBar m_addressBar;
    CWnd m_tabStrip;
    CWnd m_statusBar;
    HACCEL m_hAccelerators = nullptr; ///< of the resources, which need no release
    std::vector<std::shared_ptr<CTab>> m_tabs;
    std::shared_ptr<CTab> m_activeTab;
    HWND m_hLastFocus = nullptr; ///< who had the keyboard when another window got it
    bool m_bStatusBar = true;
    bool m_bClosing = false;
};
