#include "band/ButtonIndex.h"
#include "band/TrelvixWindow.h"
#include "tests/fakes/ToolbarRecorder.h"
#include "tests/unit/tools/ToolbarFixture.h"
#include "tools/ButtonSearchGoogle.h"

namespace
{
constexpr int Box = SearchGoogleIndex;

/// The search item under the settings that a test gives it.
class SearchEngine : public CToolbarTest
{
protected:
    ~SearchEngine() override
    {
        StoreSetting(L"Button3", L"WebSearchURL", L"");
        StoreSetting(L"Button3", L"WebSearchTitle", L"");
        StoreSetting(L"Options", L"HotKeySearch", L"");
    }

    void Make(const std::wstring& strUrl, const std::wstring& strTitle, const std::wstring& strHotKey)
    {
        StoreSetting(L"Button3", L"WebSearchURL", strUrl);
        StoreSetting(L"Button3", L"WebSearchTitle", strTitle);
        StoreSetting(L"Options", L"HotKeySearch", strHotKey);
        GetToolbar().LoadLayout();
    }

    std::wstring GetAddressFor(const std::wstring& strText)
    {
        Enter(Box, strText);
        return m_spBrowser->m_navigations.empty() ? L"" : m_spBrowser->m_navigations.back().strUrl;
    }
};
} // namespace

TEST_F(SearchEngine, IsTheBuiltInOneWhenNothingIsStored)
{
    Make(L"", L"", L"");
    EXPECT_EQ(L"Google Search (Alt+Q)", GetBoxText(Box));
    const std::wstring strAddress = GetAddressFor(L"a b");
    EXPECT_NE(std::wstring::npos, strAddress.find(L"/search?")) << "no search address";
    EXPECT_NE(std::wstring::npos, strAddress.find(L"ie=UTF-8&q=a%20b")) << "no text in the address";
}

TEST_F(SearchEngine, IsTheStoredOne)
{
    Make(L"http://engine.test/?q=%%WORD%%", L"Foo", L"");
    EXPECT_EQ(L"Foo", GetBoxText(Box));
    EXPECT_EQ(L"http://engine.test/?q=word", GetAddressFor(L"word"));
}

TEST_F(SearchEngine, TakesTheTextAtEveryMarker)
{
    Make(L"%%WORD%%?q=%%WORD%%&%%word%%", L"", L"");
    EXPECT_EQ(L"a%2Bb?q=a%2Bb&%%word%%", GetAddressFor(L"a+b"));
}

TEST_F(SearchEngine, StaysTheSameAddressWithoutAMarker)
{
    Make(L"http://engine.test/", L"", L"");
    EXPECT_EQ(L"http://engine.test/", GetAddressFor(L"word"));
}

TEST_F(SearchEngine, NamesItsHotKeyBehindAStoredTitle)
{
    Make(L"", L"Foo", L"AQ");
    EXPECT_EQ(L"Foo (Alt+Q)", GetBoxText(Box));
    Make(L"", L"Foo", L"CQ");
    EXPECT_EQ(L"Foo (Ctrl+Q)", GetBoxText(Box));
    Make(L"", L"Foo", L"XQ");
    EXPECT_EQ(L"Foo (Alt+Q)", GetBoxText(Box));
}

TEST_F(SearchEngine, NamesNoHotKeyOfAnotherLength)
{
    Make(L"", L"Foo", L"Q");
    EXPECT_EQ(L"Foo", GetBoxText(Box));
    Make(L"", L"Foo", L"CQQ");
    EXPECT_EQ(L"Foo", GetBoxText(Box));
}

TEST_F(SearchEngine, KeepsTheBuiltInLabelWhateverItsHotKey)
{
    Make(L"", L"", L"CX");
    EXPECT_EQ(L"Google Search (Alt+Q)", GetBoxText(Box));
}

TEST_F(SearchEngine, TellsTheToolbarItsTitle)
{
    CToolbarRecorder recorder;
    Make(L"", L"Foo", L"AQ");
    std::vector<std::wstring> added;
    for (const CToolbarMessage& message : recorder.GetMessages(TB_ADDSTRINGW))
        added.push_back(message.strText.c_str());
    const auto title = std::find(added.begin(), added.end(), L"Foo (Alt+Q)");
    ASSERT_NE(added.end(), title);
    EXPECT_EQ(L"Google Search (Alt+Q)", *(title - 1));
    const TBBUTTON& button = GetItem(Box).GetTBButton();
    wchar_t szText[64] = {};
    SendMessageW(GetBandWindow(), TB_GETSTRINGW, MAKEWPARAM(64, button.iString), reinterpret_cast<LPARAM>(szText));
    EXPECT_STREQ(L"Foo (Alt+Q)", szText);
}

TEST_F(SearchEngine, ReadsItsSettingsOnce)
{
    Make(L"one%%WORD%%", L"One", L"");
    StoreSetting(L"Button3", L"WebSearchURL", L"two%%WORD%%");
    StoreSetting(L"Button3", L"WebSearchTitle", L"Two");
    EXPECT_EQ(L"oneword", GetAddressFor(L"word"));
    EXPECT_STREQ(L"One", GetItem(Box).GetLabel());
    GetToolbar().LoadLayout();
    EXPECT_EQ(L"Two", GetBoxText(Box));
    EXPECT_EQ(L"twoword", GetAddressFor(L"word"));
}

TEST_F(SearchEngine, GetsTheFocusWhenAnotherComponentAsksForTheSearchBox)
{
    StoreSetting(L"Toolbar", L"Layout", L"000100080001000700010003");
    GetToolbar().LoadLayout();
    SendMessageW(GetBandWindow(), FocusSearchBoxMessage, 0, 0);
    EXPECT_EQ(GetWindow(GetBox(Box), GW_CHILD), GetFocus()) << "and not a box that stands before it";
}

TEST_F(SearchEngine, GetsNoFocusInALayoutWithoutIt)
{
    StoreSetting(L"Toolbar", L"Layout", L"0001000800010007");
    GetToolbar().LoadLayout();
    SendMessageW(GetBandWindow(), FocusSearchBoxMessage, 0, 0);
    EXPECT_EQ(m_frame, GetFocus());
}

TEST(SearchEngineItem, CanBeMadeWithoutAToolbar)
{
    CButtonSearchGoogle item;
    EXPECT_TRUE(item.Initialize(nullptr));
    EXPECT_EQ(SearchGoogleIndex, item.GetButtonId());
}
