#pragma once

#include <windows.h>

#include <string>

/// The window around a page as its browser object sees it. The window implements it; all calls come on its thread, some
/// of them from inside an event that the toolbar handles, so nothing here may destroy the page before it has returned.
class IBrowserWindow
{
public:
    /// The top-level window, which get_HWND gives.
    virtual HWND GetFrameWindow() = 0;
    /// The window of class "Internet Explorer_Server", which documents give as theirs.
    virtual HWND GetViewWindow() = 0;

    /// Opens the address in a window or tab with a thread and bands of its own; returns at once.
    virtual void OpenWindow(const std::wstring& url) = 0;
    virtual void OpenTab(const std::wstring& url) = 0;

    /// Shows or hides a registered band: a toolbar or an Explorer bar. `nSize` in pixels, 0 for the band's own.
    virtual HRESULT ShowBar(REFCLSID clsid, bool bShow, int nSize) = 0;

    virtual void SetStatusText(const std::wstring& text) = 0;

    /// Asks the window to close, by a posted message.
    virtual void Close() = 0;

    /// The command target of the window for a command of the page that nobody handled: shows the script error.
    /// True when the page's scripts shall go on.
    virtual bool ShowScriptError(const std::wstring& message, const std::wstring& url, long nLine) = 0;

protected:
    ~IBrowserWindow() = default;
};
