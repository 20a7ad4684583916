#pragma once

#include "bench/engine/EngineProcess.h"

#include <windows.h>

#include <memory>
#include <string>

/// The engine that shows the pages: a Chromium without windows of its own, driven over the DevTools protocol on
/// loopback. One serves the whole process. Start and the destructor belong to the main thread; all else may be called
/// on any thread in between.
class CEngine
{
public:
    CEngine();
    /// Ends the engine with all of its processes and takes its profile away. Pages must have been closed.
    ~CEngine();

    /// Starts the program, a full path or a name on the search path: of this system, or of the system below when a
    /// Windows program can start those ("/usr/bin/chromium"). Waits until it can be spoken to. False with one line for
    /// a person when it can't be started. The engine never outlives this process.
    bool Start(const std::wstring& program, std::wstring& error);

    /// The loopback port of its protocol, 0 before it has been started.
    WORD GetPort() const { return m_address.wPort; }

    /// Whether it has been started and hasn't ended since.
    bool IsRunning() const;

    /// Opens an empty page in a window of its own and gives its identifier, empty with one line for a person on
    /// failure. The calling thread must be able to dispatch messages.
    std::string OpenTarget(std::wstring& error);
    /// Closes it again; no error when it or the engine has gone.
    void CloseTarget(const std::string& id);

private:
    std::unique_ptr<CEngineProcess> m_process;
    CEngineAddress m_address;
};
