#include "band/LayoutString.h"

#include <cwctype>

namespace
{
constexpr std::size_t RecordLength = 8;
constexpr std::uint32_t ShownFlag = 1;

std::optional<unsigned> HexDigit(wchar_t ch)
{
    if (ch >= L'0' && ch <= L'9')
        return ch - L'0';
    if (ch >= L'A' && ch <= L'F')
        return ch - L'A' + 10;
    if (ch >= L'a' && ch <= L'f')
        return ch - L'a' + 10;
    return std::nullopt;
}

bool IsSplitButton(int index)
{
    return index == EmailScreenShotPageIndex || index == ColorPickerIndex || index == ViewSourceIndex;
}

bool IsTaken(std::uint32_t flag, int index, int last)
{
    return index < ButtonCount && flag == ShownFlag && !(index == SeparatorIndex && last == SeparatorIndex);
}
} // namespace

std::optional<std::uint32_t> ScanLayoutRecord(std::wstring_view record)
{
    while (!record.empty() && std::iswspace(record.front()))
        record.remove_prefix(1);
    const bool negative = record.starts_with(L'-');
    if (negative || record.starts_with(L'+'))
        record.remove_prefix(1);
    if (record.starts_with(L"0x") || record.starts_with(L"0X"))
        record.remove_prefix(1 + (record.size() > 2 && HexDigit(record[2])));
    std::uint32_t value = 0;
    bool found = false;
    for (wchar_t ch : record)
    {
        const auto digit = HexDigit(ch);
        if (!digit)
            break;
        value = value * 16 + *digit;
        found = true;
    }
    if (!found)
        return std::nullopt;
    return negative ? 0 - value : value;
}

Layout DecodeLayout(std::wstring_view text)
{
    Layout layout = {};
    layout.order.fill(-1);
    layout.order[0] = RootMenuIndex;
    int count = 1;
    int last = -1;
    for (; text.size() >= RecordLength && count < MaxLayoutEntries; text.remove_prefix(RecordLength))
    {
        const auto record = ScanLayoutRecord(text.substr(0, RecordLength));
        const int index = record.value_or(0) & 0xFFFF;
        if (!IsTaken(record.value_or(0) >> 16, index, last))
            continue;
        layout.order[count++] = last = index;
        layout.hasSplitButton |= IsSplitButton(index);
    }
    return layout;
}
