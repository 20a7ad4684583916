#include "framework/HostVersion.h"

#include <windows.h>

#include <vector>

namespace
{
double ReadHostVersion()
{
    wchar_t szPath[MAX_PATH] = {};
    if (GetModuleFileNameW(nullptr, szPath, MAX_PATH) == 0)
        return 0.0;
    DWORD dwIgnored = 0;
    const DWORD cbBlock = GetFileVersionInfoSizeW(szPath, &dwIgnored);
    std::vector<BYTE> block(cbBlock);
    if (cbBlock == 0 || !GetFileVersionInfoW(szPath, 0, cbBlock, block.data()))
        return 0.0;
    VS_FIXEDFILEINFO* pRoot = nullptr;
    UINT cbRoot = 0;
    if (!VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&pRoot), &cbRoot) || cbRoot < sizeof *pRoot)
        return 0.0;
    return MakeVersionNumber(HIWORD(pRoot->dwProductVersionMS), LOWORD(pRoot->dwProductVersionMS));
}
} // namespace

double MakeVersionNumber(unsigned nMajor, unsigned nMinor)
{
    double fraction = nMinor;
    while (fraction >= 1)
        fraction /= 10;
    return nMajor + fraction;
}

double GetIEVersion()
{
    static const double version = ReadHostVersion();
    return version;
}

bool IsIE7OrLater()
{
    return GetIEVersion() >= 7.0;
}

bool IsIE8OrLater()
{
    return GetIEVersion() >= 8.0;
}
