#pragma once

#include <cstdint>

/// A language for which there may be a pack.
struct LanguageRow
{
    std::uint16_t language; ///< primary language id, or the full id of a variant
    const wchar_t* file;    ///< relative to the installation folder
};

/// The rows stand one behind the other, from the first to the last.
const LanguageRow* GetFirstLanguage();
const LanguageRow* GetLastLanguage();

/// The first row of exactly this language, or null.
const LanguageRow* FindLanguage(std::uint16_t language);

/// The language that a choice of the user means: itself, or for 0 the user's language without its variant.
std::uint16_t ResolveLanguage(std::uint16_t choice, std::uint16_t userLanguage);
