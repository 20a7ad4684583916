#pragma once

#include <string>

inline constexpr long SmallestZoom = 10;
inline constexpr long LargestZoom = 999;

/// The number that the text begins with, behind leading blanks: 150 for "150%". 0 when it begins with none.
long ParsePercent(const std::wstring& strText);

/// "150%" for 150.
std::wstring FormatPercent(long nPercent);
