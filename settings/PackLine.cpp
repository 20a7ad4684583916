#include "settings/PackLine.h"

#include "framework/ReplaceAll.h"
#include "settings/LeadingNumber.h"

#include <utility>

namespace
{
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

std::wstring UnescapePackText(std::wstring text)
{
    if (text.find(L'\\') == text.npos) // most texts have no escape
        return text;
    text = ReplaceAll(std::move(text), L"\\r\\n", L"\r\n");
    text = ReplaceAll(std::move(text), L"\\n", L"\n");
    return ReplaceAll(std::move(text), L"\\t", L"\t");
}

std::wstring UnescapeSingleText(std::wstring text)
{
    return ReplaceAll(std::move(text), L"\\n\\r", L"\n\r");
}
