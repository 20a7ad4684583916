#pragma once

#include <string>
#include <string_view>

/// What a label says of the hot key stored as `strHotKey`, a modifier and a key: " (Alt+Q)" for "AQ". Every modifier
/// but "C" is Alt. Empty for a value of another length, which stands for no hot key.
std::wstring GetHotKeySuffix(std::wstring_view strHotKey);
