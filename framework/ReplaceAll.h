#pragma once

#include <string>
#include <string_view>

/// Puts `strValue`, as it stands, in the place of every `strMarker` in the text. A marker that isn't there is no error.
std::wstring ReplaceAll(std::wstring strText, std::wstring_view strMarker, std::wstring_view strValue);
