#include "tests/fakes/page/CaseFolding.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace
{
constexpr size_t CharacterCount = 0x10000;

/// One question to the platform for all characters; a search asks for many.
std::array<wchar_t, CharacterCount> MakeSmallLetters()
{
    std::array<wchar_t, CharacterCount> letters;
    for (size_t n = 0; n < CharacterCount; ++n)
        letters[n] = static_cast<wchar_t>(n);
    CharLowerBuffW(letters.data(), CharacterCount);
    return letters;
}
} // namespace

wchar_t FoldCase(wchar_t ch)
{
    static const auto letters = MakeSmallLetters();
    return letters[ch];
}

std::wstring FoldCase(std::wstring_view strText)
{
    std::wstring strFolded(strText);
    std::transform(strFolded.begin(), strFolded.end(), strFolded.begin(), [](wchar_t ch) { return FoldCase(ch); });
    return strFolded;
}
