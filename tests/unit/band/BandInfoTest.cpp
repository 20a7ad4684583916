// The sizes and the mode that the band answers with.

#include "tests/unit/band/BandFixture.h"

#include <gmock/gmock.h>

#include <cwchar>

using testing::ElementsAre;
using testing::Pair;

namespace
{
constexpr DWORD AllMembers =
    DBIM_MINSIZE | DBIM_MAXSIZE | DBIM_INTEGRAL | DBIM_ACTUAL | DBIM_TITLE | DBIM_MODEFLAGS | DBIM_BKCOLOR;

/// What a member holds that nobody has filled.
constexpr LONG Untouched = 0x5a5a5a5a;

class BandInfo : public CBandTest
{
protected:
    DESKBANDINFO Ask(DWORD dwMask)
    {
        DESKBANDINFO info = {};
        info.dwMask = dwMask;
        info.ptMinSize = info.ptMaxSize = info.ptIntegral = info.ptActual = {Untouched, Untouched};
        info.dwModeFlags = Untouched;
        info.crBkgnd = Untouched;
        wcscpy(info.wszTitle, L"as it was");
        EXPECT_EQ(S_OK, m_spBand->GetBandInfo(7, DBIF_VIEWMODE_NORMAL, &info));
        return info;
    }

    void ForgetFirstTime()
    {
        StoreSetting(L"Options", L"ToolbarFirstTime", L"");
        m_broker->m_writes.clear();
    }

    static std::wstring GetFirstTimeKey() { return GetSettingKey(L"Options", L"ToolbarFirstTime"); }
};

bool IsPoint(const POINTL& point, LONG x, LONG y)
{
    return point.x == x && point.y == y;
}
} // namespace

TEST_F(BandInfo, SucceedsWithNowhereToAnswer)
{
    EXPECT_EQ(S_OK, m_spBand->GetBandInfo(7, DBIF_VIEWMODE_VERTICAL, nullptr));
}

TEST_F(BandInfo, AnswersEachSizeThatIsAskedFor)
{
    EXPECT_TRUE(IsPoint(Ask(DBIM_MINSIZE).ptMinSize, 250, 22));
    EXPECT_TRUE(IsPoint(Ask(DBIM_MAXSIZE).ptMaxSize, -1, 22));
    EXPECT_TRUE(IsPoint(Ask(DBIM_INTEGRAL).ptIntegral, 1, 1));
    EXPECT_TRUE(IsPoint(Ask(DBIM_ACTUAL).ptActual, GetSystemMetrics(SM_CXFULLSCREEN), 22));
}

TEST_F(BandInfo, AnswersTheSizesInEveryViewMode)
{
    for (const DWORD dwMode :
         {DBIF_VIEWMODE_NORMAL, DBIF_VIEWMODE_VERTICAL, DBIF_VIEWMODE_FLOATING, DBIF_VIEWMODE_TRANSPARENT})
    {
        DESKBANDINFO info = {};
        info.dwMask = DBIM_MINSIZE;
        EXPECT_EQ(S_OK, m_spBand->GetBandInfo(7, dwMode, &info));
        EXPECT_TRUE(IsPoint(info.ptMinSize, 250, 22));
    }
}

TEST_F(BandInfo, HasAnEmptyTitle)
{
    EXPECT_STREQ(L"", Ask(DBIM_TITLE).wszTitle);
}

TEST_F(BandInfo, WantsTheDefaultBackground)
{
    EXPECT_EQ(AllMembers & ~DBIM_BKCOLOR, Ask(AllMembers).dwMask);
    EXPECT_EQ(0u, Ask(DBIM_BKCOLOR).dwMask);
    EXPECT_EQ(static_cast<COLORREF>(Untouched), Ask(DBIM_BKCOLOR).crBkgnd);
}

TEST_F(BandInfo, LeavesAloneWhatIsNotAskedFor)
{
    const DESKBANDINFO info = Ask(0);
    for (const POINTL& point : {info.ptMinSize, info.ptMaxSize, info.ptIntegral, info.ptActual})
        EXPECT_TRUE(IsPoint(point, Untouched, Untouched));
    EXPECT_EQ(static_cast<DWORD>(Untouched), info.dwModeFlags);
    EXPECT_STREQ(L"as it was", info.wszTitle);
}

TEST_F(BandInfo, WithoutTheModeNeitherReadsNorWritesASetting)
{
    ForgetFirstTime();
    Ask(AllMembers & ~DBIM_MODEFLAGS);
    EXPECT_THAT(m_broker->m_reads, ElementsAre());
    EXPECT_THAT(m_broker->m_writes, ElementsAre());
    EXPECT_EQ(L"", ReadSetting(L"Options", L"ToolbarFirstTime"));
}

TEST_F(BandInfo, LeavesTheRowToTheBrowserOnceTheToolbarWasShown)
{
    EXPECT_EQ(0u, Ask(DBIM_MODEFLAGS).dwModeFlags);
    EXPECT_THAT(m_broker->m_writes, ElementsAre());
}

TEST_F(BandInfo, AsksForARowOfItsOwnTheFirstTime)
{
    ForgetFirstTime();
    EXPECT_EQ(DBIMF_BREAK, Ask(DBIM_MODEFLAGS).dwModeFlags);
    EXPECT_THAT(m_broker->m_writes, ElementsAre(Pair(GetFirstTimeKey(), L"1")));
}

TEST_F(BandInfo, AsksForARowWhateverElseIsStored)
{
    for (const wchar_t* pszValue : {L"0", L"2", L"-1", L"yes"})
    {
        StoreSetting(L"Options", L"ToolbarFirstTime", pszValue);
        m_spBand = CreateBand();
        EXPECT_EQ(DBIMF_BREAK, Ask(DBIM_MODEFLAGS).dwModeFlags) << pszValue;
        EXPECT_EQ(L"1", ReadSetting(L"Options", L"ToolbarFirstTime"));
    }
}

TEST_F(BandInfo, KeepsAskingForTheRowWithTheSameObject)
{
    ForgetFirstTime();
    for (int nTime = 0; nTime < 3; ++nTime)
        EXPECT_EQ(DBIMF_BREAK, Ask(DBIM_MODEFLAGS).dwModeFlags);
    m_spBand = CreateBand();
    EXPECT_EQ(0u, Ask(DBIM_MODEFLAGS).dwModeFlags) << "a later band leaves the row to the browser";
}

TEST_F(BandInfo, AsksForTheRowWhenTheSettingsCannotBeReached)
{
    ForgetFirstTime();
    CFakeCalls::Get().FailAll("SettingsBroker.CreateInstance", E_FAIL);
    EXPECT_EQ(DBIMF_BREAK, Ask(DBIM_MODEFLAGS).dwModeFlags);
}
