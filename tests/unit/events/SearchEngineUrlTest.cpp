// A page installs a search engine: trelvix:searchweb?

#include "tests/fakes/MessageBoxAnswerer.h"
#include "tests/unit/events/ToolbarOnPageFixture.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::IsEmpty;

namespace
{
constexpr wchar_t ValidCommand[] =
    L"trelvix:searchweb?name=Some%20Engine&url=http://search.test/?q=%25%25WORD%25%25&showbutton=1";

/// The hidden search box that a command may bring back.
constexpr wchar_t OptionsSection[] = L"Options";
constexpr wchar_t HideWebSearch[] = L"HideWebSearch";

class SearchEngineUrl : public CToolbarOnPageTest
{
protected:
    /// The writes of an engine, in their order.
    static std::vector<CFakeSettingsBroker::CWrite> EngineWrites(const std::wstring& strName,
                                                                 const std::wstring& strUrl)
    {
        return {{GetKey(L"Button3", L"WebSearchTitle"), strName}, {GetKey(L"Button3", L"WebSearchURL"), strUrl}};
    }

    /// Hides or shows the search box, and forgets that.
    void SetHideWebSearch(int nHide)
    {
        CSettingsStore(SettingsRoot).WriteInt(nHide, OptionsSection, HideWebSearch);
        m_broker->m_writes.clear();
    }

    /// Sends the command and says OK; what was shown.
    CShownBox Accept(const std::wstring& strCommand)
    {
        const CMessageBoxAnswerer answerer(IDOK);
        EXPECT_TRUE(Navigate(strCommand));
        EXPECT_EQ(1u, answerer.GetShown().size());
        return answerer.GetShown().empty() ? CShownBox {} : answerer.GetShown().front();
    }
};

TEST_F(SearchEngineUrl, AsksTheUserAndStoresTheEngine)
{
    SetHideWebSearch(0);
    const CShownBox box = Accept(ValidCommand);
    EXPECT_EQ(L"You requested to customize the Trelvix search on the Web with this search engine :\r\n\r\n"
              L"* Name = Some Engine\r\n* Search URL = http://search.test/?q=%%WORD%%\r\n\r\n"
              L"Please validate this choice.",
              box.strText);
    EXPECT_EQ((std::vector<int> {IDOK, IDCANCEL}), box.buttons);
    EXPECT_EQ(nullptr, box.hIcon);
    EXPECT_EQ(m_parent, box.hWndOwner);
    EXPECT_EQ(EngineWrites(L"Some Engine", L"http://search.test/?q=%%WORD%%"), m_broker->m_writes);
}

TEST_F(SearchEngineUrl, RemakesTheItems)
{
    const int nCreated = CFakeButtons::Get().m_nCreated;
    Accept(ValidCommand);
    EXPECT_EQ(nCreated + ButtonCount, CFakeButtons::Get().m_nCreated);
    EXPECT_EQ(ButtonCount, CFakeButtons::Get().m_nLiving);
}

TEST_F(SearchEngineUrl, ChangesNothingWhenTheUserCancels)
{
    SetHideWebSearch(1);
    const int nCreated = CFakeButtons::Get().m_nCreated;
    const CMessageBoxAnswerer answerer(IDCANCEL);
    EXPECT_TRUE(Navigate(ValidCommand));
    EXPECT_EQ(1u, answerer.GetShown().size());
    EXPECT_THAT(m_broker->m_writes, IsEmpty());
    EXPECT_EQ(nCreated, CFakeButtons::Get().m_nCreated);
}

TEST_F(SearchEngineUrl, BringsTheHiddenSearchBoxBackOnRequest)
{
    SetHideWebSearch(1);
    Accept(ValidCommand);
    auto writes = EngineWrites(L"Some Engine", L"http://search.test/?q=%%WORD%%");
    writes.emplace_back(GetKey(OptionsSection, HideWebSearch), L"0");
    EXPECT_EQ(writes, m_broker->m_writes);
}

TEST_F(SearchEngineUrl, WritesNothingToASearchBoxThatWasNeverHidden)
{
    CSettingsStore(SettingsRoot).WriteString(L"", OptionsSection, HideWebSearch);
    m_broker->m_writes.clear();
    Accept(ValidCommand);
    EXPECT_EQ(EngineWrites(L"Some Engine", L"http://search.test/?q=%%WORD%%"), m_broker->m_writes);
}

class KeepsTheSearchBox : public SearchEngineUrl, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(KeepsTheSearchBox, HiddenWithoutAnExactRequest)
{
    SetHideWebSearch(1);
    Accept(std::wstring(L"trelvix:searchweb?name=n&url=http://u/") + GetParam());
    EXPECT_EQ(EngineWrites(L"n", L"http://u/"), m_broker->m_writes);
}

INSTANTIATE_TEST_SUITE_P(SearchEngineUrl, KeepsTheSearchBox,
                         testing::Values(L"", L"&showbutton", L"&showbutton=", L"&showbutton=0", L"&showbutton=11",
                                         L"&showbutton=true", L"&showbutton=%31", L"&showbutton= 1"));

TEST_F(SearchEngineUrl, DoesNotTakeTheRequestForTheSearchBoxBack)
{
    SetHideWebSearch(1);
    Accept(L"trelvix:searchweb?ShowButton=1&name=n&url=http://u/&showbutton=0");
    EXPECT_EQ(3u, m_broker->m_writes.size());
}

class ShownSearchBox : public SearchEngineUrl, public testing::WithParamInterface<int>
{
};

TEST_P(ShownSearchBox, IsNotWrittenAgain)
{
    SetHideWebSearch(GetParam());
    Accept(ValidCommand);
    EXPECT_EQ(2u, m_broker->m_writes.size());
}

INSTANTIATE_TEST_SUITE_P(SearchEngineUrl, ShownSearchBox, testing::Values(0, 2, -1));

/// A command and the engine that it installs.
struct CInstalled
{
    const wchar_t* pszCommand;
    const wchar_t* pszName;
    const wchar_t* pszUrl;
};

class InstalledEngine : public SearchEngineUrl, public testing::WithParamInterface<CInstalled>
{
};

TEST_P(InstalledEngine, HasTheNameAndAddressOfTheCommand)
{
    SetHideWebSearch(0);
    Accept(GetParam().pszCommand);
    EXPECT_EQ(EngineWrites(GetParam().pszName, GetParam().pszUrl), m_broker->m_writes);
}

INSTANTIATE_TEST_SUITE_P(
    SearchEngineUrl, InstalledEngine,
    testing::Values(CInstalled {L"TRELVIX:SEARCHWEB?NAME=n&URL=HTTP://u/", L"n", L"HTTP://u/"},
                    CInstalled {L"trelvix:searchweb?url=https://u/&name=n", L"n", L"https://u/"},
                    CInstalled {L"trelvix:searchweb?name=a+b&url=http://u/", L"a+b", L"http://u/"},
                    CInstalled {L"trelvix:searchweb?name=a%26b&url=http://u/?x=1%26y=%3d", L"a&b",
                                L"http://u/?x=1&y=="},
                    CInstalled {L"trelvix:searchweb?name=first&name=n&url=http://u/", L"n", L"http://u/"},
                    CInstalled {L"trelvix:searchweb?name=n&name=&url=http://u/", L"n", L"http://u/"},
                    CInstalled {L"trelvix:searchweb?&&name=n&&&url=http://u/&", L"n", L"http://u/"},
                    CInstalled {L"trelvix:searchweb?==name=n&=url=http://u/", L"n", L"http://u/"},
                    CInstalled {L"trelvix:searchweb?name=n&url=http://u/?a=b=c", L"n", L"http://u/?a=b=c"},
                    CInstalled {L"trelvix:searchweb?name==&url=http://", L"=", L"http://"},
                    CInstalled {L"trelvix:searchweb?other=x&name=n&url=http://u/&", L"n", L"http://u/"},
                    CInstalled {L"trelvix:searchweb?name=%s%25d&url=http://u/", L"%s%d", L"http://u/"},
                    CInstalled {L"trelvix:searchweb?name=n&url=%68ttp://u/%2525", L"n", L"http://u/%25"},
                    CInstalled {L"trelvix:searchweb?name=\u00e9\u65e5&url=http://u/", L"\u00e9\u65e5", L"http://u/"}));

class RefusedEngine : public SearchEngineUrl, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(RefusedEngine, IsToldToTheUserAndChangesNothing)
{
    const int nCreated = CFakeButtons::Get().m_nCreated;
    m_broker->m_writes.clear();
    const CShownBox box = Accept(GetParam());
    EXPECT_EQ(L"Unable to get valid information from the URL. The search engine information will not be updated.",
              box.strText);
    EXPECT_EQ(LoadIconW(nullptr, IDI_ERROR), box.hIcon);
    EXPECT_EQ(std::vector<int> {IDOK}, box.buttons);
    EXPECT_THAT(m_broker->m_writes, IsEmpty());
    EXPECT_EQ(nCreated, CFakeButtons::Get().m_nCreated);
}

INSTANTIATE_TEST_SUITE_P(SearchEngineUrl, RefusedEngine,
                         testing::Values(L"trelvix:searchweb?", L"trelvix:searchweb?url=http://u/",
                                         L"trelvix:searchweb?name=n", L"trelvix:searchweb?name=n&url=ftp://u/",
                                         L"trelvix:searchweb?name=n&url=", L"trelvix:searchweb?name=&url=http://u/",
                                         L"trelvix:searchweb?name=n&url=http:/u", L"trelvix:searchweb?name=n&url=u",
                                         L"trelvix:searchweb?name=n&url=%%WORD%%", L"trelvix:searchweb?name&url",
                                         L"trelvix:searchweb?=&=&=", L"trelvix:searchweb? name=n&url=http://u/",
                                         L"trelvix:searchweb?name=n&url= http://u/"));

TEST_F(SearchEngineUrl, TakesAValueThatJustFits)
{
    const std::wstring strName(2083, L'n');
    m_broker->m_writes.clear();
    Accept(L"trelvix:searchweb?name=" + strName + L"&url=http://u/");
    EXPECT_EQ(EngineWrites(strName, L"http://u/").front(), m_broker->m_writes.front());
}

TEST_F(SearchEngineUrl, TakesAValueThatDoesNotFitForMissing)
{
    const std::wstring strName(2084, L'n');
    m_broker->m_writes.clear();
    const CShownBox box = Accept(L"trelvix:searchweb?name=" + strName + L"&url=http://u/");
    EXPECT_EQ(LoadIconW(nullptr, IDI_ERROR), box.hIcon);
    EXPECT_THAT(m_broker->m_writes, IsEmpty());
}

TEST_F(SearchEngineUrl, MeasuresTheDecodedValue)
{
    std::wstring strEscaped;
    for (int n = 0; n < 2083; ++n)
        strEscaped += L"%6E";
    m_broker->m_writes.clear();
    Accept(L"trelvix:searchweb?name=" + strEscaped + L"&url=http://u/");
    EXPECT_EQ(EngineWrites(std::wstring(2083, L'n'), L"http://u/").front(), m_broker->m_writes.front());
    m_broker->m_writes.clear();
    Accept(L"trelvix:searchweb?name=" + strEscaped + L"%6E&url=http://u/");
    EXPECT_THAT(m_broker->m_writes, IsEmpty());
}

TEST_F(SearchEngineUrl, IsTakenFromTheTopLevelPageOnly)
{
    CFakeWebBrowser2& frame = m_page.AddFrame(GetTop(), L"http://page.test/frame");
    const CMessageBoxAnswerer answerer(IDOK);
    m_broker->m_writes.clear();
    for (IDispatch* pFrame : {frame.AsFrame(), static_cast<IDispatch*>(nullptr)})
    {
        CBrowserEvent event = CBrowserEvent::BeforeNavigate2(pFrame, ValidCommand);
        Send(event);
        EXPECT_FALSE(event.IsCancelled());
    }
    EXPECT_THAT(answerer.GetShown(), IsEmpty());
    EXPECT_THAT(m_broker->m_writes, IsEmpty());
}

TEST_F(SearchEngineUrl, IsNotTakenFromAnAddressOfAnotherType)
{
    const CMessageBoxAnswerer answerer(IDOK);
    _variant_t vUrl(5L);
    CBrowserEvent event = CBrowserEvent::BeforeNavigate2(GetTop().AsFrame(), ValidCommand);
    V_VARIANTREF(&event.GetArguments()[5]) = &vUrl;
    Send(event);
    EXPECT_FALSE(event.IsCancelled());
    EXPECT_THAT(answerer.GetShown(), IsEmpty());
}

TEST_F(SearchEngineUrl, IsActedOnWithoutAFlagToCancel)
{
    const CMessageBoxAnswerer answerer(IDCANCEL);
    CBrowserEvent event = CBrowserEvent::BeforeNavigate2(GetTop().AsFrame(), ValidCommand);
    event.GetArguments()[0] = VARIANT {};
    Send(event);
    EXPECT_EQ(1u, answerer.GetShown().size());
}

TEST_F(SearchEngineUrl, ReachesTheItemsAfterTheUserAnswered)
{
    std::vector<std::string> callsWhileShown;
    const CMessageBoxAnswerer answerer(IDOK, [&] { callsWhileShown = CFakeButtons::Get().TakeCalls(); });
    Navigate(ValidCommand);
    EXPECT_THAT(callsWhileShown, testing::Contains(HasSubstr("OnPageLoadBegin trelvix:searchweb?")));
    EXPECT_THAT(callsWhileShown, testing::Not(testing::Contains(HasSubstr("OnBrowserEvent"))));
    EXPECT_THAT(CFakeButtons::Get().TakeCalls(), testing::Contains("0 OnBrowserEvent 250"));
}

TEST_F(SearchEngineUrl, KeepsBeginAndEndPaired)
{
    const CMessageBoxAnswerer answerer(IDCANCEL);
    Navigate(ValidCommand);
    EXPECT_EQ(CTVXEventManager::StatePageLoad, m_pWindow->GetState());
    CFakeButtons::Get().TakeCalls();
    Navigate(L"http://page.test/");
    EXPECT_THAT(CFakeButtons::Get().TakeCalls(), testing::Not(testing::Contains(HasSubstr("OnPageLoad"))));
    Send(CBrowserEvent::DocumentComplete(GetTop().AsFrame(), L"http://page.test/"));
    EXPECT_THAT(CFakeButtons::Get().TakeCalls(), testing::Contains("0 OnPageLoadComplete http://page.test/"));
    EXPECT_EQ(CTVXEventManager::StateIdle, m_pWindow->GetState());
}

TEST_F(SearchEngineUrl, IsRefusedByTheHandlerForAnotherPrefix)
{
    std::wstring strUrl = L"trelvix:searchwe?name=n&url=http://u/";
    EXPECT_FALSE(m_pWindow->HandleSearchWebUrl(strUrl));
    EXPECT_EQ(L"trelvix:searchwe?name=n&url=http://u/", strUrl);
    for (const wchar_t* pszUrl : {L"http://page.test/trelvix:searchweb?", L" trelvix:searchweb?", L"trelvix:searchweb",
                                  L"trelvix:", L"trelvix:searchweb/?name=n"})
        EXPECT_FALSE(Navigate(pszUrl)) << pszUrl;
}
} // namespace
