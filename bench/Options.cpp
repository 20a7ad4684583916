#include "bench/Options.h"

#include <algorithm>
#include <iterator>

namespace
{
struct COptionRow
{
    const wchar_t* pszName;
    const wchar_t* pszValueName;
    std::wstring COptions::*pValue;
    const wchar_t* pszHelp;
};

const COptionRow optionTable[] = {
    {L"--url", L"ADDRESS", &COptions::strUrl, L"show this page first"},
    {L"--ie-version", L"7.5|8.0|11.0", &COptions::strVersion, L"be a browser of this version"},
    {L"--engine", L"PROGRAM", &COptions::strEngine, L"the Chromium to show pages with"},
    {L"--script", L"FILE", &COptions::strScript, L"take the steps in the file and end"},
    {L"--output", L"DIR", &COptions::strOutput, L"where the pictures of a script go"},
    {L"--screenshot", L"FILE", &COptions::strScreenshot, L"take a picture of the first page (FILE.png) and end"},
    {L"--log-events", L"FILE", &COptions::strEventLog, L"write each event of the browser to the file"},
};

const COptionRow* FindOption(const std::wstring& name)
{
    const auto* pRow = std::ranges::find_if(optionTable, [&](const COptionRow& row) { return name == row.pszName; });
    return pRow == std::end(optionTable) ? nullptr : pRow;
}

bool IsVersion(const std::wstring& text)
{
    return text == L"7.5" || text == L"8.0" || text == L"11.0";
}

bool Fail(std::wstring& error, const std::wstring& text)
{
    error = text + L" (--help lists the options)";
    return false;
}
} // namespace

bool ParseOptions(const std::vector<std::wstring>& arguments, COptions& options, std::wstring& error)
{
    for (size_t i = 0; i < arguments.size(); ++i)
    {
        const size_t nEquals = arguments[i].find(L'=');
        const std::wstring name = arguments[i].substr(0, nEquals);
        if (name == L"--help" && nEquals == std::wstring::npos)
        {
            options.bHelp = true;
            continue;
        }
        if (!arguments[i].empty() && !arguments[i].starts_with(L'-') && options.strUrl.empty())
        {
            options.strUrl = arguments[i];
            continue;
        }
        const COptionRow* pRow = FindOption(name);
        if (pRow == nullptr)
            return Fail(error, L"Unknown option " + name);
        const bool bInline = nEquals != std::wstring::npos;
        if (!bInline && i + 1 == arguments.size())
            return Fail(error, name + L" needs a value");
        const std::wstring value = bInline ? arguments[i].substr(nEquals + 1) : arguments[++i];
        if (value.empty())
            return Fail(error, name + L" needs a value");
        options.*pRow->pValue = value;
    }
    if (!options.strVersion.empty() && !IsVersion(options.strVersion))
        return Fail(error, L"--ie-version knows 7.5, 8.0 and 11.0, not " + options.strVersion);
    return true;
}

std::wstring GetUsage()
{
    std::wstring text = L"iexplore [OPTION...] [ADDRESS]: a bench browser that hosts the Trelvix toolbar.\n\n";
    for (const COptionRow& row : optionTable)
    {
        std::wstring line = std::wstring(L"  ") + row.pszName + L" " + row.pszValueName;
        line.resize(std::max<size_t>(line.size() + 2, 30), L' ');
        text += line + row.pszHelp + L"\n";
    }
    return text + L"  --help                      show this list\n";
}
