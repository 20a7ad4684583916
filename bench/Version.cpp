#include "bench/Version.h"

#include "bench/Application.h"
#include "bench/Message.h"
#include "framework/Handles.h"
#include "framework/HostVersion.h"

#include <windows.h>

#include <filesystem>
#include <iterator>

namespace
{
constexpr wchar_t NewestVersion[] = L"11.0";

std::wstring GetProgramPath(const std::wstring& version)
{
    std::filesystem::path path = CApplication::GetProgramFolder();
    if (version != NewestVersion)
        path /= L"ie" + version;
    return (path / L"iexplore.exe").wstring();
}
} // namespace

std::wstring GetOwnVersion()
{
    wchar_t szVersion[16] = {};
    _snwprintf(szVersion, std::size(szVersion) - 1, L"%.1f", GetIEVersion());
    return szVersion;
}

int RunOtherVersion(const std::wstring& version)
{
    const std::wstring program = GetProgramPath(version);
    std::wstring commandLine = GetCommandLineW();
    STARTUPINFOW startup = {};
    GetStartupInfoW(&startup);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                        &process))
    {
        ShowError(program + L" could not be started.");
        return EXIT_FAILURE;
    }
    const CUniqueKernelHandle thread(process.hThread);
    const CUniqueKernelHandle owner(process.hProcess);
    DWORD dwExitCode = EXIT_FAILURE;
    WaitForSingleObject(process.hProcess, INFINITE);
    GetExitCodeProcess(process.hProcess, &dwExitCode);
    return static_cast<int>(dwExitCode);
}
