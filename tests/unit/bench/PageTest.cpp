#include "tests/unit/bench/BrowserFixture.h"

#include <comutil.h>
#include <exdispid.h>
#include <gmock/gmock.h>
#include <mshtml.h>
#include <oleacc.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class Page : public CBrowserTest
{
};

TEST_F(Page, SendsPicturesWhenItChanges)
{
    Serve("/page.html", "<body style='background: red'>");
    GetPage().ShowPictures(true);
    Load(L"/page.html");
    ASSERT_TRUE(PumpUntil([this] { return !m_window.m_picture.empty(); }));
    EXPECT_THAT(m_window.m_picture, StartsWith("\xff\xd8"));
    const std::string first = m_window.m_picture;
    Run(L"document.body.style.background = 'blue'");
    EXPECT_TRUE(PumpUntil([&] { return m_window.m_picture != first; }));
    EXPECT_THAT(GetPage().Capture(), StartsWith("\x89PNG"));
}

TEST_F(Page, FollowsALinkThatIsClicked)
{
    Serve("/page.html", "<body style='margin: 0'><a href=/next.html style='display: block; height: 300px'>Link</a>");
    Serve("/next.html", "<title>Next</title>");
    Load(L"/page.html");
    Click({100, 100});
    EXPECT_TRUE(PumpUntil([this] { return m_window.m_strTitle == L"Next"; }));
}

TEST_F(Page, TakesKeysAndCharacters)
{
    Serve("/page.html", "<input id=box autofocus>");
    Load(L"/page.html");
    for (const wchar_t ch : std::wstring(L"a\u00e4b"))
        GetPage().Char(ch, InputNone);
    GetPage().KeyDown(VK_LEFT, 0, InputNone);
    GetPage().KeyUp(VK_LEFT, 0, InputNone);
    GetPage().KeyDown(VK_BACK, 0, InputNone);
    GetPage().KeyUp(VK_BACK, 0, InputNone);
    EXPECT_TRUE(PumpUntil([this] { return Run(L"box.value") == "ab"; })) << Run(L"box.value");
}

TEST_F(Page, ScrollsByTheWheel)
{
    Serve("/page.html", "<body style='height: 5000px'>");
    Load(L"/page.html");
    GetPage().Wheel({100, 100}, -WHEEL_DELTA, InputNone);
    EXPECT_TRUE(PumpUntil([this] { return Run(L"scrollY > 0") == true; }));
}

TEST_F(Page, TakesItsSizeFromTheWindow)
{
    Serve("/page.html", "<p>Text");
    Load(L"/page.html");
    GetPage().SetSize(555, 333);
    EXPECT_TRUE(PumpUntil([this] { return Run(L"innerWidth + 'x' + innerHeight") == "555x333"; }));
}

TEST_F(Page, LeavesNewWindowsToTheView)
{
    Serve("/page.html", "<p>Text");
    Serve("/next.html", "<p>Next");
    Load(L"/page.html");
    TakeRequests();
    GetPage().Call("Runtime.evaluate", {{"expression", "void open('/next.html')"}, {"userGesture", true}});
    ASSERT_TRUE(PumpUntil([this] { return !m_window.m_windows.empty(); }));
    Settle();
    EXPECT_THAT(m_window.m_windows, ElementsAre(UrlOf(L"/next.html")));
    EXPECT_THAT(TakeRequests(), testing::Not(testing::Contains(HasSubstr("/next.html"))));
}

TEST_F(Page, TellsATitleThatAScriptChanges)
{
    Serve("/page.html", "<title>Page</title>");
    Load(L"/page.html");
    EXPECT_EQ(m_window.m_strTitle, L"Page");
    Run(L"document.title = 'Changed'");
    EXPECT_TRUE(PumpUntil([this] { return m_window.m_strTitle == L"Changed"; }));
}

TEST_F(Page, AnswersTheMessageForItsDocument)
{
    Serve("/page.html", "<title>Page</title>");
    Load(L"/page.html");
    const LRESULT lResult = m_spBrowser->GetHtmlObject(0);
    ASSERT_NE(lResult, 0);
    Microsoft::WRL::ComPtr<IHTMLDocument2> spDocument;
    ASSERT_EQ(ObjectFromLresult(lResult, IID_IHTMLDocument2, 0, &spDocument), S_OK);
    _bstr_t title;
    EXPECT_EQ(spDocument->get_title(title.GetAddress()), S_OK);
    EXPECT_STREQ(title, L"Page");
    m_spBrowser->Close();
    EXPECT_EQ(m_spBrowser->GetHtmlObject(0), 0);
}

TEST_F(Page, AnswersBoxesOfScriptsAtOnce)
{
    Serve("/page.html", "<title>Page</title>");
    Load(L"/page.html");
    Run(L"setTimeout(() => { alert('Hello'); document.title = String(confirm('Sure?')); })");
    ASSERT_TRUE(PumpUntil([this] { return Run(L"document.title") == "false"; }));
    EXPECT_THAT(m_window.m_dialogs, ElementsAre(L"Hello", L"Sure?"));
}

TEST_F(Page, TellsOnceThatItsProcessHasEndedAndAnswersNothingMore)
{
    Serve("/page.html", "<p>Text");
    Load(L"/page.html");
    Navigate(L"chrome://crash");
    ASSERT_TRUE(PumpUntil([this] { return !m_window.m_gone.empty(); }));
    Settle();
    EXPECT_THAT(m_window.m_gone, SizeIs(1));
    EXPECT_FALSE(GetPage().IsOpen());
    EXPECT_TRUE(Run(L"1").is_null());
    EXPECT_EQ(m_spBrowser->Refresh(), RPC_E_DISCONNECTED);
    BSTR bstrUrl = nullptr;
    EXPECT_EQ(m_spBrowser->get_LocationURL(&bstrUrl), RPC_E_DISCONNECTED);
}

TEST_F(Page, TellsThatTheEngineHasEnded)
{
    Serve("/page.html", "<p>Text");
    Load(L"/page.html");
    GetPage().Post("Browser.crash");
    ASSERT_TRUE(PumpUntil([this] { return !m_window.m_gone.empty(); }));
    EXPECT_THAT(m_window.m_gone, ElementsAre(L"The engine has ended."));
    EXPECT_TRUE(PumpUntil([] { return !GetEngine().IsRunning(); }));
    std::wstring error;
    EXPECT_TRUE(GetEngine().OpenTarget(error).empty());
    EXPECT_FALSE(error.empty());
    m_spBrowser->Close();
    RestartEngine();
}

TEST_F(Page, OpensWindowsAndTabsWhereTheFlagsSaySo)
{
    _variant_t flags(static_cast<long>(navOpenInNewTab));
    EXPECT_EQ(m_spBrowser->Navigate(_bstr_t(L"about:tab"), &flags, nullptr, nullptr, nullptr), S_OK);
    flags = static_cast<long>(navOpenInNewWindow);
    EXPECT_EQ(m_spBrowser->Navigate(_bstr_t(L"about:window"), &flags, nullptr, nullptr, nullptr), S_OK);
    _variant_t blank(L"_blank");
    EXPECT_EQ(m_spBrowser->Navigate(_bstr_t(L"about:target"), nullptr, &blank, nullptr, nullptr), S_OK);
    EXPECT_THAT(m_window.m_tabs, ElementsAre(L"about:tab"));
    EXPECT_THAT(m_window.m_windows, ElementsAre(L"about:window", L"about:target"));
    EXPECT_THAT(TakeEvents(), IsEmpty());
    EXPECT_EQ(m_spBrowser->Navigate(nullptr, nullptr, nullptr, nullptr, nullptr), E_INVALIDARG);
}

TEST_F(Page, KeepsPropertiesAndTellsTheirChange)
{
    std::wstring changed;
    GetRecorder().SetAction([&](DISPID dispid, const DISPPARAMS& params) {
        if (dispid == DISPID_PROPERTYCHANGE)
            changed = V_BSTR(&params.rgvarg[0]);
    });
    _variant_t value;
    EXPECT_EQ(m_spBrowser->GetProperty(_bstr_t(L"TRELVIX_HWND"), &value), S_OK);
    EXPECT_EQ(V_VT(&value), VT_EMPTY);
    EXPECT_EQ(m_spBrowser->PutProperty(_bstr_t(L"TRELVIX_HWND"), _variant_t(7L)), S_OK);
    EXPECT_EQ(changed, L"TRELVIX_HWND");
    EXPECT_EQ(m_spBrowser->GetProperty(_bstr_t(L"TRELVIX_HWND"), &value), S_OK);
    EXPECT_EQ(V_I4(&value), 7);
    EXPECT_EQ(m_spBrowser->GetProperty(_bstr_t(L"TRELVIX_HWND"), nullptr), E_POINTER);
}

TEST_F(Page, AsksTheWindowForBars)
{
    _variant_t clsid(L"{947E34E9-1D85-43CB-9CBF-5C492118FDD5}");
    _variant_t show(true);
    EXPECT_EQ(m_spBrowser->ShowBrowserBar(&clsid, &show, nullptr), S_OK);
    EXPECT_THAT(m_window.m_bars, ElementsAre(L"{947E34E9-1D85-43CB-9CBF-5C492118FDD5} shown 0"));
    _variant_t noClsid(L"no class");
    EXPECT_EQ(m_spBrowser->ShowBrowserBar(&noClsid, &show, nullptr), E_INVALIDARG);
}

TEST(Engine, SaysInOneLineWhyItCouldNotBeStarted)
{
    CEngine engine;
    std::wstring error;
    EXPECT_FALSE(engine.Start(L"no-such-engine", error));
    EXPECT_THAT(error, HasSubstr(L"no-such-engine"));
    EXPECT_FALSE(engine.IsRunning());
    EXPECT_EQ(engine.GetPort(), 0);
    EXPECT_FALSE(engine.Start(L"C:\\no-such-engine.exe", error));
    EXPECT_THAT(error, HasSubstr(L"no-such-engine.exe"));
    EXPECT_FALSE(engine.Start(L"/bin/false", error));
    EXPECT_THAT(error, HasSubstr(L"/bin/false"));
}
