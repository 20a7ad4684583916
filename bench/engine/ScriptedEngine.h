#pragma once

#include "bench/engine/EngineProcess.h"
#include "bench/engine/Socket.h"

#include <windows.h>

#include <string>

/// An engine of the system below, which a Windows program can start but not watch or end: the script launch-engine.sh
/// beside this program does that, and both hear of each other's end by a loopback connection.
class CScriptedEngine : public CEngineProcess
{
public:
    explicit CScriptedEngine(std::wstring program) : m_strProgram(std::move(program)) {}
    /// Waits until the engine has ended.
    ~CScriptedEngine() override;

    bool Start(CEngineAddress& address, std::wstring& error) override;
    bool IsRunning() const override { return m_control && !m_control.HasNews(); }

private:
    bool RunScript(WORD wPort) const;

    CSocketLibrary m_library;
    std::wstring m_strProgram;
    CLoopbackSocket m_control;
};
