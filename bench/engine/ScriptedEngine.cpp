#include "bench/engine/ScriptedEngine.h"

#include "bench/protocol/Json.h"
#include "framework/Handles.h"
#include "framework/Module.h"

#include <filesystem>

namespace
{
constexpr DWORD StartTimeoutMs = 30000;
constexpr DWORD EndTimeoutMs = 5000;
constexpr wchar_t ScriptName[] = L"launch-engine.sh";
constexpr char FailedWord[] = "failed ";
constexpr char PortWord[] = "port ";
} // namespace

CScriptedEngine::~CScriptedEngine()
{
    if (!m_control)
        return;
    m_control.ShutdownSending();
    while (m_control.ReadLine(EndTimeoutMs))
        ;
}

bool CScriptedEngine::Start(CEngineAddress& address, std::wstring& error)
{
    CLoopbackSocket listener;
    const WORD wPort = listener.Listen();
    if (wPort != 0 && RunScript(wPort))
        m_control = listener.Accept(StartTimeoutMs);
    if (!m_control)
    {
        error = L"The engine " + m_strProgram + L" could not be started.";
        return false;
    }
    const std::string line = m_control.ReadLine(StartTimeoutMs).value_or("");
    if (line.starts_with(PortWord) && ParseEngineAddress(line.substr(sizeof PortWord - 1), address))
        return true;
    error = L"The engine " + m_strProgram + L" could not be started";
    error += line.starts_with(FailedWord) ? L": " + FromUtf8(line.substr(sizeof FailedWord - 1)) : L".";
    return false;
}

bool CScriptedEngine::RunScript(WORD wPort) const
{
    const std::wstring script = std::filesystem::path(AfxGetModulePath(nullptr)).replace_filename(ScriptName);
    std::wstring commandLine = std::wstring(ScriptName) + L" " + std::to_wstring(wPort) + L" \"" + m_strProgram + L"\"";
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(script.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
        return false;
    const CUniqueKernelHandle processOwner(process.hProcess);
    const CUniqueKernelHandle threadOwner(process.hThread);
    return true;
}
