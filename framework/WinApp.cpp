#include "framework/WinApp.h"

bool CWinApp::InitInstance()
{
    return true;
}

int CWinApp::ExitInstance()
{
    return 0;
}
