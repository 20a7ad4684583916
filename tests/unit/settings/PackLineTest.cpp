#include "settings/PackLine.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
/// Whether the line defines this text under this id.
testing::AssertionResult Defines(std::wstring_view line, unsigned id, std::wstring_view text)
{
    const auto entry = ParsePackLine(line);
    if (!entry)
        return testing::AssertionFailure() << "defines nothing";
    if (entry->id != id || entry->text != text)
        return testing::AssertionFailure() << entry->id << ": " << testing::PrintToString(std::wstring(entry->text));
    return testing::AssertionSuccess();
}
} // namespace

TEST(ParsePackLine, TakesNumberAndText)
{
    EXPECT_TRUE(Defines(L"189:New Version Check Frequency", 189, L"New Version Check Frequency"));
}

TEST(ParsePackLine, KeepsBlanksAroundTheText)
{
    EXPECT_TRUE(Defines(L"12: a \t", 12, L" a \t"));
}

TEST(ParsePackLine, KeepsColonsInTheText)
{
    EXPECT_TRUE(Defines(L"12:a:b::c:", 12, L"a:b::c:"));
    EXPECT_TRUE(Defines(L"12::a", 12, L":a"));
}

TEST(ParsePackLine, PassesOverBlanksAndTabsInFront)
{
    EXPECT_TRUE(Defines(L" \t 12:a", 12, L"a"));
}

TEST(ParsePackLine, DefinesTheEmptyTextWithAndWithoutAColon)
{
    EXPECT_TRUE(Defines(L"12:", 12, L""));
    EXPECT_TRUE(Defines(L"12", 12, L""));
    EXPECT_TRUE(Defines(L"12 words", 12, L""));
}

TEST(ParsePackLine, IgnoresWhatFollowsTheDigits)
{
    EXPECT_TRUE(Defines(L"12abc:x", 12, L"x"));
    EXPECT_TRUE(Defines(L"+12 :x", 12, L"x"));
}

TEST(ParsePackLine, HasNumberZeroWithoutDigitsInFront)
{
    for (const wchar_t* line : {L"abc:x", L"0:x", L"x # y:x", L"-:x"})
        EXPECT_TRUE(Defines(line, 0, L"x")) << line;
}

TEST(ParsePackLine, LetsTheTextOfALineWithLeadingColonsBeginTooEarly)
{
    EXPECT_TRUE(Defines(L":12:abc", 12, L":abc"));
    EXPECT_TRUE(Defines(L"::12:abc", 12, L"2:abc"));
    EXPECT_TRUE(Defines(L":12", 12, L""));
    EXPECT_TRUE(Defines(L":::12", 12, L"12"));
}

TEST(ParsePackLine, SkipsBlankLinesCommentsAndColons)
{
    for (const wchar_t* line : {L"", L" ", L" \t", L"#", L"# 12:a", L"  # note", L"\t#12:a", L":", L" :::"})
        EXPECT_FALSE(ParsePackLine(line)) << line;
}

TEST(ParsePackLine, TakesNoOtherBlanksForBlanks)
{
    EXPECT_TRUE(Defines(L"\v12:a", 12, L"a")) << "the number's own leading blank";
    EXPECT_TRUE(Defines(L"\x00A0#12:a", 0, L"a"));
}

TEST(UnescapePackText, ReplacesItsThreeEscapesInOrder)
{
    EXPECT_EQ(L"a\r\nb", UnescapePackText(L"a\\r\\nb"));
    EXPECT_EQ(L"a\nb", UnescapePackText(L"a\\nb"));
    EXPECT_EQ(L"a\tb", UnescapePackText(L"a\\tb"));
    EXPECT_EQ(L"\r\n\n\t\r\n", UnescapePackText(L"\\r\\n\\n\\t\\r\\n"));
}

TEST(UnescapePackText, LeavesEveryOtherBackslash)
{
    EXPECT_EQ(L"a\\rb\\x\\", UnescapePackText(L"a\\rb\\x\\"));
    EXPECT_EQ(L"\\\n", UnescapePackText(L"\\\\n")) << "a backslash can't be escaped";
}

TEST(UnescapePackText, GivesALineFeedAndALoneReturnForTheOtherOrder)
{
    EXPECT_EQ(L"a\n\\rb", UnescapePackText(L"a\\n\\rb"));
}

TEST(UnescapeSingleText, KnowsOneEscapeOnly)
{
    EXPECT_EQ(L"a\n\rb", UnescapeSingleText(L"a\\n\\rb"));
    EXPECT_EQ(L"\\r\\n\\n\\t", UnescapeSingleText(L"\\r\\n\\n\\t"));
}
