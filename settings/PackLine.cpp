#include "settings/PackLine.h"

#include "settings/LeadingNumber.h"

namespace
{
void ReplaceAll(std::wstring& text, std::wstring_view written, std::wstring_view meant)
{
    for (auto found = text.find(written); found != text.npos; found = text.find(written, found + meant.size()))
        text.replace(found, written.size(), meant);
}

std::wstring_view WithoutLeading(std::wstring_view text, const wchar_t* characters)
{
    const auto start = text.find_first_not_of(characters);
    return start == text.npos ? std::wstring_view() : text.substr(start);
}
} // namespace

std::optional<PackEntry> ParsePackLine(std::wstring_view line)
{
    line = WithoutLeading(line, L" \t");
    const std::wstring_view behindColons = WithoutLeading(line, L":");
    if (line.starts_with(L'#') || behindColons.empty())
        return std::nullopt;
    const std::wstring_view token = behindColons.substr(0, behindColons.find(L':'));
    const bool hasText = token.size() < line.size();
    return PackEntry {static_cast<unsigned>(ParseLeadingNumber(token)),
                      hasText ? line.substr(token.size() + 1) : std::wstring_view()};
}

std::wstring UnescapePackText(std::wstring_view text)
{
    std::wstring shown(text);
    ReplaceAll(shown, L"\\r\\n", L"\r\n");
    ReplaceAll(shown, L"\\n", L"\n");
    ReplaceAll(shown, L"\\t", L"\t");
    return shown;
}

std::wstring UnescapeSingleText(std::wstring_view text)
{
    std::wstring shown(text);
    ReplaceAll(shown, L"\\n\\r", L"\n\r");
    return shown;
}
