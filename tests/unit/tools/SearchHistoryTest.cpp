#include "band/TrelvixWindow.h"
#include "tests/unit/tools/ToolbarFixture.h"
#include "tools/ButtonSearchWeb.h"

#include <gmock/gmock.h>

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace
{
constexpr int TestId = 77;
constexpr int HistorySize = 21;
constexpr wchar_t Section[] = L"Button77";

std::wstring GetName(int nEntry)
{
    return L"history" + std::to_wstring(nEntry);
}

/// A search item with the history that others keep switched off.
class CHistoryItem : public CButtonSearchWeb
{
public:
    CHistoryItem()
    {
        m_nButtonId = TestId;
        m_bNoHistory = false;
        m_strSearchUrl = L"x?q=%%WORD%%";
    }

    void DisableHistory() { m_bNoHistory = true; }
};

class SearchHistory : public CToolbarTest
{
protected:
    ~SearchHistory() override { StoreWords({}); }

    void TearDown() override
    {
        m_pItem.reset();
        CToolbarTest::TearDown();
    }

    static void StoreWords(std::vector<std::wstring> words)
    {
        words.resize(HistorySize + 1);
        for (int n = 0; n <= HistorySize; ++n)
            StoreSetting(Section, GetName(n).c_str(), words[n]);
    }

    static std::vector<std::wstring> GetStoredWords()
    {
        std::vector<std::wstring> words;
        for (int n = 0; n <= HistorySize; ++n)
            words.push_back(ReadSetting(Section, GetName(n).c_str()));
        while (!words.empty() && words.back().empty())
            words.pop_back();
        return words;
    }

    /// Puts a new item on the toolbar, after taking the last one away.
    CHistoryItem& MakeItem()
    {
        m_pItem.reset();
        m_broker->m_writes.clear();
        m_pItem = std::make_unique<CHistoryItem>();
        m_pItem->Initialize(&GetToolbar());
        m_pItem->Show(true);
        m_pItem->Place();
        return *m_pItem;
    }

    HWND GetItemBox() { return GetDlgItem(GetBandWindow(), TestId); }
    std::vector<std::wstring> GetWords() { return GetEntries(TestId); }

    /// Selects an entry as the control tells of it.
    void Select(int nEntry)
    {
        SendMessageW(GetItemBox(), CB_SETCURSEL, nEntry, 0);
        SendMessageW(GetBandWindow(), WM_COMMAND, MAKEWPARAM(TestId, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(GetItemBox()));
    }

    void EndSelection()
    {
        SendMessageW(GetBandWindow(), WM_COMMAND, MAKEWPARAM(TestId, CBN_SELENDOK),
                     reinterpret_cast<LPARAM>(GetItemBox()));
    }

    std::unique_ptr<CHistoryItem> m_pItem;
};
} // namespace

TEST_F(SearchHistory, IsOnlyTheEntryThatResetsItAtFirst)
{
    MakeItem();
    EXPECT_THAT(GetWords(), ElementsAre(L"<Reset history>"));
    EXPECT_FALSE(m_pItem->IsHistoryDisabled());
}

TEST_F(SearchHistory, IsLoadedWithTheNewestOnTop)
{
    StoreWords({L"newest", L"", L"oldest"});
    MakeItem();
    EXPECT_THAT(GetWords(), ElementsAre(L"newest", L"oldest", L"<Reset history>"));
}

TEST_F(SearchHistory, IsLoadedUpToTheTwentyFirstWord)
{
    std::vector<std::wstring> words(HistorySize + 1, L"word");
    words[20] = L"last";
    words[21] = L"too many";
    StoreWords(words);
    MakeItem();
    const auto loaded = GetWords();
    ASSERT_EQ(22u, loaded.size());
    EXPECT_EQ(L"last", loaded[20]);
    EXPECT_EQ(L"<Reset history>", loaded[21]);
}

TEST_F(SearchHistory, TakesEachNewWordOnTop)
{
    CHistoryItem& item = MakeItem();
    EXPECT_TRUE(item.Search(L"one"));
    EXPECT_TRUE(item.Search(L"two"));
    EXPECT_THAT(GetWords(), ElementsAre(L"two", L"one", L"<Reset history>"));
}

TEST_F(SearchHistory, LeavesAWordThatItHasWhereItIs)
{
    CHistoryItem& item = MakeItem();
    item.Search(L"one");
    item.Search(L"two");
    item.Search(L"ONE");
    EXPECT_THAT(GetWords(), ElementsAre(L"two", L"one", L"<Reset history>"));
    EXPECT_EQ(3u, m_spBrowser->m_navigations.size());
}

TEST_F(SearchHistory, TakesAWordThatBeginsLikeAnother)
{
    CHistoryItem& item = MakeItem();
    item.Search(L"words");
    item.Search(L"word");
    EXPECT_THAT(GetWords(), ElementsAre(L"word", L"words", L"<Reset history>"));
}

TEST_F(SearchHistory, IsSavedWhenTheItemGoes)
{
    CHistoryItem& item = MakeItem();
    item.Search(L"one");
    item.Search(L"two");
    EXPECT_THAT(m_broker->m_writes, IsEmpty());
    m_pItem.reset();
    EXPECT_THAT(GetStoredWords(), ElementsAre(L"two", L"one"));
    MakeItem();
    EXPECT_THAT(GetWords(), ElementsAre(L"two", L"one", L"<Reset history>"));
}

TEST_F(SearchHistory, IsSavedUpToTheTwentyFirstWord)
{
    CHistoryItem& item = MakeItem();
    for (int n = 1; n <= 23; ++n)
        item.Search(L"word" + std::to_wstring(n));
    m_pItem.reset();
    const auto stored = GetStoredWords();
    ASSERT_EQ(21u, stored.size());
    EXPECT_EQ(L"word23", stored[0]);
    EXPECT_EQ(L"word3", stored[20]);
}

TEST_F(SearchHistory, LeavesTheValuesOfALongerListWhenItIsSaved)
{
    MakeItem().Search(L"one");
    StoreWords({L"a", L"b", L"c"});
    m_pItem.reset();
    EXPECT_THAT(GetStoredWords(), ElementsAre(L"one", L"b", L"c"));
}

TEST_F(SearchHistory, IsNotSavedWhileItHasNoWord)
{
    MakeItem();
    m_pItem.reset();
    EXPECT_THAT(m_broker->m_writes, IsEmpty());
}

TEST_F(SearchHistory, IsNotSavedOnceItsBoxIsGone)
{
    CHistoryItem& item = MakeItem();
    item.Search(L"one");
    DestroyWindow(GetItemBox());
    m_pItem.reset();
    EXPECT_THAT(m_broker->m_writes, IsEmpty());
}

TEST_F(SearchHistory, IsForgottenByItsLastEntry)
{
    StoreWords({L"one", L"two"});
    MakeItem();
    Select(2);
    EXPECT_THAT(GetWords(), ElementsAre(L"<Reset history>"));
    EXPECT_THAT(GetStoredWords(), IsEmpty());
    EXPECT_EQ(21u, m_broker->m_writes.size());
    EXPECT_THAT(m_broker->m_writes, Each(Pair(testing::_, L"")));
    EXPECT_THAT(m_spBrowser->m_navigations, IsEmpty());
}

TEST_F(SearchHistory, ShowsTheLabelOnceItIsForgotten)
{
    CHistoryItem& item = MakeItem();
    item.SetLabel(L"A label");
    item.Search(L"one");
    Select(1);
    EXPECT_EQ(L"A label", GetBoxText(TestId));
}

TEST_F(SearchHistory, SearchesForASelectedWord)
{
    StoreWords({L"one", L"two"});
    MakeItem();
    Select(1);
    ASSERT_EQ(1u, m_spBrowser->m_navigations.size());
    EXPECT_EQ(L"x?q=two", m_spBrowser->m_navigations[0].strUrl);
    EndSelection();
    EXPECT_EQ(2u, m_spBrowser->m_navigations.size());
}

TEST_F(SearchHistory, SearchesForNothingWhenItsLastEntryIsTaken)
{
    StoreWords({L"one"});
    MakeItem();
    SendMessageW(GetItemBox(), CB_SETCURSEL, 1, 0);
    EndSelection();
    EXPECT_THAT(m_spBrowser->m_navigations, IsEmpty());
}

TEST_F(SearchHistory, DoesNothingOnceItIsDisabled)
{
    StoreWords({L"one"});
    CHistoryItem& item = MakeItem();
    item.DisableHistory();
    m_broker->m_writes.clear();
    item.LoadHistory();
    item.SaveHistory();
    item.ResetHistory();
    EXPECT_THAT(GetWords(), ElementsAre(L"one", L"<Reset history>"));
    m_pItem.reset();
    EXPECT_THAT(m_broker->m_writes, IsEmpty());
}
