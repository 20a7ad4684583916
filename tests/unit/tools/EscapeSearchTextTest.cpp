#include "tools/EscapeSearchText.h"

#include "framework/ReplaceAll.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <random>
#include <string>

namespace
{
std::wstring MakeEscape(unsigned char nByte)
{
    wchar_t szEscape[8];
    wsprintfW(szEscape, L"%%%02X", nByte);
    return szEscape;
}

bool StaysAsItIs(wchar_t ch)
{
    return std::wstring(L"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz").find(ch) !=
           std::wstring::npos;
}

/// The escapes of one character by the platform's own conversion.
std::wstring EscapeByPlatform(wchar_t ch)
{
    unsigned char bytes[3] = {};
    WideCharToMultiByte(CP_UTF8, 0, &ch, 1, reinterpret_cast<char*>(bytes), sizeof bytes, nullptr, nullptr);
    std::wstring strEscapes;
    for (const unsigned char nByte : bytes)
        if (nByte != 0)
            strEscapes += MakeEscape(nByte);
    return strEscapes;
}

/// The same result by many replacements in the whole text, one after the other.
std::wstring EscapeByReplacements(std::wstring strText)
{
    const auto escape = [&](wchar_t ch) { strText = ReplaceAll(strText, std::wstring(1, ch), EscapeByPlatform(ch)); };
    escape(L'%');
    for (const wchar_t ch : std::wstring(L"$&+,./:;=?@-_!*()'"))
        escape(ch);
    for (const wchar_t ch : std::wstring(L" \"<>#{}|\\^~[]`"))
        escape(ch);
    for (wchar_t ch = 1; ch < 32; ++ch)
        escape(ch);
    escape(127);
    for (size_t n = 0; n < strText.size(); ++n)
        if (!StaysAsItIs(strText[n]) && strText[n] != L'%')
            escape(strText[n]);
    return strText;
}

std::wstring MakeRandomText(std::mt19937& random)
{
    std::wstring strText(random() % 40, L'\0');
    for (wchar_t& ch : strText)
        ch = static_cast<wchar_t>(1 + random() % (random() % 2 == 0 ? 0x7F : 0xFFFF));
    return strText;
}
} // namespace

TEST(EscapeSearchText, KeepsTheEmptyTextEmpty)
{
    EXPECT_EQ(L"", EscapeSearchText(L""));
}

TEST(EscapeSearchText, EscapesEveryCodeUnitAsThePlatformWritesItInUtf8)
{
    for (unsigned n = 1; n <= 0xFFFF; ++n)
    {
        const wchar_t ch = static_cast<wchar_t>(n);
        const std::wstring strExpected = StaysAsItIs(ch) ? std::wstring(1, ch) : EscapeByPlatform(ch);
        ASSERT_EQ(strExpected, EscapeSearchText(std::wstring(1, ch))) << "code unit " << n;
    }
}

TEST(EscapeSearchText, WritesASpaceAsAnEscapeAndNeverAsAPlus)
{
    EXPECT_EQ(L"a%20b", EscapeSearchText(L"a b"));
    EXPECT_EQ(L"%2B", EscapeSearchText(L"+"));
}

TEST(EscapeSearchText, EscapesPunctuationOnceInCapitalDigits)
{
    EXPECT_EQ(L"%C3%A9", EscapeSearchText(L"\xE9"));
    EXPECT_EQ(L"%2D", EscapeSearchText(L"-"));
    EXPECT_EQ(L"%25", EscapeSearchText(L"%"));
    EXPECT_EQ(L"%2520", EscapeSearchText(L"%20"));
    EXPECT_EQ(L"%E6%97%A5", EscapeSearchText(L"\x65E5"));
}

TEST(EscapeSearchText, TakesTheHalvesOfASurrogatePairOneByOne)
{
    EXPECT_EQ(L"%EF%BF%BD%EF%BF%BD", EscapeSearchText(L"\xD83D\xDE00"));
}

TEST(EscapeSearchText, GivesTheResultOfTheReplacementsInOrder)
{
    std::mt19937 random(20260101);
    for (int n = 0; n < 2000; ++n)
    {
        const std::wstring strText = MakeRandomText(random);
        ASSERT_EQ(EscapeByReplacements(strText), EscapeSearchText(strText)) << "text " << n;
    }
}

TEST(EscapeSearchText, LeavesOnlyLettersDigitsAndPercentSigns)
{
    std::mt19937 random(7);
    for (int n = 0; n < 500; ++n)
        for (const wchar_t ch : EscapeSearchText(MakeRandomText(random)))
            ASSERT_TRUE(StaysAsItIs(ch) || ch == L'%');
}
