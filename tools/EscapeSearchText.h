#pragma once

#include <string>
#include <string_view>

/// The text as it stands in a query: ASCII letters and digits stay, each byte of the UTF-8 of every other character
/// becomes a percent sign and two upper-case hexadecimal digits. The halves of a surrogate pair are taken one by one,
/// so each becomes the escape of the replacement character.
std::wstring EscapeSearchText(std::wstring_view strText);
