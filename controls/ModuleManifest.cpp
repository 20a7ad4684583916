#include "controls/ModuleManifest.h"

#include "framework/Module.h"

CUniqueActCtx CreateModuleActCtx()
{
    const std::wstring path = AfxGetModulePath(AfxGetInstanceHandle());
    ACTCTXW request = {};
    request.cbSize = sizeof request;
    request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
    request.lpSource = path.c_str();
    request.lpResourceName = MAKEINTRESOURCEW(ManifestResource);
    request.hModule = AfxGetInstanceHandle();
    const HANDLE hContext = CreateActCtxW(&request);
    return CUniqueActCtx(hContext == INVALID_HANDLE_VALUE ? nullptr : hContext);
}
