#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

/// Puts the arguments, in order, in the places of the format's "%s", as they stand. A place without an argument stays,
/// an argument without a place is left out, and "%%" becomes one percent sign.
std::wstring FormatText(std::wstring_view strFormat, std::initializer_list<std::wstring_view> arguments);
