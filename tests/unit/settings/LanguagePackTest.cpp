#include "settings/LanguagePack.h"

#include "framework/File.h"
#include "settings/LanguageTable.h"
#include "tests/unit/settings/LanguageFixture.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace
{
class LanguagePack : public CLanguageTest
{
};

/// The current folder of the process is another one while the object lives.
class CCurrentFolder
{
public:
    explicit CCurrentFolder(const std::wstring& strFolder) { std::filesystem::current_path(strFolder); }
    ~CCurrentFolder() { std::filesystem::current_path(m_before); }

private:
    std::filesystem::path m_before = std::filesystem::current_path();
};
} // namespace

TEST_F(LanguagePack, ServesTheBuiltInTextsWhenNoneIsLoaded)
{
    std::wstring strText;
    EXPECT_EQ(static_cast<int>(std::size(KnownText)) - 1, LoadTranslatedString(strText, KnownId)) << "the length";
    EXPECT_EQ(KnownText, strText);
}

TEST_F(LanguagePack, LeavesTheTextAloneWhenThereIsNone)
{
    std::wstring strText = L"before";
    EXPECT_EQ(0, LoadTranslatedString(strText, UnknownId));
    EXPECT_EQ(L"before", strText);
}

TEST_F(LanguagePack, PutsItsTextsBeforeTheBuiltInOnes)
{
    LoadText(L"114:Deutsch\n");
    std::wstring strText;
    EXPECT_NE(0, LoadTranslatedString(strText, KnownId));
    EXPECT_EQ(L"Deutsch", strText);
}

TEST_F(LanguagePack, MayHaveSomeTextsOnly)
{
    LoadText(L"112:Optionen\n");
    EXPECT_EQ(KnownText, TextOf(KnownId));
}

TEST_F(LanguagePack, MayHaveTextsThatAreNotBuiltIn)
{
    LoadText(L"263:new\n4000000000:far\n");
    EXPECT_EQ(L"new", TextOf(UnknownId));
}

TEST_F(LanguagePack, ReadsUtf16AndCodePageAlike)
{
    const std::string strNarrow = "114:caf\xE9\r\n# c\r\n263:a\\nb";
    std::wstring strWide(strNarrow.size(), L'\0');
    strWide.resize(MultiByteToWideChar(CP_ACP, 0, strNarrow.data(), static_cast<int>(strNarrow.size()), strWide.data(),
                                       static_cast<int>(strWide.size())));
    for (const std::string& strBytes : {strNarrow, AsMarkedUtf16(strWide)})
    {
        WritePack(L"GERMAN", strBytes);
        InitLanguage(m_folder.GetPath(), German);
        EXPECT_EQ(strWide.substr(4, strWide.find(L'\r') - 4), TextOf(KnownId));
        EXPECT_EQ(L"a\nb", TextOf(UnknownId));
        ReleaseLanguage();
    }
}

TEST_F(LanguagePack, BlanksATextByAnEmptyEntry)
{
    LoadText(L"114:\n112\n");
    std::wstring strText = L"before";
    EXPECT_NE(0, LoadTranslatedString(strText, KnownId));
    EXPECT_EQ(L"", strText);
    EXPECT_EQ(L"", TextOf(112));
}

TEST_F(LanguagePack, TakesDigitsInFrontForTheNumber)
{
    LoadText(L"263abc:x\n");
    EXPECT_EQ(L"x", TextOf(UnknownId));
}

TEST_F(LanguagePack, DropsLinesWithoutANumber)
{
    LoadText(L"abc:x\n0:x\n  # note\nx # y\n:\n\n263:sound\n");
    EXPECT_EQ(NoText, TextOf(0));
    EXPECT_EQ(L"sound", TextOf(UnknownId));
}

TEST_F(LanguagePack, ReplacesItsEscapes)
{
    LoadText(L"263:a\\r\\nb\\nc\\td\n264:a\\n\\rb\n");
    EXPECT_EQ(L"a\r\nb\nc\td", TextOf(263));
    EXPECT_EQ(L"a\n\\rb", TextOf(264));
}

TEST_F(LanguagePack, KeepsTheLastOfSeveralEntries)
{
    LoadText(L"263:first\n263:last\n");
    EXPECT_EQ(L"last", TextOf(UnknownId));
}

TEST_F(LanguagePack, LoadsEachLanguageFromItsFile)
{
    for (const LanguageRow* row = GetFirstLanguage(); row <= GetLastLanguage(); ++row)
        m_folder.Write(row->file, AsMarkedUtf16(L"263:" + std::wstring(row->file)));
    for (const LanguageRow* row = GetFirstLanguage(); row <= GetLastLanguage(); ++row)
    {
        InitLanguage(m_folder.GetPath(), row->language);
        EXPECT_EQ(FindLanguage(row->language)->file, TextOf(UnknownId));
        EXPECT_EQ(row->language, GetRequestedLanguage());
        ReleaseLanguage();
    }
}

TEST_F(LanguagePack, IsTheCroatianOneWhenTheSerbianOneIsAskedFor)
{
    WritePack(L"SERBIAN", "263:SERBIAN");
    WritePack(L"CROATIAN", "263:CROATIAN");
    Init(m_folder.GetPath(), Croatian);
    EXPECT_EQ(L"CROATIAN", TextOf(UnknownId));
}

TEST_F(LanguagePack, IsOfTheUsersLanguageWhenNoneIsChosen)
{
    const std::uint16_t language = ResolveLanguage(0, GetUserDefaultLangID());
    m_folder.Write(FindLanguage(language)->file, "263:the user's");
    Init(m_folder.GetPath(), 0);
    EXPECT_EQ(language, GetRequestedLanguage());
    EXPECT_EQ(L"the user's", TextOf(UnknownId));
}

TEST_F(LanguagePack, IsFoundInAFolderWithAClosingBackslash)
{
    WritePack(L"GERMAN", "263:found");
    Init(m_folder.GetPath() + L"\\", German);
    EXPECT_EQ(L"found", TextOf(UnknownId));
}

TEST_F(LanguagePack, IsLookedForInTheCurrentFolderAtLast)
{
    const CTemporaryFolder other;
    WritePack(L"GERMAN", "263:current");
    const CCurrentFolder current(m_folder.GetPath());
    Init(other.GetPath(), German);
    EXPECT_EQ(L"current", TextOf(UnknownId));
}

TEST_F(LanguagePack, IsTakenFromTheInstallationFolderFirst)
{
    const CTemporaryFolder other;
    other.Write(L"Languages\\GERMAN.lang", "263:current");
    WritePack(L"GERMAN", "263:installed");
    const CCurrentFolder current(other.GetPath());
    Init(m_folder.GetPath(), German);
    EXPECT_EQ(L"installed", TextOf(UnknownId));
}

TEST_F(LanguagePack, IsLookedForInTheCurrentFolderWhenNoInstallationIsKnown)
{
    WritePack(L"GERMAN", "263:current");
    const CCurrentFolder current(m_folder.GetPath());
    Init(L"", German);
    EXPECT_EQ(L"current", TextOf(UnknownId));
}

TEST_F(LanguagePack, LeavesTheBuiltInTextsWhenItIsMissing)
{
    Init(m_folder.GetPath(), German);
    EXPECT_EQ(German, GetRequestedLanguage());
    EXPECT_EQ(KnownText, TextOf(KnownId));
}

TEST_F(LanguagePack, LeavesTheBuiltInTextsForALanguageWithoutARow)
{
    Init(m_folder.GetPath(), 0x17);
    EXPECT_EQ(0x17, GetRequestedLanguage());
    EXPECT_EQ(KnownText, TextOf(KnownId));
}

TEST_F(LanguagePack, LeavesTheBuiltInTextsWhenAWriterHoldsIt)
{
    WritePack(L"GERMAN", "114:Deutsch");
    CFile writer;
    ASSERT_TRUE(writer.Open(m_folder.GetPath() + L"\\Languages\\GERMAN.lang", CFile::modeWrite | CFile::shareDenyNone));
    Init(m_folder.GetPath(), German);
    EXPECT_EQ(KnownText, TextOf(KnownId));
}

TEST_F(LanguagePack, StaysUntilItsLastHoldIsDropped)
{
    LoadText(L"263:loaded\n");
    Init(m_folder.GetPath(), German);
    ReleaseLanguage();
    EXPECT_EQ(L"loaded", TextOf(UnknownId));
    ReleaseLanguage();
    EXPECT_EQ(NoText, TextOf(UnknownId));
    InitLanguage(m_folder.GetPath(), German);
    InitLanguage(m_folder.GetPath(), German);
}

TEST_F(LanguagePack, IsNotExchangedWhileItIsHeld)
{
    LoadText(L"263:German\n");
    WritePack(L"CROATIAN", "263:Croatian");
    Init(m_folder.GetPath(), Croatian);
    EXPECT_EQ(German, GetRequestedLanguage());
    EXPECT_EQ(L"German", TextOf(UnknownId));
}

TEST_F(LanguagePack, IsLoadedAnewByTheFirstHoldAfterTheLast)
{
    LoadText(L"263:German\n");
    ReleaseLanguage();
    WritePack(L"CROATIAN", "263:Croatian");
    InitLanguage(m_folder.GetPath(), Croatian);
    EXPECT_EQ(L"Croatian", TextOf(UnknownId));
}
