#include "framework/GuidText.h"

#include <objbase.h>

std::wstring GetGuidText(REFGUID guid)
{
    wchar_t szGuid[39] = {}; // braces, 32 digits, 4 hyphens and the null
    StringFromGUID2(guid, szGuid, ARRAYSIZE(szGuid));
    return szGuid;
}
