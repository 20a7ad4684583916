#pragma once

#include "bench/window/TabFrame.h"
#include "bench/window/TaskQueue.h"

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <thread>

class CEngine;
class CTabWindow;
class IEventTap;

/// The frame's hold on a tab and on its thread.
class CTab
{
public:
    /// Starts the thread, which makes the tab's window as a child of the frame and loads the address.
    CTab(ITabFrame& frame, int nTab, CEngine& engine, const std::wstring& url, IEventTap& tap);
    /// Waits for the thread; the tab must have been closed.
    ~CTab();
    CTab(const CTab&) = delete;
    CTab& operator=(const CTab&) = delete;

    int GetNumber() const { return m_nTab; }

    /// Has something done on the tab's own thread, later. Nothing happens when the tab has been closed meanwhile.
    void Post(std::function<void(CTabWindow&)> task);
    /// The same, waited for; false when it didn't end in time or the tab has been closed. Not for the frame's thread.
    bool Run(std::function<void(CTabWindow&)> task, DWORD dwTimeoutMs);

    CTabState m_state;

private:
    void RunThread(CEngine& engine, const std::wstring& url, IEventTap& tap);

    ITabFrame& m_frame;
    const int m_nTab;
    std::shared_ptr<CTaskQueue> m_queue;
    CTabWindow* m_pWindow = nullptr; ///< of the thread, valid while its queue is open
    std::thread m_thread;
};
