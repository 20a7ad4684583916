#include "bench/window/Tab.h"

#include "bench/window/TabWindow.h"

#include <ole2.h>

#include <future>

namespace
{
void RunMessageLoop(CTabWindow& window)
{
    MSG msg;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0)
    {
        if (window.TranslateKey(&msg))
            continue;
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}
} // namespace

CTab::CTab(ITabFrame& frame, int nTab, CEngine& engine, const std::wstring& url, IEventTap& tap)
    : m_frame(frame), m_nTab(nTab)
{
    std::promise<void> ready;
    m_thread = std::thread([&engine, url, &tap, &ready, this] {
        OleInitialize(nullptr);
        m_queue = std::make_shared<CTaskQueue>();
        ready.set_value();
        RunThread(engine, url, tap);
        OleUninitialize();
        m_frame.OnTabClosed(m_nTab);
    });
    ready.get_future().wait();
}

CTab::~CTab()
{
    m_thread.join();
}

void CTab::RunThread(CEngine& engine, const std::wstring& url, IEventTap& tap)
{
    CTabWindow window(m_frame, m_nTab);
    m_pWindow = &window;
    if (window.Create(engine, url, tap))
        RunMessageLoop(window);
    m_queue->Close();
}

void CTab::Post(std::function<void(CTabWindow&)> task)
{
    m_queue->Post([task = std::move(task), this] { task(*m_pWindow); });
}

bool CTab::Run(std::function<void(CTabWindow&)> task, DWORD dwTimeoutMs)
{
    return m_queue->Run([task = std::move(task), this] { task(*m_pWindow); }, dwTimeoutMs);
}
