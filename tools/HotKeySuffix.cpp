#include "tools/HotKeySuffix.h"

std::wstring GetHotKeySuffix(std::wstring_view strHotKey)
{
    if (strHotKey.size() != 2)
        return {};
    std::wstring strSuffix = strHotKey[0] == L'C' ? L" (Ctrl+" : L" (Alt+";
    strSuffix += strHotKey[1];
    return strSuffix += L')';
}
