#include "bench/window/TaskQueue.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <future>
#include <thread>

namespace
{
constexpr DWORD TimeoutMs = 20'000;
constexpr DWORD ShortTimeoutMs = 50;

/// A thread that serves a queue until it is told to end.
class CServingThread
{
public:
    CServingThread()
    {
        std::promise<void> ready;
        m_thread = std::thread([&] {
            m_queue = std::make_shared<CTaskQueue>();
            ready.set_value();
            MSG msg;
            while (GetMessageW(&msg, nullptr, 0, 0) > 0)
                DispatchMessageW(&msg);
            m_queue->Close();
        });
        ready.get_future().wait();
    }

    ~CServingThread() { End(); }

    void End()
    {
        if (!m_thread.joinable())
            return;
        m_queue->Post([] { PostQuitMessage(0); });
        m_thread.join();
    }

    CTaskQueue& GetQueue() { return *m_queue; }
    std::thread::id GetId() const { return m_thread.get_id(); }

private:
    std::thread m_thread;
    std::shared_ptr<CTaskQueue> m_queue;
};

TEST(TaskQueue, RunsATaskOnItsOwnThread)
{
    CServingThread thread;
    std::thread::id ranOn;
    EXPECT_TRUE(thread.GetQueue().Run([&] { ranOn = std::this_thread::get_id(); }, TimeoutMs));
    EXPECT_EQ(ranOn, thread.GetId());
}

TEST(TaskQueue, KeepsTheOrderOfTasks)
{
    CServingThread thread;
    std::vector<int> order;
    for (int i = 0; i < 100; ++i)
        thread.GetQueue().Post([&order, i] { order.push_back(i); });
    EXPECT_TRUE(thread.GetQueue().Run([] {}, TimeoutMs));
    ASSERT_EQ(order.size(), 100u);
    EXPECT_TRUE(std::ranges::is_sorted(order));
}

TEST(TaskQueue, TakesTasksFromATask)
{
    CServingThread thread;
    std::promise<void> ran;
    thread.GetQueue().Post([&] { thread.GetQueue().Post([&] { ran.set_value(); }); });
    EXPECT_EQ(ran.get_future().wait_for(std::chrono::milliseconds(TimeoutMs)), std::future_status::ready);
}

TEST(TaskQueue, GivesUpOnATaskThatTakesTooLong)
{
    std::promise<void> release;
    CServingThread thread;
    EXPECT_FALSE(thread.GetQueue().Run([&] { release.get_future().wait(); }, ShortTimeoutMs));
    release.set_value();
}

TEST(TaskQueue, DropsWhatComesAfterItsEnd)
{
    CServingThread thread;
    thread.End();
    bool bRan = false;
    EXPECT_FALSE(thread.GetQueue().Run([&] { bRan = true; }, TimeoutMs));
    EXPECT_FALSE(bRan);
}

TEST(TaskQueue, EndsTheWaitForATaskThatIsDropped)
{
    CServingThread thread;
    std::future<bool> waiting;
    // The queue ends while another thread waits for a task behind the one that ends it.
    EXPECT_TRUE(thread.GetQueue().Run(
        [&] {
            waiting = std::async(std::launch::async, [&] { return thread.GetQueue().Run([] {}, 2 * TimeoutMs); });
            thread.GetQueue().Close();
            PostQuitMessage(0);
        },
        TimeoutMs));
    ASSERT_EQ(waiting.wait_for(std::chrono::milliseconds(TimeoutMs)), std::future_status::ready);
    EXPECT_FALSE(waiting.get());
}
} // namespace
