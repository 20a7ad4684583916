#include "broker/WindowSize.h"

#include <cstdint>
#include <limits>

namespace
{
// The platform's screen coordinates end here.
constexpr std::int64_t MaxExtent = std::numeric_limits<std::int16_t>::max();

constexpr std::size_t MaxDigits = 10;

/// Digits alone, at least one of them.
std::optional<std::int64_t> ParseDigits(std::wstring_view text)
{
    if (text.empty() || text.size() > MaxDigits || text.find_first_not_of(L"0123456789") != text.npos)
        return std::nullopt;
    std::int64_t number = 0;
    for (const wchar_t digit : text)
        number = number * 10 + (digit - L'0');
    return number;
}

bool IsExtent(std::optional<std::int64_t> number)
{
    return number && *number >= 1 && *number <= MaxExtent;
}
} // namespace

std::optional<WindowSize> ParseWindowSize(std::wstring_view text)
{
    const auto cross = text.find(L'x');
    if (cross == text.npos)
        return std::nullopt;
    const auto width = ParseDigits(text.substr(0, cross));
    const auto height = ParseDigits(text.substr(cross + 1));
    if (!IsExtent(width) || !IsExtent(height))
        return std::nullopt;
    return WindowSize {static_cast<int>(*width), static_cast<int>(*height)};
}

std::optional<long> ParseWindowNumber(std::wstring_view text)
{
    const bool negative = text.starts_with(L'-');
    const auto digits = ParseDigits(text.substr(negative));
    if (!digits)
        return std::nullopt;
    const std::int64_t number = negative ? -*digits : *digits;
    if (number < std::numeric_limits<std::int32_t>::min() || number > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return static_cast<long>(number);
}
