#include "band/LayoutString.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cwchar>
#include <random>
#include <string>
#include <vector>

using testing::ElementsAre;

namespace
{
/// The items of a decoded layout, up to the closing -1.
std::vector<int> Decode(const std::wstring& strText)
{
    const Layout layout = DecodeLayout(strText);
    const auto end = std::find(layout.order.begin(), layout.order.end(), -1);
    EXPECT_NE(layout.order.end(), end) << "not closed";
    return std::vector<int>(layout.order.begin(), end);
}

bool HasSplitButton(const std::wstring& strText)
{
    return DecodeLayout(strText).hasSplitButton;
}

std::wstring Repeat(const std::wstring& strRecord, int nTimes)
{
    std::wstring strText;
    for (int n = 0; n < nTimes; ++n)
        strText += strRecord;
    return strText;
}

/// What the C library's own "%X" makes of a record, 0 for no number. Libraries differ on whether a prefix alone is no
/// number or 0, and no record of 0 is taken.
std::uint32_t ScanByTheCLibrary(const std::wstring& strRecord)
{
    unsigned nValue = 0;
    std::swscanf(strRecord.c_str(), L"%X", &nValue);
    return nValue;
}
} // namespace

TEST(LayoutString, PutsTheDefaultLayoutInItsPublishedOrder)
{
    EXPECT_EQ(168u, std::wcslen(DefaultLayout));
    EXPECT_THAT(Decode(DefaultLayout),
                ElementsAre(0, 1, 2, 13, 1, 9, 1, 4, 1, 5, 1, 10, 1, 8, 1, 12, 11, 6, 1, 3, 1, 7));
    EXPECT_TRUE(HasSplitButton(DefaultLayout));
}

TEST(LayoutString, PutsTheRootMenuFirst)
{
    EXPECT_THAT(Decode(L""), ElementsAre(0));
    EXPECT_THAT(Decode(L"00010002"), ElementsAre(0, 2));
}

TEST(LayoutString, DropsHiddenRecords)
{
    EXPECT_THAT(Decode(L"00000002000000030000000D"), ElementsAre(0));
}

TEST(LayoutString, CollapsesASecondSeparatorIntoTheFirst)
{
    EXPECT_THAT(Decode(L"0001000100010001"), ElementsAre(0, 1));
    EXPECT_THAT(Decode(L"000100010000000200010001"), ElementsAre(0, 1)) << "a hidden item between them";
    EXPECT_THAT(Decode(L"00010001zzzzzzzz00010001"), ElementsAre(0, 1)) << "a damaged record between them";
    EXPECT_THAT(Decode(L"000100010001000200010001"), ElementsAre(0, 1, 2, 1));
}

TEST(LayoutString, DropsAnIndexThatNoItemHas)
{
    EXPECT_THAT(Decode(L"0001000E0001000D"), ElementsAre(0, 13));
    EXPECT_THAT(Decode(L"0001FFFF0001800100010010"), ElementsAre(0));
}

TEST(LayoutString, DropsRecordsWithUnknownFlag)
{
    EXPECT_THAT(Decode(L"000200030001000400110005FFFF0006"), ElementsAre(0, 4));
}

TEST(LayoutString, IgnoresWhatIsLeftOver)
{
    EXPECT_THAT(Decode(L"00010002000"), ElementsAre(0, 2));
    EXPECT_THAT(Decode(L"0001000"), ElementsAre(0));
}

TEST(LayoutString, TakesAnItemAsOftenAsItIsListed)
{
    EXPECT_THAT(Decode(L"000100040001000400010004"), ElementsAre(0, 4, 4, 4));
}

TEST(LayoutString, GivesIndexZeroNoSpecialPlace)
{
    EXPECT_THAT(Decode(L"000100020001000000010000"), ElementsAre(0, 2, 0, 0));
}

TEST(LayoutString, SeesTheSplitButtons)
{
    for (const wchar_t* pszRecord : {L"00010004", L"00010005", L"0001000B"})
        EXPECT_TRUE(HasSplitButton(pszRecord)) << pszRecord;
    for (const wchar_t* pszRecord : {L"00010001", L"00010002", L"00010003", L"00010006", L"00010007", L"00010008",
                                     L"00010009", L"0001000A", L"0001000C", L"0001000D", L"00000004", L"00020005"})
        EXPECT_FALSE(HasSplitButton(pszRecord)) << pszRecord;
}

TEST(LayoutString, StopsAtItsCapacity)
{
    EXPECT_EQ(50u, Decode(Repeat(L"00010002", 49)).size());
    EXPECT_EQ(50u, Decode(Repeat(L"00010002", 50)).size());
    EXPECT_EQ(50u, Decode(Repeat(L"00010002", 1000)).size());
    EXPECT_FALSE(HasSplitButton(Repeat(L"00010002", 49) + L"00010004")) << "what found no room doesn't count";
    EXPECT_TRUE(HasSplitButton(Repeat(L"00010002", 48) + L"00010004"));
}

TEST(LayoutString, CountsOnlyTakenRecordsAgainstItsCapacity)
{
    EXPECT_THAT(Decode(Repeat(L"00000002", 1000) + L"00010003"), ElementsAre(0, 3));
}

TEST(LayoutRecord, IsEightHexadecimalDigits)
{
    EXPECT_EQ(0x0001000Du, ScanLayoutRecord(L"0001000D"));
    EXPECT_EQ(0x0001000Du, ScanLayoutRecord(L"0001000d"));
    EXPECT_EQ(0xFFFFFFFFu, ScanLayoutRecord(L"FFFFFFFF"));
    EXPECT_EQ(0u, ScanLayoutRecord(L"00000000"));
}

TEST(LayoutRecord, TakesLeadingBlanksASignAndAPrefix)
{
    EXPECT_EQ(0x10004u, ScanLayoutRecord(L"   10004"));
    EXPECT_EQ(0x10004u, ScanLayoutRecord(L"\t\n 10004"));
    EXPECT_EQ(0x10004u, ScanLayoutRecord(L"0x010004"));
    EXPECT_EQ(0x10004u, ScanLayoutRecord(L"+0X10004"));
    EXPECT_EQ(0xFFFEFFFCu, ScanLayoutRecord(L"-0010004"));
}

TEST(LayoutRecord, StopsAtTheFirstOtherCharacter)
{
    EXPECT_EQ(0x10004u, ScanLayoutRecord(L"10004xyz"));
    EXPECT_EQ(0x1u, ScanLayoutRecord(L"1 000004"));
    EXPECT_EQ(0x1u, ScanLayoutRecord(std::wstring(L"1\0000004", 8)));
}

TEST(LayoutRecord, IsNoNumberWithoutADigit)
{
    for (const wchar_t* pszRecord : {L"zzzzzzzz", L"        ", L"+-000000", L"- 000004", L"g0001000", L""})
        EXPECT_EQ(std::nullopt, ScanLayoutRecord(pszRecord)) << '"' << pszRecord << '"';
}

TEST(LayoutRecord, MeansWhatTheCLibraryReadsInIt)
{
    const std::wstring strAlphabet = L"0019afAFxX+- gz";
    std::mt19937 random(18);
    std::uniform_int_distribution<size_t> pick(0, strAlphabet.size() - 1);
    for (int n = 0; n < 20000; ++n)
    {
        std::wstring strRecord;
        while (strRecord.size() < 8)
            strRecord += strAlphabet[pick(random)];
        EXPECT_EQ(ScanByTheCLibrary(strRecord), ScanLayoutRecord(strRecord).value_or(0)) << '"' << strRecord << '"';
    }
}

TEST(DamagedLayout, StillGivesARightToolbar)
{
    // Characters from which now and then a record comes about, among all that a value can hold.
    const std::wstring strAlphabet = L"000000001111110D E\x0000\xFFFF\xD800-x";
    for (unsigned nSeed = 0; nSeed < 1000; ++nSeed)
    {
        std::mt19937 random(nSeed);
        std::wstring strText(random() % 10001, L'\0');
        for (wchar_t& ch : strText)
            ch = random() % 50 == 0 ? static_cast<wchar_t>(random()) : strAlphabet[random() % strAlphabet.size()];
        const std::vector<int> items = Decode(strText);
        ASSERT_LE(items.size(), 50u) << nSeed;
        ASSERT_EQ(0, items.front()) << nSeed;
        for (size_t n = 1; n < items.size(); ++n)
        {
            ASSERT_TRUE(items[n] >= 0 && items[n] < ButtonCount) << nSeed;
            ASSERT_FALSE(items[n] == 1 && items[n - 1] == 1) << "two separators in a row, seed " << nSeed;
        }
    }
}
