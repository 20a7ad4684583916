#include "settings/LanguageTable.h"

#include <algorithm>
#include <iterator>

namespace
{
constexpr std::uint16_t PrimaryLanguageMask = 0x3FF;

// The first row of a language counts, so 0x1A always means Croatian.
const LanguageRow languageTable[] = {
    {0x36, L"Languages\\AFRIKAANS.lang"},
    {0x1C, L"Languages\\ALBANIAN.lang"},
    {0x01, L"Languages\\ARABIC.lang"},
    {0x2B, L"Languages\\ARMENIAN.lang"},
    {0x2C, L"Languages\\AZERBAIJANI.lang"},
    {0x2D, L"Languages\\BASQUE.lang"},
    {0x23, L"Languages\\BELARUSIAN.lang"},
    {0x45, L"Languages\\BENGALI.lang"},
    {0x02, L"Languages\\BULGARIAN.lang"},
    {0x03, L"Languages\\CATALAN.lang"},
    {0x04, L"Languages\\CHINESE.lang"},
    {0x404, L"Languages\\TCHINESE.lang"},
    {0x1A, L"Languages\\CROATIAN.lang"},
    {0x05, L"Languages\\CZECH.lang"},
    {0x06, L"Languages\\DANISH.lang"},
    {0x13, L"Languages\\DUTCH.lang"},
    {0x09, L"Languages\\ENGLISH.lang"},
    {0x25, L"Languages\\ESTONIAN.lang"},
    {0x38, L"Languages\\FAEROESE.lang"},
    {0x29, L"Languages\\FARSI.lang"},
    {0x0B, L"Languages\\FINNISH.lang"},
    {0x0C, L"Languages\\FRENCH.lang"},
    {0x07, L"Languages\\GERMAN.lang"},
    {0x08, L"Languages\\GREEK.lang"},
    {0x0D, L"Languages\\HEBREW.lang"},
    {0x0E, L"Languages\\HUNGARIAN.lang"},
    {0x0F, L"Languages\\ICELANDIC.lang"},
    {0x21, L"Languages\\INDONESIAN.lang"},
    {0x10, L"Languages\\ITALIAN.lang"},
    {0x11, L"Languages\\JAPANESE.lang"},
    {0x12, L"Languages\\KOREAN.lang"},
    {0x26, L"Languages\\LATVIAN.lang"},
    {0x27, L"Languages\\LITHUANIAN.lang"},
    {0x2F, L"Languages\\MACEDONIAN.lang"},
    {0x14, L"Languages\\NORWEGIAN.lang"},
    {0x63, L"Languages\\PASHTO.lang"},
    {0x15, L"Languages\\POLISH.lang"},
    {0x16, L"Languages\\PORTUGUESE.lang"},
    {0x18, L"Languages\\ROMANIAN.lang"},
    {0x19, L"Languages\\RUSSIAN.lang"},
    {0x1A, L"Languages\\SERBIAN.lang"},
    {0x1B, L"Languages\\SLOVAK.lang"},
    {0x24, L"Languages\\SLOVENIAN.lang"},
    {0x0A, L"Languages\\SPANISH.lang"},
    {0x2C0A, L"Languages\\SPANISH_ARGENTINA.lang"},
    {0x280A, L"Languages\\SPANISH_PERU.lang"},
    {0x1D, L"Languages\\SWEDISH.lang"},
    {0x1E, L"Languages\\THAI.lang"},
    {0x1F, L"Languages\\TURKISH.lang"},
    {0x42, L"Languages\\TURKMEN.lang"},
    {0x80, L"Languages\\UIGHUR.lang"},
    {0x22, L"Languages\\UKRAINIAN.lang"},
    {0x2A, L"Languages\\VIETNAMESE.lang"},
};
} // namespace

const LanguageRow* GetFirstLanguage()
{
    return std::begin(languageTable);
}

const LanguageRow* GetLastLanguage()
{
    return std::end(languageTable) - 1;
}

const LanguageRow* FindLanguage(std::uint16_t language)
{
    const auto* row = std::find_if(std::begin(languageTable), std::end(languageTable),
                                   [=](const LanguageRow& candidate) { return candidate.language == language; });
    return row == std::end(languageTable) ? nullptr : row;
}

std::uint16_t ResolveLanguage(std::uint16_t choice, std::uint16_t userLanguage)
{
    return choice != 0 ? choice : userLanguage & PrimaryLanguageMask;
}
