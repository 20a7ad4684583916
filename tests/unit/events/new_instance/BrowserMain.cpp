// Stands in for the browser's process: started alone it gives the toolbar the command of a page and ends with 1 when
// the toolbar took it; started with an argument it tells its own command line.

#include "band/TrelvixWindow.h"
#include "framework/Handles.h"

namespace
{
std::wstring GetVariable(const wchar_t* pszName)
{
    wchar_t szValue[0x1000] = {};
    GetEnvironmentVariableW(pszName, szValue, ARRAYSIZE(szValue));
    return szValue;
}

void TellCommandLine()
{
    const CUniqueKernelHandle pipe(
        CreateFileW(GetVariable(L"NEW_INSTANCE_PIPE").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    const std::wstring strCommandLine = GetCommandLineW();
    DWORD cbWritten = 0;
    WriteFile(pipe.get(), strCommandLine.data(), static_cast<DWORD>(strCommandLine.size() * sizeof(wchar_t)),
              &cbWritten, nullptr);
}

bool RunCommand()
{
    std::wstring strCommand = GetVariable(L"NEW_INSTANCE_COMMAND");
    return CTrelvixWindow().HandleNewInstanceUrl(strCommand);
}
} // namespace

int wmain(int argc, wchar_t**)
{
    if (argc == 1)
        return RunCommand() ? 1 : 0;
    TellCommandLine();
    return 0;
}
