#include "settings/LanguagePack.h"
#include "tests/unit/settings/LanguageFixture.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace
{
/// Reads from packs that are not loaded, in an installation folder that the language state knows.
class ReadPackStringTest : public CLanguageTest
{
protected:
    ReadPackStringTest() { Init(m_folder.GetPath(), German); }

    /// The text that a pack of these lines has for an id.
    std::wstring Read(std::wstring_view strLines, unsigned nId)
    {
        std::wstring strText = NoText;
        const std::wstring strFile = WritePack(L"FRENCH", AsMarkedUtf16(strLines));
        const bool bFound = ReadPackString(strFile, strText, nId);
        EXPECT_EQ(bFound, strText != NoText);
        return strText;
    }
};
} // namespace

TEST_F(ReadPackStringTest, FindsOneText)
{
    EXPECT_EQ(L"Fran\xE7"
              L"ais",
              Read(L"112:x\n114:Fran\xE7"
                   L"ais\n115:y\n",
                   114));
}

TEST_F(ReadPackStringTest, FindsTheFirstOfSeveral)
{
    EXPECT_EQ(L"first", Read(L"114:first\n114:last\n", 114));
}

TEST_F(ReadPackStringTest, FindsTheEmptyTextWithAndWithoutAColon)
{
    EXPECT_EQ(L"", Read(L"114:\n", 114));
    EXPECT_EQ(L"", Read(L"114\n", 114));
}

TEST_F(ReadPackStringTest, SkipsCommentsBlankLinesAndColons)
{
    EXPECT_EQ(L"x", Read(L"#114:a\n  # 114:b\n\n \t\n:::\n  114:x\n", 114));
}

TEST_F(ReadPackStringTest, KnowsOneEscapeOnly)
{
    EXPECT_EQ(L"a\n\rb\\r\\nc\\nd\\te", Read(L"114:a\\n\\rb\\r\\nc\\nd\\te\n", 114));
}

TEST_F(ReadPackStringTest, LetsTheTextBehindLeadingColonsBeginTooEarly)
{
    EXPECT_EQ(L"4:abc", Read(L"::114:abc\n", 114));
}

TEST_F(ReadPackStringTest, LeavesTheTextAloneWhenThePackLacksIt)
{
    EXPECT_EQ(NoText, Read(L"112:x\n", 114));
}

TEST_F(ReadPackStringTest, LeavesTheTextAloneWhenThereIsNoPack)
{
    std::wstring strText = L"before";
    EXPECT_FALSE(ReadPackString(L"Languages\\THAI.lang", strText, 114));
    EXPECT_EQ(L"before", strText);
}

TEST_F(ReadPackStringTest, LooksInTheCurrentFolderFirst)
{
    const CTemporaryFolder other;
    other.Write(L"Languages\\FRENCH.lang", "114:current");
    const std::wstring strFile = WritePack(L"FRENCH", "114:installed");
    const auto before = std::filesystem::current_path();
    std::wstring strText;
    std::filesystem::current_path(other.GetPath());
    EXPECT_TRUE(ReadPackString(strFile, strText, 114));
    std::filesystem::current_path(before);
    EXPECT_EQ(L"current", strText);
    EXPECT_TRUE(ReadPackString(strFile, strText, 114));
    EXPECT_EQ(L"installed", strText);
}

TEST_F(ReadPackStringTest, LooksInTheFolderOfTheLastHold)
{
    const CTemporaryFolder other;
    other.Write(L"Languages\\FRENCH.lang", "114:last");
    const std::wstring strFile = WritePack(L"FRENCH", "114:first");
    Init(other.GetPath(), German);
    std::wstring strText;
    EXPECT_TRUE(ReadPackString(strFile, strText, 114));
    EXPECT_EQ(L"last", strText);
}

TEST_F(ReadPackStringTest, TouchesNoLoadedText)
{
    Read(L"114:Fran\xE7"
         L"ais\n263:x\n",
         114);
    EXPECT_EQ(KnownText, TextOf(KnownId));
    EXPECT_EQ(NoText, TextOf(UnknownId));
}
