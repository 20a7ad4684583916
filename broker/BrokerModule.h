#pragma once

#include "framework/ComModule.h"

#include <windows.h>

/// The program as a COM server: it offers its class, and leaves when it has had no client for a while.
/// Everything runs on the one thread that calls Run.
class CBrokerModule : public CComModule
{
public:
    CBrokerModule();

    /// Serves until there has been no client for so many milliseconds. COM must be initialised on the thread, as a
    /// single-threaded apartment.
    HRESULT Run(UINT nLinger);

    void Lock() override;
    void Unlock() override;

private:
    bool HasClients() const { return GetLockCount() > 1; } // the class object that is offered locks the module as well
    void StartWaiting();
    void StopWaiting();
    void ServeUntilIdle();
    void ServeRemainingClients();

    UINT m_nLinger = 0;
    UINT_PTR m_nTimer = 0;
};
