#include "bench/Application.h"

#include "bench/engine/Url.h"
#include "bench/ExitCodes.h"
#include "bench/Message.h"
#include "bench/protocol/Json.h"
#include "bench/script/ScriptRunner.h"
#include "bench/server/PageList.h"
#include "framework/Module.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

namespace
{
constexpr wchar_t DefaultEngine[] = L"chromium";
constexpr DWORD ClosingTimeoutMs = 20'000;
constexpr DWORD ClosingPollMs = 100;

/// Whether it is the name of a page of the bench, such as "frames.html", "slow?ms=100" or "status/404".
bool IsOwnPage(const std::wstring& address)
{
    const std::wstring file = address.substr(0, address.find_first_of(L"?#"));
    return file.find_first_of(L":\\ ") == std::wstring::npos && CPageServer::Knows("/" + ToUtf8(file));
}
} // namespace

CApplication::CApplication(const COptions& options) : m_options(options), m_queue(std::make_shared<CTaskQueue>()) {}

CApplication::~CApplication()
{
    m_queue->Close();
}

std::wstring CApplication::GetProgramFolder()
{
    const std::filesystem::path folder = std::filesystem::path(AfxGetModulePath(nullptr)).parent_path();
    // The browsers of older versions stand in folders of their own beside the newest.
    return (std::filesystem::exists(folder / L"pages") ? folder : folder.parent_path()).wstring();
}

int CApplication::Run(int nShow)
{
    std::wstring error;
    if (!LoadSteps(error))
    {
        ShowError(error);
        return ExitWrongOption;
    }
    if (!Start(error))
    {
        ShowError(error);
        return EXIT_FAILURE;
    }
    const std::wstring first = m_options.strUrl.empty() ? GetListedPages().front().pszFile : m_options.strUrl;
    if (!ShowWindow(CompleteAddress(first), nShow))
        return EXIT_FAILURE;
    std::thread script;
    if (!m_steps.empty())
        script = std::thread([this] { TakeSteps(); });
    RunMessageLoop();
    if (script.joinable())
        script.join();
    if (m_strFailure.empty())
        return EXIT_SUCCESS;
    ShowError(m_strFailure);
    return EXIT_FAILURE;
}

bool CApplication::Start(std::wstring& error)
{
    if (!m_server.Start(std::filesystem::path(GetProgramFolder()) / L"pages"))
    {
        error = L"There is no port for the pages of the bench.";
        return false;
    }
    if (!m_journal.Open(m_server.GetAddress(), m_options.strEventLog))
    {
        error = m_options.strEventLog + L" could not be written.";
        return false;
    }
    return m_engine.Start(m_options.strEngine.empty() ? DefaultEngine : m_options.strEngine, error);
}

bool CApplication::LoadSteps(std::wstring& error)
{
    if (!m_options.strScreenshot.empty())
        m_steps = {{0, L"wait-for-load", {}},
                   {0, L"picture", {std::filesystem::path(m_options.strScreenshot).replace_extension().wstring()}}};
    if (m_options.strScript.empty())
        return true;
    std::ifstream file(std::filesystem::path(m_options.strScript), std::ios::binary);
    if (!file)
        error = L"it can't be read";
    else
    {
        const std::string text {std::istreambuf_iterator<char>(file), {}};
        if (ParseScript(FromUtf8(text), m_steps, error) && CScriptRunner::Check(m_steps, error))
            return true;
    }
    error = m_options.strScript + L": " + error;
    return false;
}

void CApplication::TakeSteps()
{
    // Pictures are written by COM objects.
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    std::wstring error;
    if (!CScriptRunner(*this, m_options.strOutput).Run(m_steps, error))
        m_strFailure = m_options.strScript + L": " + error;
    CoUninitialize();
    CloseAll();
}

void CApplication::CloseAll()
{
    const ULONGLONG ullEnd = GetTickCount64() + ClosingTimeoutMs;
    const auto closeFrames = [](const Frames& frames) {
        for (const auto& frame : frames)
            PostMessageW(*frame, WM_CLOSE, 0, 0);
    };
    while (RunOnMain(closeFrames, ClosingTimeoutMs))
    {
        if (GetTickCount64() > ullEnd)
        {
            // A window that doesn't close, as below a dialog that the script left open, must not keep the program
            // alive.
            ShowError(m_strFailure.empty() ? L"a window doesn't close" : m_strFailure);
            TerminateProcess(GetCurrentProcess(), EXIT_FAILURE);
        }
        Sleep(ClosingPollMs);
    }
}

bool CApplication::RunOnMain(std::function<void(const Frames&)> task, DWORD dwTimeoutMs)
{
    return m_queue->Run([&] { task(m_frames); }, dwTimeoutMs);
}

bool CApplication::ShowWindow(const std::wstring& url, int nShow)
{
    IApplication& application = *this;
    m_frames.push_back(std::make_unique<CFrameWindow>(application));
    return m_frames.back()->Create(url, nShow);
}

void CApplication::RunMessageLoop()
{
    MSG msg;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0)
    {
        const auto takesKey = [&](const auto& frame) {
            return (msg.hwnd == *frame || IsChild(*frame, msg.hwnd)) && frame->TranslateKey(&msg);
        };
        if (std::ranges::any_of(m_frames, takesKey))
            continue;
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

std::wstring CApplication::CompleteAddress(const std::wstring& address)
{
    return IsOwnPage(address) ? m_server.GetAddress() + address : CompleteUrl(address);
}

void CApplication::OpenWindow(const std::wstring& url)
{
    m_queue->Post([=, this] { ShowWindow(url, SW_SHOWNORMAL); });
}

void CApplication::OnFrameClosed(CFrameWindow& frame)
{
    m_queue->Post([&frame, this] {
        std::erase_if(m_frames, [&](const auto& each) { return each.get() == &frame; });
        if (!m_frames.empty())
            return;
        m_queue->Close();
        PostQuitMessage(0);
    });
}
