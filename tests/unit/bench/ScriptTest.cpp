#include "bench/script/Script.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ParseScriptTest : public testing::Test
{
protected:
    bool Parse(const std::wstring& text) { return ParseScript(text, m_steps, m_strError); }

    std::vector<CStep> m_steps;
    std::wstring m_strError;
};

TEST_F(ParseScriptTest, TakesAStepFromEachLine)
{
    ASSERT_TRUE(Parse(L"navigate start.html\nreload\n"));
    ASSERT_EQ(m_steps.size(), 2u);
    EXPECT_EQ(m_steps[0].strName, L"navigate");
    EXPECT_THAT(m_steps[0].arguments, ElementsAre(L"start.html"));
    EXPECT_EQ(m_steps[1].strName, L"reload");
    EXPECT_THAT(m_steps[1].arguments, IsEmpty());
}

TEST_F(ParseScriptTest, CountsAllLinesOfTheFile)
{
    ASSERT_TRUE(Parse(L"# a remark\n\n  \t\r\nreload\r\n# another\nback"));
    ASSERT_EQ(m_steps.size(), 2u);
    EXPECT_EQ(m_steps[0].nLine, 4);
    EXPECT_EQ(m_steps[1].nLine, 6);
}

TEST_F(ParseScriptTest, KeepsTheBlanksOfAQuotedWord)
{
    ASSERT_TRUE(Parse(L"type \"  two words \"  three"));
    EXPECT_THAT(m_steps[0].arguments, ElementsAre(L"  two words ", L"three"));
}

TEST_F(ParseScriptTest, TakesEscapedQuotesAndBackslashes)
{
    ASSERT_TRUE(Parse(L"expect \"a == \\\"b\\\"\" \"c:\\\\x\" \"\\d\" e:\\f"));
    EXPECT_THAT(m_steps[0].arguments, ElementsAre(L"a == \"b\"", L"c:\\x", L"\\d", L"e:\\f"));
}

TEST_F(ParseScriptTest, TakesAnEmptyWord)
{
    ASSERT_TRUE(Parse(L"type \"\""));
    EXPECT_THAT(m_steps[0].arguments, ElementsAre(L""));
}

TEST_F(ParseScriptTest, NamesTheLineOfAnOpenQuote)
{
    EXPECT_FALSE(Parse(L"reload\ntype \"open\nback"));
    EXPECT_THAT(m_strError, HasSubstr(L"line 2"));
}
} // namespace
