#include "band/BrowserRegistration.h"
#include "band/TrelvixApp.h"
#include "framework/ComBoundary.h"
#include "framework/ComModule.h"
#include "framework/ThreadStorage.h"

#include <windows.h>

namespace
{
CComModule s_module;
CTrelvixApp s_app;

/// The loader takes no exception, so a start that runs out of memory is a refused one.
BOOL Start() noexcept
{
    try
    {
        return s_app.InitInstance();
    }
    catch (...)
    {
        return FALSE;
    }
}
} // namespace

BOOL WINAPI DllMain(HINSTANCE, DWORD dwReason, void* pProcessEnds)
{
    if (dwReason == DLL_PROCESS_ATTACH)
        return Start();
    if (dwReason != DLL_PROCESS_DETACH)
        return TRUE;
    s_app.ExitInstance();
    if (pProcessEnds == nullptr)
        FreeThreadStorage();
    return TRUE;
}

STDAPI DllCanUnloadNow()
{
    return AfxDllCanUnloadNow() == S_OK && s_module.GetLockCount() == 0 ? S_OK : S_FALSE;
}

STDAPI DllGetClassObject(REFCLSID rclsid, REFIID riid, void** ppv)
{
    return ComBoundary([&] { return s_module.GetClassObject(rclsid, riid, ppv); });
}

STDAPI DllRegisterServer()
{
    RegisterWithBrowser();
    return ComBoundary([] { return s_module.RegisterServer(); });
}

STDAPI DllUnregisterServer()
{
    UnregisterFromBrowser();
    return ComBoundary([] { return s_module.UnregisterServer(); });
}
