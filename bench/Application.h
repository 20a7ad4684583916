#pragma once

#include "bench/engine/Engine.h"
#include "bench/Options.h"
#include "bench/script/EventJournal.h"
#include "bench/script/Script.h"
#include "bench/script/ScriptHost.h"
#include "bench/server/PageServer.h"
#include "bench/window/FrameWindow.h"
#include "bench/window/TaskQueue.h"

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// The browser as a program: its engine, the server of its own pages and its windows.
class CApplication : private IApplication, private IScriptHost
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
    IEventTap& GetEventTap() override { return m_journal; }
    int GetNextTabNumber() override { return ++m_nLastTab; }
    std::wstring CompleteAddress(const std::wstring& address) override;
    void OpenWindow(const std::wstring& url) override;
    void OnFrameClosed(CFrameWindow& frame) override;
    bool RunOnMain(std::function<void(const Frames&)> task, DWORD dwTimeoutMs) override;
    CEventJournal& GetJournal() override { return m_journal; }

    bool Start(std::wstring& error);
    /// The steps to take instead of waiting for a person; false when they can't be read.
    bool LoadSteps(std::wstring& error);
    void TakeSteps();
    void CloseAll();
    bool ShowWindow(const std::wstring& url, int nShow);
    void RunMessageLoop();

    const COptions m_options;
    std::shared_ptr<CTaskQueue> m_queue;
    CEngine m_engine;
    CPageServer m_server;
    CEventJournal m_journal;
    std::vector<CStep> m_steps;
    std::wstring m_strFailure; ///< of the script
    std::vector<std::unique_ptr<CFrameWindow>> m_frames;
    int m_nLastTab = 0;
};
