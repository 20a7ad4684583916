#include "bench/script/Script.h"

#include <algorithm>

namespace
{
bool IsBlank(wchar_t ch)
{
    return ch == L' ' || ch == L'\t' || ch == L'\r';
}

/// Takes a quoted word from behind its first quote on; false when it doesn't end.
bool TakeQuoted(const std::wstring& line, size_t& nPlace, std::wstring& word)
{
    for (; nPlace < line.size(); ++nPlace)
    {
        if (line[nPlace] == L'"')
        {
            ++nPlace;
            return true;
        }
        const bool bEscape = line[nPlace] == L'\\' && nPlace + 1 < line.size() &&
                             (line[nPlace + 1] == L'"' || line[nPlace + 1] == L'\\');
        word += bEscape ? line[++nPlace] : line[nPlace];
    }
    return false;
}

bool SplitLine(const std::wstring& line, std::vector<std::wstring>& words)
{
    size_t nPlace = 0;
    for (;;)
    {
        while (nPlace < line.size() && IsBlank(line[nPlace]))
            ++nPlace;
        if (nPlace == line.size())
            return true;
        std::wstring word;
        if (line[nPlace] == L'"')
        {
            if (!TakeQuoted(line, ++nPlace, word))
                return false;
        }
        else
            while (nPlace < line.size() && !IsBlank(line[nPlace]))
                word += line[nPlace++];
        words.push_back(word);
    }
}
} // namespace

bool ParseScript(const std::wstring& text, std::vector<CStep>& steps, std::wstring& error)
{
    int nLine = 0;
    for (size_t nBegin = 0; nBegin < text.size();)
    {
        const size_t nEnd = std::min(text.find(L'\n', nBegin), text.size());
        const std::wstring line = text.substr(nBegin, nEnd - nBegin);
        nBegin = nEnd + 1;
        ++nLine;
        CStep step {nLine, {}, {}};
        if (!SplitLine(line, step.arguments))
        {
            error = L"line " + std::to_wstring(nLine) + L": a quote is not closed";
            return false;
        }
        if (step.arguments.empty() || step.arguments.front().starts_with(L'#'))
            continue;
        step.strName = step.arguments.front();
        step.arguments.erase(step.arguments.begin());
        steps.push_back(step);
    }
    return true;
}
