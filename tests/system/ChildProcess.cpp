#include "tests/system/ChildProcess.h"

#include "framework/Handles.h"

namespace
{
constexpr DWORD dwMostMilliseconds = 30000;
}

DWORD RunProgram(const std::filesystem::path& program, const std::wstring& strArguments)
{
    std::wstring strCommand = L"\"" + program.wstring() + L"\" " + strArguments;
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION information = {};
    if (!CreateProcessW(program.c_str(), strCommand.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &information))
        return MAXDWORD;
    const CUniqueKernelHandle process(information.hProcess);
    const CUniqueKernelHandle thread(information.hThread);
    DWORD dwExitCode = MAXDWORD;
    if (WaitForSingleObject(process.get(), dwMostMilliseconds) != WAIT_OBJECT_0)
        TerminateProcess(process.get(), MAXDWORD);
    else
        GetExitCodeProcess(process.get(), &dwExitCode);
    return dwExitCode;
}
