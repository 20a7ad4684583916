#include "tools/ZoomPercent.h"

#include <cwchar>

long ParsePercent(const std::wstring& strText)
{
    return std::wcstol(strText.c_str(), nullptr, 10);
}

std::wstring FormatPercent(long nPercent)
{
    return std::to_wstring(nPercent) + L'%';
}
