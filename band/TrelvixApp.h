#pragma once

#include "framework/WinApp.h"

/// The library's application object: starts the module, but not in the Windows shell, which loads toolbar registrations
/// as well.
class CTrelvixApp : public CWinApp
{
public:
    bool InitInstance() override;
    int ExitInstance() override;
};
