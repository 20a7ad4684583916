#include "tests/fakes/page/MarkupAttributes.h"

#include "tests/fakes/page/CaseFolding.h"

#include <algorithm>
#include <cwctype>

namespace
{
std::wstring_view Trim(std::wstring_view strText)
{
    while (!strText.empty() && std::iswspace(strText.front()))
        strText.remove_prefix(1);
    while (!strText.empty() && std::iswspace(strText.back()))
        strText.remove_suffix(1);
    return strText;
}

/// Takes away what stands before the first of the ends, and the end itself.
std::wstring_view Take(std::wstring_view& strText, std::wstring_view strEnds)
{
    const size_t nLength = std::min(strText.find_first_of(strEnds), strText.size());
    const std::wstring_view strTaken = strText.substr(0, nLength);
    strText.remove_prefix(std::min(nLength + 1, strText.size()));
    return strTaken;
}

StyleProperties ReadStyle(std::wstring_view strStyle)
{
    StyleProperties style;
    while (!strStyle.empty())
    {
        std::wstring_view strDeclaration = Take(strStyle, L";");
        const std::wstring_view strName = Trim(Take(strDeclaration, L":"));
        if (!strName.empty())
            style[FoldCase(strName)] = Trim(strDeclaration);
    }
    return style;
}

/// A value in quotes, or up to the next blank.
std::wstring_view TakeValue(std::wstring_view& strText)
{
    strText = Trim(strText);
    if (!strText.starts_with(L'"'))
        return Take(strText, L" ");
    strText.remove_prefix(1);
    return Take(strText, L"\"");
}
} // namespace

std::shared_ptr<CMarkupElement> MakeElement(std::wstring_view strTag, std::wstring_view strAttributes)
{
    auto spElement = std::make_shared<CMarkupElement>();
    spElement->strTag = strTag;
    std::transform(strTag.begin(), strTag.end(), spElement->strTag.begin(), std::towupper);
    while (!Trim(strAttributes).empty())
    {
        const std::wstring strName = FoldCase(Trim(Take(strAttributes, L"=")));
        const std::wstring_view strValue = TakeValue(strAttributes);
        if (strName == L"style")
            spElement->style = ReadStyle(strValue);
        else
            spElement->attributes[strName] = strValue;
    }
    return spElement;
}
