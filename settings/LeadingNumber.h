#pragma once

#include <string_view>

/// The decimal number that a text begins with, behind leading blanks and a sign; 0 when no digit stands there. What
/// follows the digits is ignored. A number beyond 32 bits gives the nearest that has room.
int ParseLeadingNumber(std::wstring_view text);
