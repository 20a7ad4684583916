#pragma once

#include <windows.h>

#include <string>

/// How a tab stands, as the frame around it shows it.
struct CTabState
{
    std::wstring strUrl;
    std::wstring strTitle;
    std::wstring strStatus;
    bool bLoading = false;
    bool bCanGoBack = false;
    bool bCanGoForward = false;
};

/// The frame around the tabs as a tab sees it. All of it may be called on any tab's thread; what it asks for happens
/// later, on the frame's own thread.
class ITabFrame
{
public:
    virtual HWND GetFrameWindow() = 0;

    virtual void OnTabChanged(int nTab, const CTabState& state) = 0;
    /// The tab gives the keyboard to what is before it, or behind it, in the order of Tab.
    virtual void OnFocusLeavesTab(int nTab, bool bForward) = 0;
    /// The tab's thread is about to end.
    virtual void OnTabClosed(int nTab) = 0;

    virtual void OpenTab(const std::wstring& url) = 0;
    virtual void OpenWindow(const std::wstring& url) = 0;
    virtual void CloseTab(int nTab) = 0;

    /// True when the key is one of the frame's own and has been acted on.
    virtual bool TranslateFrameKey(MSG* pMsg) = 0;

protected:
    ~ITabFrame() = default;
};
