#pragma once

#include <windows.h>

#include <memory>
#include <string>

/// Where the protocol of an engine can be spoken.
struct CEngineAddress
{
    WORD wPort = 0;
    std::wstring strBrowserPath; ///< of the engine's own connection
};

/// A running engine, which ends with the object.
class CEngineProcess
{
public:
    virtual ~CEngineProcess() = default;

    /// Starts the program and waits until it can be spoken to; false with one line for a person when that fails.
    virtual bool Start(CEngineAddress& address, std::wstring& error) = 0;
    virtual bool IsRunning() const = 0;

    /// The way to start the program: Windows programs are started directly, those of the system below by a script.
    static std::unique_ptr<CEngineProcess> Create(const std::wstring& program);
};

/// Reads what the engine writes of its address: the port, a separator, and the path of its own connection.
bool ParseEngineAddress(const std::string& text, CEngineAddress& address);
