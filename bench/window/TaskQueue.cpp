#include "bench/window/TaskQueue.h"

#include "framework/Handles.h"

#include <utility>

namespace
{
constexpr UINT WM_TASK = WM_APP + 1;

/// What the two threads of a Run share: the one that waits may give up before the other has begun.
struct CCompletion
{
    CUniqueKernelHandle event {CreateEventW(nullptr, TRUE, FALSE, nullptr)};
    bool bDone = false;
};

/// Signals when the task has run, and also when it is dropped without having run.
class CSignalAtEnd
{
public:
    explicit CSignalAtEnd(std::shared_ptr<CCompletion> completion) : m_completion(std::move(completion)) {}
    ~CSignalAtEnd() { SetEvent(m_completion->event.get()); }
    CSignalAtEnd(const CSignalAtEnd&) = delete;
    CSignalAtEnd& operator=(const CSignalAtEnd&) = delete;

    void SetDone() { m_completion->bDone = true; }

private:
    std::shared_ptr<CCompletion> m_completion;
};
} // namespace

BEGIN_MESSAGE_MAP(CTaskQueue, CWnd)
    ON_MESSAGE(WM_TASK, OnTask)
END_MESSAGE_MAP()

CTaskQueue::CTaskQueue()
{
    CreateEx(0, nullptr, nullptr, 0, RECT {}, HWND_MESSAGE, 0);
    m_hQueueWnd = m_hWnd;
}

void CTaskQueue::Close()
{
    std::deque<Task> dropped;
    {
        std::lock_guard lock(m_lock);
        m_hQueueWnd = nullptr;
        dropped.swap(m_tasks);
    }
    DestroyWindow();
}

void CTaskQueue::Post(Task task)
{
    std::lock_guard lock(m_lock);
    if (m_hQueueWnd == nullptr)
        return;
    m_tasks.push_back(std::move(task));
    PostMessageW(m_hQueueWnd, WM_TASK, 0, 0);
}

bool CTaskQueue::Run(Task task, DWORD dwTimeoutMs)
{
    const auto completion = std::make_shared<CCompletion>();
    Post([task = std::move(task), signal = std::make_shared<CSignalAtEnd>(completion)] {
        task();
        signal->SetDone();
    });
    return WaitForSingleObject(completion->event.get(), dwTimeoutMs) == WAIT_OBJECT_0 && completion->bDone;
}

LRESULT CTaskQueue::OnTask(WPARAM, LPARAM)
{
    if (const Task task = TakeFirst())
        task();
    return 0;
}

CTaskQueue::Task CTaskQueue::TakeFirst()
{
    std::lock_guard lock(m_lock);
    if (m_tasks.empty())
        return nullptr;
    Task task = std::move(m_tasks.front());
    m_tasks.pop_front();
    return task;
}
