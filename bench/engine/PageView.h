#pragma once

#include <string>

/// What a page tells the window that shows it. The window implements it; all calls come on the window's thread, from
/// its message loop or from inside a call to the page.
class IPageView
{
public:
    /// A new picture of the page, an image file (JPEG) in the size that was set.
    virtual void OnPicture(const std::string& image) = 0;

    /// The page on show has this address now.
    virtual void OnAddressChanged(const std::wstring& url) = 0;
    /// What lies before and behind the page on show may be another than before.
    virtual void OnHistoryChanged() = 0;
    virtual void OnTitleChanged(const std::wstring& title) = 0;
    virtual void OnLoadingChanged(bool bLoading) = 0;
    /// One line for the status bar, empty to clear it.
    virtual void OnStatusText(const std::wstring& text) = 0;

    /// A script of the page showed a message box of the kind "alert", "confirm", "prompt" or "beforeunload". It has
    /// been answered already, since the page stands still meanwhile.
    virtual void OnScriptDialog(const std::wstring& message) = 0;

    /// A link or script opens the address in another window.
    virtual void OnNewWindow(const std::wstring& url) = 0;

    /// The last call: the engine or the page's own process has ended; `reason` is one line for a person.
    virtual void OnPageGone(const std::wstring& reason) = 0;

protected:
    ~IPageView() = default;
};
