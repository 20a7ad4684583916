#include "bench/engine/NativeEngine.h"

#include <fstream>
#include <iterator>
#include <system_error>

namespace
{
constexpr ULONGLONG StartTimeoutMs = 30000;
constexpr DWORD PollMs = 50;
constexpr DWORD EndTimeoutMs = 5000;
constexpr wchar_t AddressFile[] = L"DevToolsActivePort";

// The same as in launch-engine.sh, for the same reasons.
constexpr wchar_t Options[] = L" --headless=new --remote-debugging-port=0 --disable-gpu --disable-quic --no-first-run"
                              L" --disable-background-networking --disable-component-update --disable-sync"
                              L" --disable-site-isolation-trials"
                              L" --disable-features=IsolateOrigins,site-per-process,BackForwardCache,Translate";
} // namespace

CNativeEngine::~CNativeEngine()
{
    m_job.reset();
    if (m_process)
        WaitForSingleObject(m_process.get(), EndTimeoutMs);
    std::error_code ignored;
    std::filesystem::remove_all(m_profile, ignored);
}

bool CNativeEngine::Start(CEngineAddress& address, std::wstring& error)
{
    error = L"The engine " + m_strProgram + L" could not be started.";
    return MakeProfile() && Run() && WaitForAddress(address);
}

bool CNativeEngine::IsRunning() const
{
    return m_process && WaitForSingleObject(m_process.get(), 0) == WAIT_TIMEOUT;
}

bool CNativeEngine::MakeProfile()
{
    std::error_code error;
    m_profile = std::filesystem::temp_directory_path(error) /
                (L"bench-engine." + std::to_wstring(GetCurrentProcessId()) + L"." + std::to_wstring(GetTickCount64()));
    return !error && std::filesystem::create_directory(m_profile, error);
}

bool CNativeEngine::Run()
{
    m_job.reset(CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(m_job.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);

    std::wstring commandLine =
        L"\"" + m_strProgram + L"\"" + Options + L" --user-data-dir=\"" + m_profile.wstring() + L"\" about:blank";
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED | CREATE_NO_WINDOW,
                        nullptr, nullptr, &startup, &process))
        return false;
    m_process.reset(process.hProcess);
    const CUniqueKernelHandle thread(process.hThread);
    AssignProcessToJobObject(m_job.get(), m_process.get());
    ResumeThread(thread.get());
    return true;
}

bool CNativeEngine::WaitForAddress(CEngineAddress& address) const
{
    const ULONGLONG ullEnd = GetTickCount64() + StartTimeoutMs;
    do
    {
        std::ifstream file(m_profile / AddressFile);
        if (ParseEngineAddress({std::istreambuf_iterator<char>(file), {}}, address))
            return true;
    } while (WaitForSingleObject(m_process.get(), PollMs) == WAIT_TIMEOUT && GetTickCount64() < ullEnd);
    return false;
}
