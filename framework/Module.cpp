#include "framework/Module.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;

HINSTANCE AfxGetInstanceHandle()
{
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

std::wstring AfxGetModulePath(HMODULE hModule)
{
    std::wstring path(MAX_PATH, L'\0');
    DWORD cchPath = 0;
    while ((cchPath = GetModuleFileNameW(hModule, path.data(), static_cast<DWORD>(path.size()))) == path.size())
        path.resize(path.size() * 2);
    path.resize(cchPath);
    return path;
}
