#include "band/TrelvixApp.h"

#include "band/ClassTable.h"
#include "band/HostPath.h"
#include "controls/IsolationAware.h"
#include "framework/ComModule.h"
#include "resources/Trelvix.h"

#include <windows.h>

bool CTrelvixApp::InitInstance()
{
    CComModule::GetModule()->Init(GetClassTable(), LIBID_TRELVIXLib);
    wchar_t szHost[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, szHost, MAX_PATH);
    return !IsRefusedHost(szHost) && CWinApp::InitInstance();
}

int CTrelvixApp::ExitInstance()
{
    CComModule::GetModule()->Term();
    IsolationAwareCleanup();
    return CWinApp::ExitInstance();
}
