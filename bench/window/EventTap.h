#pragma once

#include <windows.h>
#include <exdisp.h>

/// Listens to the events of browsers for the log and for scripts.
class IEventTap
{
public:
    /// Connects a listener to the events of the tab's browser, behind those that are connected already. Called on the
    /// thread of the tab.
    virtual void Connect(int nTab, IWebBrowser2* pBrowser) = 0;

protected:
    ~IEventTap() = default;
};
