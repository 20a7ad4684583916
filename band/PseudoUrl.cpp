#include "band/PseudoUrl.h"

#include <algorithm>

namespace
{
constexpr std::wstring_view SearchWebPrefix = L"trelvix:searchweb?";
constexpr std::wstring_view NewInstancePrefix = L"trelvix:newieinstance?";
constexpr std::wstring_view WhiteSpace = L" \t\n\v\f\r";

wchar_t ToLower(wchar_t ch)
{
    return ch >= L'A' && ch <= L'Z' ? ch + (L'a' - L'A') : ch;
}

bool EqualsNoCase(std::wstring_view strLeft, std::wstring_view strRight)
{
    return std::equal(strLeft.begin(), strLeft.end(), strRight.begin(), strRight.end(),
                      [](wchar_t chLeft, wchar_t chRight) { return ToLower(chLeft) == ToLower(chRight); });
}

bool StartsWithNoCase(std::wstring_view strText, std::wstring_view strPrefix)
{
    return EqualsNoCase(strText.substr(0, strPrefix.size()), strPrefix);
}

std::wstring_view GetPrefix(EPseudoUrl eCommand)
{
    return eCommand == EPseudoUrl::SearchWeb ? SearchWebPrefix : NewInstancePrefix;
}

/// Takes the next pair off the front, without the "&" behind it.
std::wstring_view TakePair(std::wstring_view& strPairs)
{
    const size_t nEnd = std::min(strPairs.find(L'&'), strPairs.size());
    const std::wstring_view strPair = strPairs.substr(0, nEnd);
    strPairs.remove_prefix(std::min(nEnd + 1, strPairs.size()));
    return strPair;
}

void ReadValue(std::wstring& strTarget, std::wstring_view strValue, const UrlValueDecoder& decode)
{
    if (auto decoded = decode(std::wstring(strValue)))
        strTarget = std::move(*decoded);
}

void ReadPair(CSearchEngineRequest& request, std::wstring_view strPair, const UrlValueDecoder& decode)
{
    strPair.remove_prefix(std::min(strPair.find_first_not_of(L'='), strPair.size()));
    const size_t nEquals = strPair.find(L'=');
    if (nEquals == std::wstring_view::npos || nEquals + 1 == strPair.size())
        return;
    const std::wstring_view strKey = strPair.substr(0, nEquals);
    const std::wstring_view strValue = strPair.substr(nEquals + 1);
    if (EqualsNoCase(strKey, L"name"))
        ReadValue(request.strName, strValue, decode);
    else if (EqualsNoCase(strKey, L"url"))
        ReadValue(request.strUrl, strValue, decode);
    else if (EqualsNoCase(strKey, L"showbutton") && strValue == L"1")
        request.bShowButton = true;
}

std::wstring_view Trim(std::wstring_view strText)
{
    strText.remove_prefix(std::min(strText.find_first_not_of(WhiteSpace), strText.size()));
    return strText.substr(0, strText.find_last_not_of(WhiteSpace) + 1);
}

/// Whether a browser was started as a bare quoted path, without arguments.
bool IsBareBrowser(std::wstring_view strCommandLine)
{
    constexpr std::wstring_view strProgram = L"iexplore.exe\""; // case matters: meant so
    return strCommandLine.starts_with(L'"') && strCommandLine.ends_with(strProgram) &&
           strCommandLine.find(strProgram) == strCommandLine.size() - strProgram.size();
}
} // namespace

EPseudoUrl RecognisePseudoUrl(std::wstring_view strUrl)
{
    if (StartsWithNoCase(strUrl, SearchWebPrefix))
        return EPseudoUrl::SearchWeb;
    if (StartsWithNoCase(strUrl, NewInstancePrefix))
        return EPseudoUrl::NewInstance;
    return EPseudoUrl::None;
}

bool CutPseudoUrlPrefix(std::wstring& strUrl, EPseudoUrl eCommand)
{
    if (eCommand == EPseudoUrl::None || RecognisePseudoUrl(strUrl) != eCommand)
        return false;
    strUrl.erase(0, GetPrefix(eCommand).size());
    return true;
}

CSearchEngineRequest ParseSearchEngineRequest(std::wstring_view strPairs, const UrlValueDecoder& decode)
{
    CSearchEngineRequest request;
    while (!strPairs.empty())
        ReadPair(request, TakePair(strPairs), decode);
    return request;
}

bool IsValidSearchEngine(const CSearchEngineRequest& request)
{
    return !request.strName.empty() &&
           (StartsWithNoCase(request.strUrl, L"http://") || StartsWithNoCase(request.strUrl, L"https://"));
}

std::optional<std::wstring> MakeNewInstanceCommandLine(std::wstring_view strCommandLine, std::wstring_view strUrl)
{
    // This set is what stands between a web page and the command line of a new process.
    constexpr std::wstring_view strForbidden = L" \t\n\r|<>[]{}()\\";
    const std::wstring_view strProgram = Trim(strCommandLine);
    if (!IsBareBrowser(strProgram) || strUrl.find_first_of(strForbidden) != std::wstring_view::npos)
        return std::nullopt;
    return std::wstring(strProgram) + L" " + std::wstring(strUrl);
}
