#include "settings/StdioFileEx.h"

#include "tests/unit/settings/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
constexpr UINT PackFlags = 0x4020; // reading, writers denied, text
constexpr UINT WriteFlags = CFile::modeCreate | CFile::modeWrite | CFile::shareDenyWrite;
constexpr int WesternCodePage = 1252;

class StdioFileEx : public testing::Test
{
protected:
    /// All lines of a file of these bytes.
    std::vector<std::wstring> LinesOf(std::string_view strBytes, int nCodePage = WesternCodePage)
    {
        CStdioFileEx file(nCodePage);
        EXPECT_TRUE(file.Open(m_folder.Write(L"file", strBytes), PackFlags));
        return ReadAll(file);
    }

    static std::vector<std::wstring> ReadAll(CStdioFileEx& file)
    {
        std::vector<std::wstring> lines;
        for (std::wstring strLine = L"left over"; file.ReadString(strLine);)
            lines.push_back(strLine);
        return lines;
    }

    /// The bytes of a new file into which the texts are written.
    std::string BytesOf(const std::vector<std::wstring>& texts, int nCodePage, UINT nFlags = 0)
    {
        CStdioFileEx file(nCodePage);
        EXPECT_TRUE(file.Open(m_folder.GetPath() + L"\\written", WriteFlags | nFlags));
        for (const std::wstring& strText : texts)
            file.WriteString(strText);
        file.Close();
        return m_folder.Read(L"written");
    }

    CTemporaryFolder m_folder;
};

/// Lines around the sizes of the buffers, in both encodings.
class StdioFileExWithLongLines : public StdioFileEx, public testing::WithParamInterface<size_t>
{
};
} // namespace

TEST_F(StdioFileEx, TellsUtf16ByItsMark)
{
    EXPECT_THAT(LinesOf(AsMarkedUtf16(L"\x65E5\x672C\nb\n")), ElementsAre(L"\x65E5\x672C", L"b"));
}

TEST_F(StdioFileEx, TakesAnythingElseForTheCodePage)
{
    EXPECT_THAT(LinesOf("caf\xE9\nb\n"), ElementsAre(L"caf\xE9", L"b"));
    EXPECT_THAT(LinesOf("\xFE\xFF"
                        "ab\n"),
                ElementsAre(L"\xFE\xFF"
                            L"ab"))
        << "UTF-16 of the other byte order";
    EXPECT_THAT(LinesOf("\xEF\xBB\xBF"
                        "ab\n"),
                ElementsAre(L"\xEF\xBB\xBF"
                            L"ab"))
        << "UTF-8";
}

TEST_F(StdioFileEx, TakesTheSystemsCodePageUnlessTold)
{
    CStdioFileEx file;
    ASSERT_TRUE(file.Open(m_folder.Write(L"file", "\xE9\n"), PackFlags));
    wchar_t szExpected[4] = {};
    MultiByteToWideChar(CP_ACP, 0, "\xE9", -1, szExpected, ARRAYSIZE(szExpected));
    EXPECT_THAT(ReadAll(file), ElementsAre(szExpected));
}

TEST_F(StdioFileEx, LooksAtTheMarkEvenWhenAskedForWideText)
{
    CStdioFileEx file(WesternCodePage);
    ASSERT_TRUE(file.Open(m_folder.Write(L"file", "narrow\n"), PackFlags | CStdioFileEx::typeUnicode));
    EXPECT_FALSE(file.IsUnicodeText());
    EXPECT_THAT(ReadAll(file), ElementsAre(L"narrow"));
}

TEST_F(StdioFileEx, FindsTheEndOfAnEmptyFileAtOnce)
{
    EXPECT_THAT(LinesOf(""), IsEmpty());
}

TEST_F(StdioFileEx, FindsTheEndOfAFileOfAMarkAtOnce)
{
    EXPECT_THAT(LinesOf("\xFF\xFE"), IsEmpty());
}

TEST_F(StdioFileEx, EmptiesTheLineAtTheEndOfTheFile)
{
    for (const std::string& strBytes : {AsMarkedUtf16(L"a"), std::string("a")})
    {
        CStdioFileEx file(WesternCodePage);
        ASSERT_TRUE(file.Open(m_folder.Write(L"file", strBytes), PackFlags));
        std::wstring strLine;
        EXPECT_TRUE(file.ReadString(strLine));
        EXPECT_FALSE(file.ReadString(strLine));
        EXPECT_EQ(L"", strLine);
    }
}

TEST_F(StdioFileEx, GivesTheLastLineWithoutALineFeed)
{
    EXPECT_THAT(LinesOf(AsMarkedUtf16(L"a\nlast")), ElementsAre(L"a", L"last"));
    EXPECT_THAT(LinesOf("a\nlast"), ElementsAre(L"a", L"last"));
}

TEST_F(StdioFileEx, ReadsBothKindsOfLineEndsAlike)
{
    EXPECT_THAT(LinesOf(AsMarkedUtf16(L"a\r\nb\nc\r\n")), ElementsAre(L"a", L"b", L"c"));
    EXPECT_THAT(LinesOf("a\r\nb\nc\r\n"), ElementsAre(L"a", L"b", L"c"));
}

TEST_F(StdioFileEx, RemovesOneCarriageReturnBeforeTheLineFeedOnly)
{
    EXPECT_THAT(LinesOf(AsMarkedUtf16(L"a\rb\r\r\nc\r")), ElementsAre(L"a\rb\r", L"c"));
    EXPECT_THAT(LinesOf("a\rb\r\r\nc\r"), ElementsAre(L"a\rb\r", L"c"));
}

TEST_F(StdioFileEx, GivesEmptyLines)
{
    EXPECT_THAT(LinesOf(AsMarkedUtf16(L"\n\r\n\n")), ElementsAre(L"", L"", L""));
    EXPECT_THAT(LinesOf("\n\r\n\n"), ElementsAre(L"", L"", L""));
}

TEST_F(StdioFileEx, EndsALineAtItsFirstNull)
{
    EXPECT_THAT(LinesOf(AsMarkedUtf16({L"a\0b\nc\n\0\nd", 9})), ElementsAre(L"a", L"c", L"", L"d"));
    EXPECT_THAT(LinesOf({"a\0b\nc\n\0\nd", 9}), ElementsAre(L"a", L"c", L"", L"d"));
}

TEST_F(StdioFileEx, KeepsLoneSurrogates)
{
    EXPECT_THAT(LinesOf(AsMarkedUtf16(L"a\xD800\n\xDC00\xD800\nb")), ElementsAre(L"a\xD800", L"\xDC00\xD800", L"b"));
}

TEST_F(StdioFileEx, KeepsAMarkWithinTheText)
{
    EXPECT_THAT(LinesOf(AsMarkedUtf16(L"\xFEFF"
                                      L"a\n\xFEFF")),
                ElementsAre(L"\xFEFF"
                            L"a",
                            L"\xFEFF"));
}

TEST_F(StdioFileEx, DropsHalfACharacterAtTheEnd)
{
    EXPECT_THAT(LinesOf(AsMarkedUtf16(L"a\nb") + "c"), ElementsAre(L"a", L"b"));
    EXPECT_THAT(LinesOf("\xFF\xFE"
                        "c"),
                IsEmpty());
}

TEST_P(StdioFileExWithLongLines, ReadsThemWhole)
{
    const std::wstring strLine(GetParam(), L'x');
    const std::wstring strText = strLine + L"\r\nafter\n" + strLine;
    EXPECT_THAT(LinesOf(AsMarkedUtf16(strText)), ElementsAre(strLine, L"after", strLine));
    EXPECT_THAT(LinesOf(std::string(strText.begin(), strText.end())), ElementsAre(strLine, L"after", strLine));
}

INSTANTIATE_TEST_SUITE_P(, StdioFileExWithLongLines,
                         testing::Values(1, 127, 128, 129, 4094, 4095, 4096, 4097, 4223, 4224, 4225, 8191, 8192, 8193,
                                         1'000'000));

TEST_F(StdioFileEx, StepsOverTheMarkAgainAfterASeekToTheStart)
{
    CStdioFileEx file;
    ASSERT_TRUE(file.Open(m_folder.Write(L"file", AsMarkedUtf16(L"a\nb\n")), PackFlags));
    ReadAll(file);
    EXPECT_EQ(0u, file.Seek(0, CFile::begin));
    EXPECT_THAT(ReadAll(file), ElementsAre(L"a", L"b"));
}

TEST_F(StdioFileEx, StepsOverNothingAfterASeekElsewhere)
{
    CStdioFileEx file;
    ASSERT_TRUE(file.Open(m_folder.Write(L"file", AsMarkedUtf16(L"abc\nd\n")), PackFlags));
    EXPECT_EQ(4u, file.Seek(4, CFile::begin));
    EXPECT_THAT(ReadAll(file), ElementsAre(L"bc", L"d"));
}

TEST_F(StdioFileEx, DropsThreeBytesInFrontOfUtf8WithoutALook)
{
    EXPECT_THAT(LinesOf("\xEF\xBB\xBF\xE6\x97\xA5\nb\n", CP_UTF8), ElementsAre(L"\x65E5", L"b"));
    EXPECT_THAT(LinesOf("abcdef\nb\n", CP_UTF8), ElementsAre(L"def", L"b"));
}

TEST_F(StdioFileEx, GivesAnEmptyLineForWhatCannotBeConverted)
{
    constexpr int NoCodePage = 7;
    EXPECT_THAT(LinesOf("a\nb\n", NoCodePage), ElementsAre(L"", L""));
}

TEST_F(StdioFileEx, ConvertsCharactersOfSeveralBytes)
{
    EXPECT_THAT(LinesOf("\x93\xFA\x96{\n\x83\\", 932), ElementsAre(L"\x65E5\x672C", L"\x30BD"));
}

TEST_F(StdioFileEx, ReadsThroughABufferAsItsBaseDoes)
{
    CStdioFileEx file;
    ASSERT_TRUE(file.Open(m_folder.Write(L"file", AsUtf16(L"ab\nc")), PackFlags));
    wchar_t szLine[8];
    EXPECT_STREQ(L"ab\n", file.ReadString(szLine, ARRAYSIZE(szLine)));
    EXPECT_STREQ(L"c", file.ReadString(szLine, ARRAYSIZE(szLine)));
    EXPECT_EQ(nullptr, file.ReadString(szLine, ARRAYSIZE(szLine)));
}

TEST_F(StdioFileEx, TellsWhyAFileDoesNotOpen)
{
    CStdioFileEx file;
    CFileException error;
    EXPECT_FALSE(file.Open(m_folder.GetPath() + L"\\none", PackFlags, &error));
    EXPECT_EQ(CFileException::fileNotFound, error.m_cause);
    EXPECT_EQ(DWORD {ERROR_FILE_NOT_FOUND}, error.m_lOsError);
    EXPECT_EQ(m_folder.GetPath() + L"\\none", error.m_strFileName);
}

TEST_F(StdioFileEx, DeniesWritersWhileAPackIsRead)
{
    CStdioFileEx file;
    const std::wstring strPath = m_folder.Write(L"file", "a");
    ASSERT_TRUE(file.Open(strPath, PackFlags));
    CFileException error;
    EXPECT_FALSE(CFile().Open(strPath, CFile::modeWrite | CFile::shareDenyNone, &error));
    EXPECT_EQ(CFileException::sharingViolation, error.m_cause);
    EXPECT_TRUE(CFile().Open(strPath, CFile::modeRead | CFile::shareDenyNone));
}

TEST_F(StdioFileEx, WritesUtf16BehindAMark)
{
    EXPECT_EQ(AsMarkedUtf16(L"\x65E5\r\nb"),
              BytesOf({L"\x65E5\r\n", L"b"}, WesternCodePage, CStdioFileEx::typeUnicode));
}

TEST_F(StdioFileEx, WritesUtf8BehindAMark)
{
    EXPECT_EQ("\xEF\xBB\xBF\xE6\x97\xA5\nb", BytesOf({L"\x65E5\n", L"b"}, CP_UTF8));
}

TEST_F(StdioFileEx, WritesACodePageWithoutAMark)
{
    EXPECT_EQ("caf\xE9\nb", BytesOf({L"caf\xE9\n", L"b"}, WesternCodePage));
}

TEST_F(StdioFileEx, WritesASignForWhatTheCodePageLacks)
{
    EXPECT_EQ("a#b", BytesOf({L"a\x65E5"
                              L"b"},
                             WesternCodePage));
}

TEST_F(StdioFileEx, WritesAnotherSignWhenTold)
{
    CStdioFileEx file(WesternCodePage);
    file.SetFallbackChar('?');
    ASSERT_TRUE(file.Open(m_folder.GetPath() + L"\\written", WriteFlags));
    file.WriteString(L"a\x65E5");
    file.Close();
    EXPECT_EQ("a?", m_folder.Read(L"written"));
}

TEST_F(StdioFileEx, WritesNoMarkWhenToldNotTo)
{
    for (const auto& [nFlags, strBytes] :
         {std::pair(CStdioFileEx::typeUnicode, AsUtf16(L"ab")), std::pair(0u, std::string("ab"))})
    {
        CStdioFileEx file(CP_UTF8);
        file.SetWriteMark(false);
        ASSERT_TRUE(file.Open(m_folder.GetPath() + L"\\written", WriteFlags | nFlags));
        file.WriteString(L"ab");
        file.Close();
        EXPECT_EQ(strBytes, m_folder.Read(L"written"));
    }
}

TEST_F(StdioFileEx, WritesNoMarkElsewhereThanAtTheStart)
{
    const std::wstring strPath = m_folder.Write(L"written", "ab");
    CStdioFileEx file(CP_UTF8);
    ASSERT_TRUE(file.Open(strPath, CFile::modeWrite));
    file.Seek(0, CFile::end);
    file.WriteString(L"c");
    file.Close();
    EXPECT_EQ("abc", m_folder.Read(L"written"));
}

TEST_F(StdioFileEx, WritesNothingForAnEmptyText)
{
    EXPECT_EQ("", BytesOf({L""}, WesternCodePage));
    EXPECT_EQ("\xFF\xFE", BytesOf({L""}, WesternCodePage, CStdioFileEx::typeUnicode));
}

TEST_F(StdioFileEx, WritesLongTexts)
{
    for (const size_t nLength : {4095, 4096, 4097, 1'000'000})
    {
        EXPECT_EQ(std::string(nLength, 'x'), BytesOf({std::wstring(nLength, L'x')}, WesternCodePage));
        EXPECT_EQ(2 + 2 * nLength, BytesOf({std::wstring(nLength, L'x')}, 0, CStdioFileEx::typeUnicode).size());
    }
}

TEST_F(StdioFileEx, ReadsBackWhatItWrote)
{
    const std::vector<std::wstring> lines = {L"first", L"",
                                             L"Gr\xFC\xDF"
                                             L"e \x65E5\x672C"};
    for (const auto& [nCodePage, nFlags] :
         {std::pair(WesternCodePage, CStdioFileEx::typeUnicode), std::pair(CP_UTF8, 0u)})
    {
        const std::string strBytes = BytesOf({lines[0] + L"\r\n", lines[1] + L"\n", lines[2]}, nCodePage, nFlags);
        EXPECT_EQ(lines, LinesOf(strBytes, nCodePage));
    }
}

TEST_F(StdioFileEx, RaisesTheFileErrorOfAWriteThatFails)
{
    CStdioFileEx closed;
    EXPECT_THROW(closed.WriteString(L"a"), CFileException);

    CStdioFileEx file;
    ASSERT_TRUE(file.Open(m_folder.Write(L"file", "a"), PackFlags));
    file.Seek(0, CFile::end);
    file.WriteString(L"b");
    EXPECT_THROW(file.Close(), CFileException) << "opened for reading";
}

TEST_F(StdioFileEx, TellsWhetherAFileHasAMark)
{
    EXPECT_TRUE(CStdioFileEx::HasByteOrderMark(m_folder.Write(L"a", "\xFF\xFE")));
    EXPECT_TRUE(CStdioFileEx::HasByteOrderMark(m_folder.Write(L"b", AsMarkedUtf16(L"text"))));
    EXPECT_FALSE(CStdioFileEx::HasByteOrderMark(m_folder.Write(L"c", "\xFE\xFF")));
    EXPECT_FALSE(CStdioFileEx::HasByteOrderMark(m_folder.Write(L"d", "\xFF")));
    EXPECT_FALSE(CStdioFileEx::HasByteOrderMark(m_folder.Write(L"e", "")));
    EXPECT_FALSE(CStdioFileEx::HasByteOrderMark(m_folder.GetPath() + L"\\none"));
    EXPECT_FALSE(CStdioFileEx::HasByteOrderMark(m_folder.GetPath())) << "a folder";
}
