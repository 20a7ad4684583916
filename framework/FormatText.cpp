#include "framework/FormatText.h"

#include <algorithm>

std::wstring FormatText(std::wstring_view strFormat, std::initializer_list<std::wstring_view> arguments)
{
    std::wstring strText;
    auto next = arguments.begin();
    while (!strFormat.empty())
    {
        const size_t nPercent = std::min(strFormat.find(L'%'), strFormat.size());
        strText += strFormat.substr(0, nPercent);
        strFormat.remove_prefix(nPercent);
        const std::wstring_view strMark = strFormat.substr(0, 2);
        if (strMark == L"%s" && next != arguments.end())
            strText += *next++;
        else if (strMark == L"%%")
            strText += L'%';
        else
            strText += strMark;
        strFormat.remove_prefix(strMark.size());
    }
    return strText;
}
