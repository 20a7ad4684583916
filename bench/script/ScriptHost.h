#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class CEventJournal;
class CFrameWindow;

/// The program as a script sees it, from the script's own thread.
class IScriptHost
{
public:
    using Frames = std::vector<std::unique_ptr<CFrameWindow>>;

    /// Does something with the windows on the main thread and waits for its end; false when that took too long.
    virtual bool RunOnMain(std::function<void(const Frames&)> task, DWORD dwTimeoutMs) = 0;
    virtual CEventJournal& GetJournal() = 0;
    /// What a script calls a page, as a whole address.
    virtual std::wstring CompleteAddress(const std::wstring& address) = 0;
    virtual void OpenWindow(const std::wstring& url) = 0;

protected:
    ~IScriptHost() = default;
};
