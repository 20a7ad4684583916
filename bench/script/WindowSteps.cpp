#include "bench/protocol/Json.h"
#include "bench/script/Dialogs.h"
#include "bench/script/EventJournal.h"
#include "bench/script/ScriptRunner.h"
#include "bench/window/FrameWindow.h"
#include "bench/window/Picture.h"
#include "bench/window/TabWindow.h"

#include <uxtheme.h>

#include <filesystem>
#include <fstream>

void CScriptRunner::OpenWindow(const Arguments& arguments)
{
    Mark();
    const size_t nFrames = CountFrames();
    m_host.OpenWindow(m_host.CompleteAddress(arguments.empty() ? L"start.html" : arguments[0]));
    WaitUntil([&] { return CountFrames() > nFrames; }, L"no window comes");
    m_nWindow = nFrames;
}

void CScriptRunner::OpenTab(const Arguments& arguments)
{
    Mark();
    const std::wstring url = m_host.CompleteAddress(arguments.empty() ? L"start.html" : arguments[0]);
    OnFrame([&](CFrameWindow& frame) { frame.AddTab(url); });
}

void CScriptRunner::CloseTab(const Arguments&)
{
    Mark();
    size_t nTabs = 0;
    OnFrame([&](CFrameWindow& frame) { nTabs = frame.GetTabs().size(); });
    if (nTabs == 1)
        return CloseWindow({});
    OnTab([](CTabWindow& window) { window.CloseTab(); });
    ExpectTabs({std::to_wstring(nTabs - 1)});
}

void CScriptRunner::CloseWindow(const Arguments&)
{
    Mark();
    const size_t nFrames = CountFrames();
    PostMessageW(GetFrameWindow(), WM_CLOSE, 0, 0);
    WaitUntil([&] { return CountFrames() < nFrames; }, L"the window stays");
    m_nWindow = 0;
}

void CScriptRunner::SelectTab(const Arguments& arguments)
{
    const size_t nTab = std::stoul(arguments[0]) - 1;
    bool bThere = false;
    OnFrame([&](CFrameWindow& frame) {
        bThere = nTab < frame.GetTabs().size();
        if (bThere)
            frame.ActivateTab(nTab);
    });
    if (!bThere)
        throw CStepError {L"there is no tab " + arguments[0]};
}

void CScriptRunner::SelectWindow(const Arguments& arguments)
{
    m_nWindow = std::stoul(arguments[0]) - 1;
    SetForegroundWindow(GetFrameWindow());
}

void CScriptRunner::ExpectTabs(const Arguments& arguments)
{
    const auto isSo = [&] {
        size_t nTabs = 0;
        OnFrame([&](CFrameWindow& frame) { nTabs = frame.GetTabs().size(); });
        return nTabs == std::stoul(arguments[0]);
    };
    WaitUntil(isSo, L"there are not so many tabs");
}

void CScriptRunner::ExpectWindows(const Arguments& arguments)
{
    WaitUntil([&] { return CountFrames() == std::stoul(arguments[0]); }, L"there are not so many windows");
}

void CScriptRunner::Resize(const Arguments& arguments)
{
    const int cx = std::stoi(arguments[0]);
    const int cy = std::stoi(arguments[1]);
    OnFrame([=](CFrameWindow& frame) { SetWindowPos(frame, nullptr, 0, 0, cx, cy, SWP_NOMOVE | SWP_NOZORDER); });
}

void CScriptRunner::SetVisualStyle(const Arguments& arguments)
{
    OnFrame([&](CFrameWindow&) { EnableTheming(arguments[0] == L"on"); });
}

void CScriptRunner::ExpectDialog(const Arguments& arguments)
{
    WaitUntil([&] { return FindDialogWithText(arguments[0]) != nullptr; }, L"no dialog says so");
}

void CScriptRunner::AnswerDialog(const Arguments& arguments)
{
    Mark();
    HWND hButton = nullptr;
    WaitUntil([&] { return (hButton = FindDialogButton(arguments[0])) != nullptr; }, L"no dialog has that button");
    const HWND hDialog = GetAncestor(hButton, GA_ROOT);
    RECT rect = {};
    GetWindowRect(hButton, &rect);
    ClickScreen({(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2});
    WaitUntil([=] { return !IsWindowVisible(hDialog); }, L"the dialog stays");
}

void CScriptRunner::TakePicture(const Arguments& arguments)
{
    const HWND hWnd = GetFrameWindow();
    const std::filesystem::path path = std::filesystem::path(m_strOutput) / (arguments[0] + L".png");
    Settle();
    RECT rect = {};
    GetWindowRect(hWnd, &rect);
    if (!SavePicture(CaptureScreen(rect).get(), path.wstring()))
        throw CStepError {L"the picture " + path.wstring() + L" could not be written"};
    if (arguments.size() > 1)
        std::ofstream(std::filesystem::path(m_strOutput) / L"captions.txt", std::ios::app | std::ios::binary)
            << ToUtf8(arguments[0] + L".png\t" + arguments[1]) << "\n";
}
