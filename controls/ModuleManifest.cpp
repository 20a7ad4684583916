#include "controls/ModuleManifest.h"

#include "framework/Module.h"

HANDLE CreateModuleActCtx()
{
    wchar_t szPath[MAX_PATH] = {};
    GetModuleFileNameW(AfxGetInstanceHandle(), szPath, MAX_PATH);
    ACTCTXW request = {};
    request.cbSize = sizeof request;
    request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
    request.lpSource = szPath;
    request.lpResourceName = MAKEINTRESOURCEW(ManifestResource);
    request.hModule = AfxGetInstanceHandle();
    return CreateActCtxW(&request);
}
