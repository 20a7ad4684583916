#include "band/HostPath.h"

#include <algorithm>
#include <cwctype>

bool IsRefusedHost(std::wstring path)
{
    std::transform(path.begin(), path.end(), path.begin(), [](wchar_t ch) { return std::towlower(ch); });
    return path.find(L"explorer.exe") != std::wstring::npos;
}
