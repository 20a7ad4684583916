#pragma once

#include <optional>
#include <string>
#include <string_view>

/// What a line of a language pack defines.
struct PackEntry
{
    unsigned id;            ///< 0 when the line has no number in front
    std::wstring_view text; ///< part of the line, its escapes as written
};

/// Takes a line of the form "id:text" apart. Nothing for blank lines, comments, and lines of colons only. The text is
/// what the token's length and one colon leave of the line: a line without a colon gives the empty text, and leading
/// colons make the text begin that many characters too early.
std::optional<PackEntry> ParsePackLine(std::wstring_view line);

/// The text of an entry as it is shown, when the whole pack is loaded.
std::wstring UnescapePackText(std::wstring text);

/// The text of an entry that is read from a pack by itself: deliberately, "\n\r" is then the one escape.
std::wstring UnescapeSingleText(std::wstring text);
