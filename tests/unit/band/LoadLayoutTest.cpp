// The stored layout on the toolbar.

#include "band/LayoutString.h"
#include "band/TrelvixWindow.h"
#include "controls/IsolationAware.h"
#include "tests/fakes/ToolbarRecorder.h"
#include "tests/unit/band/BandFixture.h"

#include <gmock/gmock.h>

#include <random>

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace
{
class LoadLayout : public CBandTest
{
protected:
    void Load(const std::wstring& strLayout)
    {
        StoreSetting(L"Toolbar", L"Layout", strLayout);
        if (GetBandWindow() == nullptr)
            Connect();
        else
            EXPECT_TRUE(GetToolbar().LoadLayout());
    }

    std::vector<int> GetItemsAfter(const std::wstring& strLayout)
    {
        Load(strLayout);
        return GetItemsOnToolbar();
    }

    TBMETRICS GetMetricsAfter(const std::wstring& strLayout)
    {
        const CToolbarRecorder recorder;
        Load(strLayout);
        const auto messages = recorder.GetMessages(TB_SETMETRICS);
        EXPECT_EQ(1u, messages.size());
        return messages.front().metrics;
    }
};
} // namespace

TEST_F(LoadLayout, ShowsTheDefaultWhenNoneIsStored)
{
    EXPECT_THAT(GetItemsAfter(L""), ElementsAre(0, 1, 2, 13, 1, 9, 1, 4, 1, 5, 1, 10, 1, 8, 1, 12, 11, 6, 1, 3, 1, 7));
    EXPECT_EQ(L"", ReadSetting(L"Toolbar", L"Layout")) << "the default is not written back";
    for (const auto& [strKey, strValue] : m_broker->m_writes)
        EXPECT_TRUE(strKey != GetSettingKey(L"Toolbar", L"Layout") || strValue.empty());
}

TEST_F(LoadLayout, ShowsTheStoredItemsInTheirOrder)
{
    EXPECT_THAT(GetItemsAfter(L"0001000D0001000200010001000100070001000A"), ElementsAre(0, 13, 2, 1, 7, 10));
}

TEST_F(LoadLayout, ShowsTheRootMenuAloneWhenAllElseIsHidden)
{
    EXPECT_THAT(GetItemsAfter(L"0000000200000003"), ElementsAre(0));
}

TEST_F(LoadLayout, ShowsOneOfTwoSeparatorsInARow)
{
    EXPECT_THAT(GetItemsAfter(L"0001000100010001"), ElementsAre(0, 1));
    EXPECT_THAT(GetItemsAfter(L"000100010000000200010001"), ElementsAre(0, 1));
}

TEST_F(LoadLayout, DropsRecordsWithUnknownIndexOrFlag)
{
    EXPECT_THAT(GetItemsAfter(L"0001000E0002000300010002"), ElementsAre(0, 2));
}

TEST_F(LoadLayout, IgnoresWhatIsLeftOver)
{
    EXPECT_THAT(GetItemsAfter(L"00010002000"), ElementsAre(0, 2));
}

TEST_F(LoadLayout, ShowsAnItemTwiceThatIsListedTwice)
{
    EXPECT_THAT(GetItemsAfter(L"0001000600010006"), ElementsAre(0, 6, 6));
    TBBUTTON first = {};
    TBBUTTON second = {};
    SendMessageW(GetBandWindow(), TB_GETBUTTON, 1, reinterpret_cast<LPARAM>(&first));
    SendMessageW(GetBandWindow(), TB_GETBUTTON, 2, reinterpret_cast<LPARAM>(&second));
    EXPECT_EQ(1030, first.idCommand);
    EXPECT_EQ(1030, second.idCommand);
}

TEST_F(LoadLayout, ShowsAsManyItemsAsThereIsRoomFor)
{
    std::wstring strLayout;
    for (int n = 0; n < 1000; ++n)
        strLayout += L"00010006";
    EXPECT_EQ(50u, GetItemsAfter(strLayout).size());
    EXPECT_EQ(-1, GetToolbar().GetOrder().back());
}

TEST_F(LoadLayout, ReplacesTheLayoutBefore)
{
    EXPECT_THAT(GetItemsAfter(L"00010002000100060001000D"), ElementsAre(0, 2, 6, 13));
    EXPECT_THAT(GetItemsAfter(L"00010009"), ElementsAre(0, 9));
    EXPECT_THAT(GetItemsAfter(L"00010002000100060001000D"), ElementsAre(0, 2, 6, 13));
}

TEST_F(LoadLayout, MakesVisibleExactlyTheItemsThatStandInIt)
{
    Load(L"0001000200010006");
    for (int nIndex = 0; nIndex < ButtonCount; ++nIndex)
        EXPECT_EQ(nIndex == 0 || nIndex == 2 || nIndex == 6, GetToolbar().GetButton(nIndex)->IsVisible()) << nIndex;
}

TEST_F(LoadLayout, DoesNotSeeALayoutThatAnotherProcessStores)
{
    Load(L"00010002");
    m_broker->m_values[GetSettingKey(L"Toolbar", L"Layout")] = L"00010003";
    m_broker->m_reads.clear();
    GetToolbar().LoadLayout();
    EXPECT_THAT(GetItemsOnToolbar(), ElementsAre(0, 2));
    EXPECT_THAT(m_broker->m_reads, Not(Contains(GetSettingKey(L"Toolbar", L"Layout"))));
}

TEST_F(LoadLayout, SendsTheMetricsOfAPlainToolbar)
{
    const TBMETRICS metrics = GetMetricsAfter(L"00010002");
    EXPECT_EQ(32u, metrics.cbSize);
    EXPECT_EQ(7u, metrics.dwMask);
    EXPECT_EQ(7, metrics.cxPad);
    EXPECT_EQ(6, metrics.cyPad);
    EXPECT_EQ(0, metrics.cxBarPad);
    EXPECT_EQ(0, metrics.cyBarPad);
    EXPECT_EQ(0, metrics.cxButtonSpacing);
    EXPECT_EQ(0, metrics.cyButtonSpacing);
}

TEST_F(LoadLayout, NarrowsTheRoomAroundSplitButtonsUnderAVisualStyle)
{
    ASSERT_TRUE(IsThemeActiveNow()) << "the display has a visual style";
    for (const wchar_t* pszLayout : {L"00010004", L"00010005", L"0001000B"})
    {
        const TBMETRICS split = GetMetricsAfter(pszLayout);
        EXPECT_EQ(6, split.cxPad) << pszLayout;
        EXPECT_EQ(-2, split.cyPad) << pszLayout;
        const TBMETRICS plain = GetMetricsAfter(L"00010002");
        EXPECT_EQ(7, plain.cxPad) << "when it has left again";
        EXPECT_EQ(6, plain.cyPad);
    }
}

TEST_F(LoadLayout, RunsWhenTheThemeChanges)
{
    Load(L"00010002");
    StoreSetting(L"Toolbar", L"Layout", L"00010006");
    EXPECT_EQ(0, SendMessageW(GetBandWindow(), WM_THEMECHANGED, 0, 0));
    EXPECT_THAT(GetItemsOnToolbar(), ElementsAre(0, 6));
}

TEST_F(LoadLayout, ShowsTheDefaultWhenTheSettingsCannotBeReached)
{
    // The value itself is in the process's cache already; the broker's failure reaches all else.
    CFakeCalls::Get().FailAll("SettingsBroker.Execute", E_FAIL);
    EXPECT_EQ(22u, GetItemsAfter(L"").size());
}

TEST_F(LoadLayout, OutlivesDamagedLayouts)
{
    Connect();
    const std::wstring strAlphabet = L"0000000011111123456789ABCDEF -xz";
    for (unsigned nSeed = 0; nSeed < 50; ++nSeed)
    {
        std::mt19937 random(nSeed);
        std::wstring strLayout(random() % 10001, L'0');
        for (wchar_t& ch : strLayout)
            ch = strAlphabet[random() % strAlphabet.size()];
        const Layout layout = DecodeLayout(strLayout);
        const auto end = std::find(layout.order.begin(), layout.order.end(), -1);
        ASSERT_EQ(std::vector<int>(layout.order.begin(), end), GetItemsAfter(strLayout)) << nSeed;
    }
}
