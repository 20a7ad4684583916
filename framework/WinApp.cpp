#include "framework/WinApp.h"

namespace
{
CWinApp* s_pApp = nullptr;
}

CWinApp::CWinApp()
{
    s_pApp = this;
}

CWinApp::~CWinApp()
{
    s_pApp = nullptr;
}

bool CWinApp::InitInstance()
{
    return true;
}

int CWinApp::ExitInstance()
{
    return 0;
}

CWinApp* AfxGetApp()
{
    return s_pApp;
}
