#pragma once

#include "framework/Wnd.h"

#include <windows.h>

#include <deque>
#include <functional>
#include <memory>
#include <mutex>

/// Work for a thread that dispatches messages, given to it by other threads. The queue belongs to the thread that
/// creates it; the others hold it by shared pointers, so that what they post to a thread that has ended is dropped.
class CTaskQueue : public CWnd
{
public:
    using Task = std::function<void()>;

    CTaskQueue();

    /// Ends the queue: nothing runs any more. For its own thread, before anything that the tasks use is destroyed.
    void Close();

    /// Has the task run on the queue's thread, when that dispatches its messages again. For any thread.
    void Post(Task task);

    /// Has the task run and waits for its end. False when it didn't end in time (it may still run later) or the queue
    /// has ended. For threads other than the queue's own.
    bool Run(Task task, DWORD dwTimeoutMs);

private:
    DECLARE_MESSAGE_MAP()

    LRESULT OnTask(WPARAM wParam, LPARAM lParam);
    Task TakeFirst();

    std::mutex m_lock;
    std::deque<Task> m_tasks;
    HWND m_hQueueWnd = nullptr; ///< null once closed; guarded by the lock
};
