#include "framework/ReplaceAll.h"

std::wstring ReplaceAll(std::wstring strText, std::wstring_view strMarker, std::wstring_view strValue)
{
    size_t nFound = 0;
    while ((nFound = strText.find(strMarker, nFound)) != std::wstring::npos)
    {
        strText.replace(nFound, strMarker.size(), strValue);
        nFound += strValue.size();
    }
    return strText;
}
