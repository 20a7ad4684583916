#include "settings/LanguageTable.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
struct ExpectedRow
{
    std::uint16_t language;
    const wchar_t* name;
};

const std::vector<ExpectedRow> expectedRows = {
    {0x36, L"AFRIKAANS"},      {0x1C, L"ALBANIAN"},    {0x01, L"ARABIC"},
    {0x2B, L"ARMENIAN"},       {0x2C, L"AZERBAIJANI"}, {0x2D, L"BASQUE"},
    {0x23, L"BELARUSIAN"},     {0x45, L"BENGALI"},     {0x02, L"BULGARIAN"},
    {0x03, L"CATALAN"},        {0x04, L"CHINESE"},     {0x404, L"TCHINESE"},
    {0x1A, L"CROATIAN"},       {0x05, L"CZECH"},       {0x06, L"DANISH"},
    {0x13, L"DUTCH"},          {0x09, L"ENGLISH"},     {0x25, L"ESTONIAN"},
    {0x38, L"FAEROESE"},       {0x29, L"FARSI"},       {0x0B, L"FINNISH"},
    {0x0C, L"FRENCH"},         {0x07, L"GERMAN"},      {0x08, L"GREEK"},
    {0x0D, L"HEBREW"},         {0x0E, L"HUNGARIAN"},   {0x0F, L"ICELANDIC"},
    {0x21, L"INDONESIAN"},     {0x10, L"ITALIAN"},     {0x11, L"JAPANESE"},
    {0x12, L"KOREAN"},         {0x26, L"LATVIAN"},     {0x27, L"LITHUANIAN"},
    {0x2F, L"MACEDONIAN"},     {0x14, L"NORWEGIAN"},   {0x63, L"PASHTO"},
    {0x15, L"POLISH"},         {0x16, L"PORTUGUESE"},  {0x18, L"ROMANIAN"},
    {0x19, L"RUSSIAN"},        {0x1A, L"SERBIAN"},     {0x1B, L"SLOVAK"},
    {0x24, L"SLOVENIAN"},      {0x0A, L"SPANISH"},     {0x2C0A, L"SPANISH_ARGENTINA"},
    {0x280A, L"SPANISH_PERU"}, {0x1D, L"SWEDISH"},     {0x1E, L"THAI"},
    {0x1F, L"TURKISH"},        {0x42, L"TURKMEN"},     {0x80, L"UIGHUR"},
    {0x22, L"UKRAINIAN"},      {0x2A, L"VIETNAMESE"},
};

std::wstring FileOf(const wchar_t* name)
{
    return L"Languages\\" + std::wstring(name) + L".lang";
}
} // namespace

TEST(LanguageTable, HasItsRowsInOrder)
{
    const LanguageRow* row = GetFirstLanguage();
    ASSERT_EQ(53, GetLastLanguage() - row + 1);
    for (const ExpectedRow& expected : expectedRows)
    {
        EXPECT_EQ(expected.language, row->language) << testing::PrintToString(expected.name);
        EXPECT_EQ(FileOf(expected.name), row->file);
        ++row;
    }
}

TEST(FindLanguage, FindsEveryRowButTheOneBehindAnotherOfItsNumber)
{
    for (const LanguageRow* row = GetFirstLanguage(); row <= GetLastLanguage(); ++row)
    {
        const bool isHidden = row->file == FileOf(L"SERBIAN");
        EXPECT_EQ(isHidden ? FileOf(L"CROATIAN") : row->file, FindLanguage(row->language)->file);
    }
}

TEST(FindLanguage, FindsNothingForANumberWithoutARow)
{
    for (const std::uint16_t language : {0, 0x17, 0x409, 0xC07, 0xFFFF})
        EXPECT_EQ(nullptr, FindLanguage(language)) << language;
}

TEST(ResolveLanguage, KeepsAChoice)
{
    EXPECT_EQ(0x2C0A, ResolveLanguage(0x2C0A, 0x407));
}

TEST(ResolveLanguage, TakesTheUsersLanguageWithoutItsVariantOtherwise)
{
    EXPECT_EQ(0x07, ResolveLanguage(0, 0xC07));
    EXPECT_EQ(0x04, ResolveLanguage(0, 0x404)) << "Chinese, never its traditional variant";
}
