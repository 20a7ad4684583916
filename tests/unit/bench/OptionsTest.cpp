#include "bench/Options.h"

#include <gmock/gmock.h>

namespace
{
using testing::HasSubstr;
using testing::Not;

class ParseOptionsTest : public testing::Test
{
protected:
    bool Parse(const std::vector<std::wstring>& arguments) { return ParseOptions(arguments, m_options, m_strError); }

    COptions m_options;
    std::wstring m_strError;
};

TEST_F(ParseOptionsTest, TakesNoArgumentsAtAll)
{
    EXPECT_TRUE(Parse({}));
    EXPECT_TRUE(m_options.strUrl.empty());
    EXPECT_FALSE(m_options.bHelp);
}

TEST_F(ParseOptionsTest, ReadsEveryOption)
{
    EXPECT_TRUE(Parse({L"--url", L"http://a/", L"--ie-version", L"7.5", L"--engine", L"edge", L"--script", L"s.txt",
                       L"--screenshot", L"p.png", L"--output", L"out", L"--log-events", L"e.txt", L"--help"}));
    EXPECT_EQ(m_options.strUrl, L"http://a/");
    EXPECT_EQ(m_options.strVersion, L"7.5");
    EXPECT_EQ(m_options.strEngine, L"edge");
    EXPECT_EQ(m_options.strScript, L"s.txt");
    EXPECT_EQ(m_options.strScreenshot, L"p.png");
    EXPECT_EQ(m_options.strOutput, L"out");
    EXPECT_EQ(m_options.strEventLog, L"e.txt");
    EXPECT_TRUE(m_options.bHelp);
}

TEST_F(ParseOptionsTest, TakesAValueAfterAnEqualsSign)
{
    EXPECT_TRUE(Parse({L"--url=http://a/?b=c"}));
    EXPECT_EQ(m_options.strUrl, L"http://a/?b=c");
}

TEST_F(ParseOptionsTest, RefusesAnUnknownOption)
{
    EXPECT_FALSE(Parse({L"--colour", L"red"}));
    EXPECT_THAT(m_strError, HasSubstr(L"--colour"));
}

TEST_F(ParseOptionsTest, TakesOnePlainArgumentAsThePage)
{
    EXPECT_TRUE(Parse({L"http://a/?b=c"}));
    EXPECT_EQ(m_options.strUrl, L"http://a/?b=c");
}

TEST_F(ParseOptionsTest, RefusesASecondPage)
{
    EXPECT_FALSE(Parse({L"http://a/", L"http://b/"}));
    EXPECT_THAT(m_strError, HasSubstr(L"http://b/"));
    m_options = {};
    EXPECT_FALSE(Parse({L"--url", L"http://a/", L"http://b/"}));
}

TEST_F(ParseOptionsTest, RefusesAnEmptyArgument)
{
    EXPECT_FALSE(Parse({L""}));
}

TEST_F(ParseOptionsTest, RefusesAnOptionWithoutItsValue)
{
    EXPECT_FALSE(Parse({L"--url"}));
    EXPECT_THAT(m_strError, HasSubstr(L"--url needs a value"));
}

TEST_F(ParseOptionsTest, RefusesAnEmptyValue)
{
    EXPECT_FALSE(Parse({L"--script="}));
    EXPECT_FALSE(Parse({L"--script", L""}));
}

TEST_F(ParseOptionsTest, RefusesAVersionThatIsNotBuilt)
{
    EXPECT_FALSE(Parse({L"--ie-version", L"6.0"}));
    EXPECT_THAT(m_strError, HasSubstr(L"6.0"));
}

TEST_F(ParseOptionsTest, RefusesAValueForHelp)
{
    EXPECT_FALSE(Parse({L"--help=yes"}));
}

TEST_F(ParseOptionsTest, SaysWhatIsWrongInOneLine)
{
    Parse({L"--wrong"});
    EXPECT_THAT(m_strError, Not(HasSubstr(L"\n")));
}

TEST(GetUsage, NamesEveryOption)
{
    for (const wchar_t* pszName : {L"--url", L"--ie-version", L"--engine", L"--script", L"--screenshot", L"--output",
                                   L"--log-events", L"--help"})
        EXPECT_THAT(GetUsage(), HasSubstr(pszName));
}
} // namespace
