#include "settings/LeadingNumber.h"

#include <algorithm>
#include <cstdint>
#include <limits>

int ParseLeadingNumber(std::wstring_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(L" \t\n\v\f\r"), text.size()));
    const bool negative = text.starts_with(L'-');
    if (negative || text.starts_with(L'+'))
        text.remove_prefix(1);
    const std::int64_t limit = std::int64_t {std::numeric_limits<int>::max()} + negative;
    std::int64_t number = 0;
    for (wchar_t digit : text)
    {
        if (digit < L'0' || digit > L'9')
            break;
        number = std::min(number * 10 + (digit - L'0'), limit);
    }
    return static_cast<int>(negative ? -number : number);
}
