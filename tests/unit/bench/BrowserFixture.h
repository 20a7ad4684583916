#pragma once

#include "bench/com/BrowserWindow.h"
#include "bench/com/WebBrowser.h"
#include "bench/engine/Engine.h"
#include "bench/engine/PageView.h"
#include "tests/unit/bench/EventRecorder.h"

#include <windows.h>
#include <exdisp.h>
#include <gtest/gtest.h>
#include <wrl/client.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class CTestPages;

/// A window around a browser as the tests see it: what it was told and asked for.
class CTestBrowserWindow : public IBrowserWindow, public IPageView
{
public:
    HWND GetFrameWindow() override { return m_hFrame; }
    HWND GetViewWindow() override { return m_hView; }
    void OpenWindow(const std::wstring& url) override { m_windows.push_back(url); }
    void OpenTab(const std::wstring& url) override { m_tabs.push_back(url); }
    HRESULT ShowBar(REFCLSID clsid, bool bShow, int nSize) override;
    void SetStatusText(const std::wstring& text) override { m_strStatus = text; }
    void Close() override { m_bCloseAsked = true; }
    bool ShowScriptError(const std::wstring& message, const std::wstring& url, long nLine) override;

    void OnPicture(const std::string& image) override { m_picture = image; }
    void OnAddressChanged(const std::wstring& url) override { m_strAddress = url; }
    void OnHistoryChanged() override {}
    void OnTitleChanged(const std::wstring& title) override { m_strTitle = title; }
    void OnLoadingChanged(bool bLoading) override
    {
        m_bLoading = bLoading;
        m_nLoadsEnded += bLoading ? 0 : 1;
    }
    void OnStatusText(const std::wstring& text) override { m_strStatus = text; }
    void OnScriptDialog(const std::wstring& message) override { m_dialogs.push_back(message); }
    void OnNewWindow(const std::wstring& url) override { m_windows.push_back(url); }
    void OnPageGone(const std::wstring& reason) override { m_gone.push_back(reason); }

    HWND m_hFrame = GetDesktopWindow();
    HWND m_hView = GetDesktopWindow();
    std::vector<std::wstring> m_windows;
    std::vector<std::wstring> m_tabs;
    std::vector<std::wstring> m_bars; ///< "{class} shown SIZE"
    std::vector<std::wstring> m_scriptErrors;
    std::vector<std::wstring> m_dialogs;
    std::vector<std::wstring> m_gone;
    std::wstring m_strAddress;
    std::wstring m_strTitle;
    std::wstring m_strStatus;
    std::string m_picture;
    bool m_bLoading = false;
    int m_nLoadsEnded = 0;
    bool m_bCloseAsked = false;
    bool m_bScriptsGoOn = true;
    std::function<void()> m_onScriptError; ///< called while the box of a script error is open
};

/// A browser over the real engine, with an empty page open, pages to load and a recorder of its events.
class CBrowserTest : public testing::Test
{
public:
    /// How long a test waits for anything.
    static constexpr DWORD TimeoutMs = 60000;

protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();
    void SetUp() override;
    void TearDown() override;

    static CEngine& GetEngine() { return *s_engine; }
    /// For a test that has ended it.
    static void RestartEngine();

    /// Serves the text at the path, which begins with a slash, as HTML.
    static void Serve(const std::string& path, const std::string& html, const std::string& headers = {});
    /// Sends whoever asks for the one path on to the other.
    static void Redirect(const std::string& from, const std::string& to);
    static std::vector<std::string> TakeRequests();
    static std::wstring UrlOf(const std::wstring& path);
    /// The same page as one of another origin.
    static std::wstring ForeignUrlOf(const std::wstring& path);

    /// Handles messages until the condition holds; false when it doesn't in time.
    static bool PumpUntil(const std::function<bool()>& holds);
    /// Until the line stands among the events that weren't taken yet, and what came with it has been handled.
    bool PumpUntilTold(const std::string& line);
    /// Has the page answer once and handles all that it told before its answer.
    void Settle();

    /// Does what begins a load and waits for the load's end.
    void LoadBy(const std::function<void()>& begin);
    /// Navigates by the browser object and waits for all that comes of it.
    void Load(const std::wstring& path);
    HRESULT Navigate(const std::wstring& url);
    /// Runs a script in the page.
    Json Run(const std::wstring& script);

    /// Clicks and waits until the page has taken it.
    void Click(POINT point);

    CPage& GetPage() { return m_spBrowser->GetPage(); }

    /// The events since the last call, one a line: "Name frame /path". The frame is "top" or has the name that the page
    /// gave it.
    std::vector<std::string> TakeEvents();
    CEventRecorder& GetRecorder() { return *m_spRecorder.Get(); }

    CTestBrowserWindow m_window;
    Microsoft::WRL::ComPtr<CWebBrowser> m_spBrowser;

private:
    std::string NameFrame(IDispatch* pFrame);

    static std::unique_ptr<CEngine> s_engine;
    static std::unique_ptr<CTestPages> s_pages;

    Microsoft::WRL::ComPtr<CEventRecorder> m_spRecorder;
    DWORD m_dwCookie = 0;
};
