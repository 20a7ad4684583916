#pragma once

#include "bench/engine/EngineProcess.h"
#include "framework/Handles.h"

#include <windows.h>

#include <filesystem>
#include <string>

/// An engine that is a Windows program: Edge, Chrome or Chromium. A job object ends all of its processes with this one.
class CNativeEngine : public CEngineProcess
{
public:
    explicit CNativeEngine(std::wstring program) : m_strProgram(std::move(program)) {}
    ~CNativeEngine() override;

    bool Start(CEngineAddress& address, std::wstring& error) override;
    bool IsRunning() const override;

private:
    bool MakeProfile();
    bool Run();
    bool WaitForAddress(CEngineAddress& address) const;

    std::wstring m_strProgram;
    std::filesystem::path m_profile;
    CUniqueKernelHandle m_job;
    CUniqueKernelHandle m_process;
};
