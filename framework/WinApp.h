#pragma once

/// The application object of a module: one for each binary, told when the module starts and ends.
class CWinApp
{
public:
    CWinApp() = default;
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;
    virtual ~CWinApp() = default;

    /// False refuses the start; a library is then not loaded.
    virtual bool InitInstance();

    /// The last call, also after a refused start.
    virtual int ExitInstance();
};
