#pragma once

#include "bench/engine/Engine.h"
#include "bench/Options.h"
#include "bench/server/PageServer.h"
#include "bench/window/FrameWindow.h"
#include "bench/window/TaskQueue.h"

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

/// The browser as a program: its engine, the server of its own pages and its windows.
class CApplication : private IApplication
{
public:
    explicit CApplication(const COptions& options);
    ~CApplication();

    /// Runs until the last window is closed, or the script has ended. The result is the program's exit code.
    int Run(int nShow);

    /// The folder in which the build has put programs and pages.
    static std::wstring GetProgramFolder();

private:
    CEngine& GetEngine() override { return m_engine; }
    IEventTap* GetEventTap() override;
    int GetNextTabNumber() override { return ++m_nLastTab; }
    std::wstring CompleteAddress(const std::wstring& address) override;
    void OpenWindow(const std::wstring& url) override;
    void OnFrameClosed(CFrameWindow& frame) override;

    bool Start(std::wstring& error);
    bool ShowWindow(const std::wstring& url, int nShow);
    void RunMessageLoop();

    const COptions m_options;
    std::shared_ptr<CTaskQueue> m_queue;
    CEngine m_engine;
    CPageServer m_server;
    std::vector<std::unique_ptr<CFrameWindow>> m_frames;
    int m_nLastTab = 0;
};
