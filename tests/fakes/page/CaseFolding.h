#pragma once

#include <string>
#include <string_view>

/// The small letter of a character, or the character itself.
wchar_t FoldCase(wchar_t ch);

std::wstring FoldCase(std::wstring_view strText);
