#pragma once

#include "band/ButtonIndex.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

/// The most positions that a walk of the layout visits; the table has one more entry for the closing -1.
inline constexpr int MaxLayoutEntries = 50;

/// The layout that stands when none is stored.
inline constexpr wchar_t DefaultLayout[] =
    L"00010001000100020001000D0001000100010009000100010001000400010001000100050001000100"
    L"01000A0001000100010008000100010001000C0001000B000100060001000100010003000100010001"
    L"0007";

/// The items of the toolbar from left to right, by index, closed by -1.
struct Layout
{
    std::array<int, MaxLayoutEntries + 1> order;
    bool hasSplitButton; ///< the screenshot, colour picker or source item stands in it
};

/// The number in a layout record of eight characters as the C library's "%X" reads it: leading blanks, a sign and "0x"
/// are taken, reading stops at the first other character. Nothing when there is no digit.
std::optional<std::uint32_t> ScanLayoutRecord(std::wstring_view record);

/// Decodes a stored layout. The root menu always stands first. Hidden, unknown and damaged records are dropped, a
/// second separator in a row collapses into the first, and decoding stops when the table is full.
Layout DecodeLayout(std::wstring_view text);
