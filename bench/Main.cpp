#include "bench/Application.h"
#include "bench/ExitCodes.h"
#include "bench/Message.h"
#include "bench/Options.h"
#include "bench/script/ScriptRunner.h"
#include "bench/Version.h"
#include "framework/Handles.h"

#include <windows.h>
#include <commctrl.h>
#include <ole2.h>
#include <shellapi.h>

#include <string>
#include <vector>

namespace
{
std::vector<std::wstring> GetArguments()
{
    int nArguments = 0;
    const CUniqueHandle<LPWSTR*, LocalFree> arguments(CommandLineToArgvW(GetCommandLineW(), &nArguments));
    std::vector<std::wstring> texts;
    for (int i = 1; arguments && i < nArguments; ++i)
        texts.push_back(arguments.get()[i]);
    return texts;
}

int RunBrowser(const COptions& options, int nShow)
{
    constexpr INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_BAR_CLASSES | ICC_COOL_CLASSES | ICC_TAB_CLASSES};
    InitCommonControlsEx(&controls);
    OleInitialize(nullptr);
    const int nExitCode = CApplication(options).Run(nShow);
    OleUninitialize();
    return nExitCode;
}
} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int nShow)
{
    COptions options;
    std::wstring error;
    if (!ParseOptions(GetArguments(), options, error))
    {
        ShowError(error);
        return ExitWrongOption;
    }
    if (options.bHelp)
    {
        ShowMessage(GetUsage() + L"\nSteps of a script, one on each line:\n" + CScriptRunner::GetStepList());
        return EXIT_SUCCESS;
    }
    if (!options.strVersion.empty() && options.strVersion != GetOwnVersion())
        return RunOtherVersion(options.strVersion);
    return RunBrowser(options, nShow);
}
