#include "framework/StdioFile.h"
#include "tests/unit/settings/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>

namespace
{
constexpr UINT CreateFlags = CFile::modeCreate | CFile::modeReadWrite;

template <class File>
class FileTest : public testing::Test
{
protected:
    std::wstring GetPath() const { return m_folder.GetPath() + L"\\file"; }

    CTemporaryFolder m_folder;
    File m_file;
};

struct Names
{
    template <class File>
    static std::string GetName(int)
    {
        return std::is_same_v<File, CFile> ? "Unbuffered" : "Buffered";
    }
};

using Files = testing::Types<CFile, CStdioFile>;
TYPED_TEST_SUITE(FileTest, Files, Names);
} // namespace

TYPED_TEST(FileTest, ReadsWhatItWrote)
{
    ASSERT_TRUE(this->m_file.Open(this->GetPath(), CreateFlags));
    this->m_file.Write("abcdef", 6);
    EXPECT_EQ(6u, this->m_file.GetPosition());
    EXPECT_EQ(2u, this->m_file.Seek(2, CFile::begin));
    char bytes[10] = {};
    EXPECT_EQ(4u, this->m_file.Read(bytes, sizeof(bytes)));
    EXPECT_STREQ("cdef", bytes);
    EXPECT_EQ(0u, this->m_file.Read(bytes, sizeof(bytes)));
}

TYPED_TEST(FileTest, ReadsAndWritesInTurns)
{
    ASSERT_TRUE(this->m_file.Open(this->m_folder.Write(L"file", "abcdef"), CFile::modeReadWrite));
    char byte = 0;
    this->m_file.Read(&byte, 1);
    EXPECT_EQ(1u, this->m_file.GetPosition());
    this->m_file.Write("B", 1);
    this->m_file.Read(&byte, 1);
    EXPECT_EQ('c', byte);
    EXPECT_EQ(2u, this->m_file.Seek(-1, CFile::current));
    this->m_file.Write("C", 1);
    this->m_file.Seek(0, CFile::end);
    this->m_file.Write("!", 1);
    this->m_file.Close();
    EXPECT_EQ("aBCdef!", this->m_folder.Read(L"file"));
}

TYPED_TEST(FileTest, TakesMoreThanABufferAtOnce)
{
    const std::string strBytes(100'000, 'x');
    ASSERT_TRUE(this->m_file.Open(this->GetPath(), CreateFlags));
    this->m_file.Write("a", 1);
    this->m_file.Write(strBytes.data(), static_cast<UINT>(strBytes.size()));
    this->m_file.Write("b", 1);
    this->m_file.Seek(0, CFile::begin);
    std::string strRead(strBytes.size() + 10, '\0');
    strRead.resize(this->m_file.Read(strRead.data(), static_cast<UINT>(strRead.size())));
    EXPECT_EQ("a" + strBytes + "b", strRead);
}

TYPED_TEST(FileTest, CreatesAnEmptyFileUnlessToldToKeepIt)
{
    this->m_folder.Write(L"file", "old");
    ASSERT_TRUE(this->m_file.Open(this->GetPath(), CreateFlags | CFile::modeNoTruncate));
    this->m_file.Close();
    EXPECT_EQ("old", this->m_folder.Read(L"file"));
    ASSERT_TRUE(this->m_file.Open(this->GetPath(), CreateFlags));
    this->m_file.Close();
    EXPECT_EQ("", this->m_folder.Read(L"file"));
}

TYPED_TEST(FileTest, ClosesAFileBeforeItOpensAnother)
{
    ASSERT_TRUE(this->m_file.Open(this->GetPath(), CreateFlags));
    this->m_file.Write("a", 1);
    EXPECT_FALSE(this->m_file.Open(this->m_folder.GetPath() + L"\\none", CFile::modeRead));
    EXPECT_FALSE(this->m_file.IsOpen());
    EXPECT_EQ("a", this->m_folder.Read(L"file"));
}

TYPED_TEST(FileTest, TellsWhyItDoesNotOpen)
{
    CFileException error;
    EXPECT_FALSE(this->m_file.Open(this->GetPath(), CFile::modeRead, &error));
    EXPECT_EQ(CFileException::fileNotFound, error.m_cause);
    EXPECT_FALSE(this->m_file.Open(this->GetPath() + L"\\deeper", CFile::modeRead, &error));
    EXPECT_EQ(CFileException::badPath, error.m_cause);
    EXPECT_FALSE(this->m_file.Open(this->m_folder.GetPath(), CFile::modeRead, &error));
    EXPECT_EQ(CFileException::accessDenied, error.m_cause);
    EXPECT_FALSE(this->m_file.Open(this->GetPath(), CFile::modeRead)) << "nobody asks why";
}

TYPED_TEST(FileTest, SharesWhatTheFlagsAllow)
{
    using enum CFile::OpenFlags;
    const std::wstring strPath = this->m_folder.Write(L"file", "a");
    const auto canOpen = [&](UINT nFlags) { return CFile().Open(strPath, nFlags); };
    ASSERT_TRUE(this->m_file.Open(strPath, modeRead | shareExclusive));
    EXPECT_FALSE(canOpen(modeRead | shareDenyNone));
    ASSERT_TRUE(this->m_file.Open(strPath, modeRead | shareDenyWrite));
    EXPECT_TRUE(canOpen(modeRead | shareDenyNone));
    EXPECT_FALSE(canOpen(modeWrite | shareDenyNone));
    ASSERT_TRUE(this->m_file.Open(strPath, modeRead | shareDenyRead));
    EXPECT_FALSE(canOpen(modeRead | shareDenyNone));
    EXPECT_TRUE(canOpen(modeWrite | shareDenyNone));
    ASSERT_TRUE(this->m_file.Open(strPath, modeRead | shareDenyNone));
    EXPECT_TRUE(canOpen(modeReadWrite | shareDenyNone));
}

TYPED_TEST(FileTest, RaisesAnErrorForWhatTheFileDoesNotAllow)
{
    char byte = 0;
    EXPECT_THROW(this->m_file.Read(&byte, 1), CFileException) << "closed";
    EXPECT_THROW(this->m_file.Write("a", 1), CFileException) << "closed";
    EXPECT_THROW(this->m_file.Seek(0, CFile::begin), CFileException) << "closed";
    ASSERT_TRUE(this->m_file.Open(this->GetPath(), CFile::modeCreate | CFile::modeWrite));
    EXPECT_THROW(this->m_file.Read(&byte, 1), CFileException) << "not for reading";
    EXPECT_THROW(this->m_file.Seek(-1, CFile::begin), CFileException) << "before the start";
}

TEST(StdioFile, LosesAnErrorOnlyWhenItIsDestroyed)
{
    const CTemporaryFolder folder;
    const std::wstring strPath = folder.Write(L"file", "a");
    {
        CStdioFile file;
        ASSERT_TRUE(file.Open(strPath, CFile::modeRead));
        file.Write("b", 1);
        EXPECT_THROW(file.Close(), CFileException);
        EXPECT_FALSE(file.IsOpen());
        ASSERT_TRUE(file.Open(strPath, CFile::modeRead));
        file.Write("b", 1);
    }
    EXPECT_EQ("a", folder.Read(L"file"));
}

TEST(StdioFile, ReadsLinesOfWideText)
{
    const CTemporaryFolder folder;
    CStdioFile file;
    ASSERT_TRUE(
        file.Open(folder.Write(L"file", AsUtf16(L"a\n\n" + std::wstring(1000, L'x') + L"\nlast")), CFile::modeRead));
    std::wstring strLine;
    for (const std::wstring& strExpected :
         {std::wstring(L"a"), std::wstring(), std::wstring(1000, L'x'), std::wstring(L"last")})
    {
        EXPECT_TRUE(file.ReadString(strLine));
        EXPECT_EQ(strExpected, strLine);
    }
    EXPECT_FALSE(file.ReadString(strLine));
}

TEST(StdioFile, ReadsPartsOfALineThatIsLongerThanTheBuffer)
{
    const CTemporaryFolder folder;
    CStdioFile file;
    ASSERT_TRUE(file.Open(folder.Write(L"file", AsUtf16(L"abcde\nf")), CFile::modeRead));
    wchar_t szPart[4];
    for (const wchar_t* pszExpected : {L"abc", L"de\n", L"f"})
        EXPECT_STREQ(pszExpected, file.ReadString(szPart, ARRAYSIZE(szPart)));
    EXPECT_EQ(nullptr, file.ReadString(szPart, ARRAYSIZE(szPart)));
}

TEST(FileException, HasACauseForEachErrorOfThePlatform)
{
    const struct
    {
        DWORD lOsError;
        int cause;
    } rows[] = {{ERROR_SUCCESS, CFileException::none},
                {ERROR_FILE_NOT_FOUND, CFileException::fileNotFound},
                {ERROR_PATH_NOT_FOUND, CFileException::badPath},
                {ERROR_INVALID_NAME, CFileException::badPath},
                {ERROR_BAD_PATHNAME, CFileException::badPath},
                {ERROR_TOO_MANY_OPEN_FILES, CFileException::tooManyOpenFiles},
                {ERROR_ACCESS_DENIED, CFileException::accessDenied},
                {ERROR_INVALID_HANDLE, CFileException::invalidFile},
                {ERROR_NEGATIVE_SEEK, CFileException::badSeek},
                {ERROR_SEEK, CFileException::badSeek},
                {ERROR_SHARING_VIOLATION, CFileException::sharingViolation},
                {ERROR_LOCK_VIOLATION, CFileException::lockViolation},
                {ERROR_DISK_FULL, CFileException::diskFull},
                {ERROR_HANDLE_DISK_FULL, CFileException::diskFull},
                {ERROR_HANDLE_EOF, CFileException::endOfFile},
                {ERROR_INVALID_DATA, CFileException::genericException}};
    for (const auto& row : rows)
        EXPECT_EQ(row.cause, CFileException::OsErrorToException(row.lOsError)) << row.lOsError;
}
