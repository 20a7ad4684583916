#include "tests/unit/bench/BrowserFixture.h"

#include <comutil.h>
#include <exdispid.h>
#include <gmock/gmock.h>

using testing::AnyOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::UnorderedElementsAre;

class LoadEvents : public CBrowserTest
{
protected:
    /// Cancels each navigation from now on to an address with the text in it.
    void CancelNavigationsTo(const std::wstring& part)
    {
        GetRecorder().SetAction([part](DISPID dispid, const DISPPARAMS& params) {
            if (dispid == DISPID_BEFORENAVIGATE2 &&
                std::wstring(V_BSTR(V_VARIANTREF(&params.rgvarg[5]))).find(part) != std::wstring::npos)
                *V_BOOLREF(&params.rgvarg[0]) = VARIANT_TRUE;
        });
    }

    static void ServeFile()
    {
        Serve("/file", "bytes",
              "Content-Type: application/octet-stream\r\nContent-Disposition: attachment; filename=file.bin\r\n");
    }

    /// A page with one frame, loaded; its events are forgotten.
    void LoadPageWithFrame()
    {
        Serve("/frame.html", "<title>Frame</title><a id=link href=/other.html>Link</a>");
        Serve("/other.html", "<title>Other</title>");
        Serve("/page.html", "<title>Page</title><a id=link href='#anchor'>Anchor</a><p id=anchor>"
                            "<iframe name=left src=/frame.html></iframe>");
        Load(L"/page.html");
        TakeEvents();
        TakeRequests();
    }
};

TEST_F(LoadEvents, OfAPlainPageComeInTheBrowsersOrder)
{
    Serve("/plain.html", "<title>Plain</title><p>Text");
    Load(L"/plain.html");
    EXPECT_THAT(TakeEvents(),
                ElementsAre("BeforeNavigate2 top /plain.html", "DownloadBegin", "NavigateComplete2 top /plain.html",
                            "DownloadComplete", "DocumentComplete top /plain.html"));
    EXPECT_EQ(m_window.m_strAddress, UrlOf(L"/plain.html"));
    EXPECT_EQ(m_window.m_strTitle, L"Plain");
}

TEST_F(LoadEvents, OfFramesStandBetweenThoseOfThePage)
{
    Serve("/inner.html", "<p>Inner");
    Serve("/middle.html", "<iframe name=inner src=/inner.html></iframe>");
    Serve("/outer.html", "<iframe name=middle src=/middle.html></iframe>");
    Load(L"/outer.html");
    EXPECT_THAT(
        TakeEvents(),
        ElementsAre("BeforeNavigate2 top /outer.html", "DownloadBegin", "NavigateComplete2 top /outer.html",
                    "BeforeNavigate2 frame /middle.html", "DownloadBegin", "NavigateComplete2 middle /middle.html",
                    "BeforeNavigate2 frame /inner.html", "DownloadBegin", "NavigateComplete2 inner /inner.html",
                    "DownloadComplete", "DocumentComplete inner /inner.html", "DownloadComplete",
                    "DocumentComplete middle /middle.html", "DownloadComplete", "DocumentComplete top /outer.html"));
}

TEST_F(LoadEvents, OfAFramesetAndItsFramesEndWithThoseOfTheTop)
{
    Serve("/leaf.html", "<p>Leaf");
    Serve("/set.html", "<frameset cols='30%,30%,*'><frame name=a src=/leaf.html><frame name=b src=/leaf.html>"
                       "<frame name=c src=/leaf.html></frameset>");
    Load(L"/set.html");
    const auto events = TakeEvents();
    ASSERT_THAT(events, SizeIs(4 * 5));
    EXPECT_EQ(events.front(), "BeforeNavigate2 top /set.html");
    EXPECT_EQ(events.back(), "DocumentComplete top /set.html");
    for (const char* pszFrame : {"a", "b", "c"})
        EXPECT_THAT(events, Contains(std::string("DocumentComplete ") + pszFrame + " /leaf.html"));
}

TEST_F(LoadEvents, OfAnEmptyFrameAreThoseOfAnyOther)
{
    Serve("/page.html", "<iframe name=empty></iframe>");
    Load(L"/page.html");
    EXPECT_THAT(TakeEvents(),
                ElementsAre("BeforeNavigate2 top /page.html", "DownloadBegin", "NavigateComplete2 top /page.html",
                            "BeforeNavigate2 empty about:blank", "DownloadBegin", "NavigateComplete2 empty about:blank",
                            "DownloadComplete", "DocumentComplete empty about:blank", "DownloadComplete",
                            "DocumentComplete top /page.html"));
}

TEST_F(LoadEvents, OfOneFrameLeaveThePageAlone)
{
    LoadPageWithFrame();
    LoadBy([this] { Run(L"frames[0].document.getElementById('link').click()"); });
    EXPECT_THAT(TakeEvents(),
                ElementsAre("BeforeNavigate2 left /other.html", "DownloadBegin", "NavigateComplete2 left /other.html",
                            "DownloadComplete", "DocumentComplete left /other.html"));
}

TEST_F(LoadEvents, OfAReloadAreDownloadsOnly)
{
    Serve("/plain.html", "<p>Text");
    Load(L"/plain.html");
    TakeEvents();
    TakeRequests();
    LoadBy([this] { m_spBrowser->Refresh(); });
    EXPECT_THAT(TakeEvents(), ElementsAre("DownloadBegin", "DownloadComplete"));
    EXPECT_THAT(TakeRequests(), Contains(HasSubstr("GET /plain.html")));
}

TEST_F(LoadEvents, OfAFramesReloadAreDownloadsOnly)
{
    LoadPageWithFrame();
    LoadBy([this] { Run(L"frames[0].location.reload()"); });
    EXPECT_THAT(TakeEvents(), ElementsAre("DownloadBegin", "DownloadComplete"));
}

TEST_F(LoadEvents, OfAnAnchorFetchNothing)
{
    LoadPageWithFrame();
    Run(L"document.getElementById('link').click()");
    ASSERT_TRUE(PumpUntilTold("DocumentComplete top /page.html#anchor"));
    EXPECT_THAT(TakeEvents(),
                ElementsAre("BeforeNavigate2 top /page.html#anchor", "NavigateComplete2 top /page.html#anchor",
                            "DocumentComplete top /page.html#anchor"));
    EXPECT_EQ(m_window.m_strAddress, UrlOf(L"/page.html#anchor"));
    Run(L"history.pushState(null, '', '/elsewhere')");
    EXPECT_TRUE(PumpUntil([this] { return m_window.m_strAddress == UrlOf(L"/elsewhere"); }));
    EXPECT_THAT(TakeEvents(), IsEmpty());
}

TEST_F(LoadEvents, OfACancelledNavigationEndThereAndNothingIsFetched)
{
    LoadPageWithFrame();
    CancelNavigationsTo(L"/other.html");
    EXPECT_EQ(Navigate(UrlOf(L"/other.html")), S_OK);
    ASSERT_TRUE(PumpUntilTold("BeforeNavigate2 top /other.html"));
    EXPECT_THAT(TakeEvents(), SizeIs(1));
    Run(L"frames[0].location = '/other.html'");
    ASSERT_TRUE(PumpUntilTold("BeforeNavigate2 left /other.html"));
    EXPECT_THAT(TakeEvents(), SizeIs(1));
    EXPECT_THAT(TakeRequests(), Not(Contains(HasSubstr("/other.html"))));
    EXPECT_EQ(Run(L"document.title"), "Page");
}

TEST_F(LoadEvents, OfAFileTellTheDownloadAndNoDocument)
{
    LoadPageWithFrame();
    ServeFile();
    LoadBy([this] { Navigate(UrlOf(L"/file")); });
    ASSERT_TRUE(PumpUntilTold("FileDownload"));
    const auto events = TakeEvents();
    EXPECT_THAT(events, SizeIs(4));
    EXPECT_THAT(events, Contains("BeforeNavigate2 top /file"));
    EXPECT_EQ(Run(L"document.title"), "Page");
}

TEST_F(LoadEvents, OfAFileInAFrameTellTheDownloadAndNoDocument)
{
    LoadPageWithFrame();
    ServeFile();
    LoadBy([this] { Run(L"frames[0].location = '/file'"); });
    ASSERT_TRUE(PumpUntilTold("FileDownload"));
    EXPECT_THAT(TakeEvents(), UnorderedElementsAre("BeforeNavigate2 left /file", "DownloadBegin", "FileDownload",
                                                   "DownloadComplete"));
    EXPECT_EQ(Run(L"document.title + frames[0].document.title"), "PageFrame");
}

TEST_F(LoadEvents, OfAScriptAddressAreTheQuestionAlone)
{
    LoadPageWithFrame();
    Navigate(L"javascript:document.title='by%20address'");
    Settle();
    EXPECT_THAT(TakeEvents(), ElementsAre("BeforeNavigate2 top javascript:document.title='by%20address'"));
    EXPECT_EQ(Run(L"document.title"), "by address");

    Run(L"link.href = 'javascript:document.title=1'; link.click()");
    Settle();
    EXPECT_THAT(TakeEvents(), ElementsAre("BeforeNavigate2 top javascript:document.title=1"));
    EXPECT_EQ(Run(L"document.title"), "1");

    CancelNavigationsTo(L"javascript:");
    Run(L"link.href = 'javascript:document.title=2'; link.click()");
    Settle();
    EXPECT_EQ(Run(L"document.title"), "1");
}

TEST_F(LoadEvents, OfAPageThatCantBeReachedEndWithAnErrorPage)
{
    LoadBy([this] { EXPECT_EQ(Navigate(L"http://127.0.0.1:9/gone"), S_OK); });
    EXPECT_THAT(TakeEvents(), ElementsAre("BeforeNavigate2 top http://127.0.0.1:9/gone", "DownloadBegin",
                                          "NavigateError top http://127.0.0.1:9/gone",
                                          "NavigateComplete2 top http://127.0.0.1:9/gone", "DownloadComplete",
                                          "DocumentComplete top http://127.0.0.1:9/gone"));
    EXPECT_TRUE(PumpUntil([this] { return m_window.m_strStatus.starts_with(L"Can't reach http://127.0.0.1:9/gone"); }));
}

TEST_F(LoadEvents, AskForAddressesOfUnknownSchemesFromLinkScriptAndFrame)
{
    Serve("/inner.html", "<a id=link href='trelvix:inner'>Link</a>");
    Serve("/page.html", "<title>Page</title><a id=link href='trelvix:link'>Link</a>"
                        "<iframe src=/inner.html></iframe><iframe src='trelvix:first'></iframe>");
    CancelNavigationsTo(L"trelvix:");
    Load(L"/page.html");
    EXPECT_TRUE(PumpUntilTold("BeforeNavigate2 frame trelvix:first"));
    TakeEvents();
    Run(L"document.getElementById('link').click()");
    EXPECT_TRUE(PumpUntilTold("BeforeNavigate2 top trelvix:link"));
    EXPECT_THAT(TakeEvents(), SizeIs(1));
    Run(L"location = 'trelvix:script'");
    EXPECT_TRUE(PumpUntilTold("BeforeNavigate2 top trelvix:script"));
    EXPECT_THAT(TakeEvents(), SizeIs(1));
    Run(L"frames[0].document.getElementById('link').click()");
    EXPECT_TRUE(PumpUntilTold("BeforeNavigate2 frame trelvix:inner"));
    EXPECT_THAT(TakeEvents(), SizeIs(1));
    EXPECT_NE(Navigate(L"trelvix:own"), S_OK);
    Settle();
    EXPECT_THAT(TakeEvents(), ElementsAre("BeforeNavigate2 top trelvix:own"));
    EXPECT_EQ(Run(L"document.title"), "Page");
}

TEST_F(LoadEvents, OfAPageEndWithItsDocumentWhenItsScriptNavigatesInVain)
{
    Serve("/page.html", "<title>Page</title><script>location = 'trelvix:script'</script>");
    CancelNavigationsTo(L"trelvix:");
    Load(L"/page.html");
    EXPECT_THAT(TakeEvents(), ElementsAre("BeforeNavigate2 top /page.html", "DownloadBegin",
                                          "NavigateComplete2 top /page.html", "BeforeNavigate2 top trelvix:script",
                                          "DownloadComplete", "DocumentComplete top /page.html"));
}

TEST_F(LoadEvents, OfARedirectedPageAskOnce)
{
    Serve("/target.html", "<title>Target</title>");
    Redirect("/start.html", "/target.html");
    Load(L"/start.html");
    EXPECT_THAT(TakeEvents(),
                ElementsAre("BeforeNavigate2 top /start.html", "DownloadBegin", "NavigateComplete2 top /target.html",
                            "DownloadComplete", "DocumentComplete top /target.html"));
}

TEST_F(LoadEvents, LetASinkNavigateElsewhere)
{
    Serve("/first.html", "<title>First</title>");
    Serve("/second.html", "<title>Second</title>");
    GetRecorder().SetAction([this](DISPID dispid, const DISPPARAMS&) {
        if (dispid == DISPID_NAVIGATECOMPLETE2 && m_window.m_strAddress.find(L"second") == std::wstring::npos)
        {
            GetRecorder().SetAction(nullptr);
            Navigate(UrlOf(L"/second.html"));
        }
    });
    Navigate(UrlOf(L"/first.html"));
    ASSERT_TRUE(PumpUntilTold("DocumentComplete top /second.html"));
    EXPECT_EQ(TakeEvents().back(), "DocumentComplete top /second.html");
}

TEST_F(LoadEvents, LetASinkCloseTheBrowserInsideAnyOfThem)
{
    Serve("/leaf.html", "<p>Leaf");
    Serve("/page.html", "<iframe src=/leaf.html></iframe>");
    for (const DISPID dispid : {DISPID_BEFORENAVIGATE2, DISPID_DOWNLOADBEGIN, DISPID_NAVIGATECOMPLETE2,
                                DISPID_DOWNLOADCOMPLETE, DISPID_DOCUMENTCOMPLETE, DISPID_ONQUIT})
    {
        if (!m_spBrowser)
            SetUp();
        GetRecorder().SetAction([&](DISPID told, const DISPPARAMS&) {
            if (told == dispid)
                m_spBrowser->Close();
        });
        Navigate(UrlOf(L"/page.html"));
        if (dispid == DISPID_ONQUIT)
            m_spBrowser->Close();
        ASSERT_TRUE(PumpUntil([this] { return !GetPage().IsOpen(); }));
        Settle();
        EXPECT_EQ(TakeEvents().back(), "OnQuit");
        TearDown();
    }
    SetUp();
}

TEST_F(LoadEvents, StandCallsToThePageInsideThem)
{
    Serve("/leaf.html", "<p>Leaf");
    Serve("/page.html", "<title>Page</title><iframe src=/leaf.html></iframe><iframe src=/leaf.html></iframe>");
    Load(L"/leaf.html");
    TakeEvents();
    std::vector<DISPID> unanswered;
    GetRecorder().SetAction([&](DISPID dispid, const DISPPARAMS&) {
        if (Run(L"1 + 1") != 2)
            unanswered.push_back(dispid);
    });
    for (int nLoad = 0; nLoad < 3; ++nLoad)
    {
        Load(L"/page.html");
        const auto events = TakeEvents();
        ASSERT_THAT(events, SizeIs(3 * 5));
        EXPECT_EQ(events.back(), "DocumentComplete top /page.html");
    }
    // The engine answers none of them from the request for a page on until its document is there to run scripts in.
    EXPECT_THAT(unanswered, Each(AnyOf(DISPID_BEFORENAVIGATE2, DISPID_DOWNLOADBEGIN, DISPID_NAVIGATECOMPLETE2,
                                       DISPID_COMMANDSTATECHANGE)));
    TakeEvents();
    LoadBy([this] { Navigate(ForeignUrlOf(L"/page.html")); });
    EXPECT_THAT(TakeEvents(), SizeIs(3 * 5));
}

TEST_F(LoadEvents, CarryHeadersAndPostData)
{
    Serve("/form", "<p>Thanks");
    SAFEARRAY* const pBytes = SafeArrayCreateVector(VT_UI1, 0, 3);
    memcpy(pBytes->pvData, "a=b", 3);
    _variant_t post;
    V_VT(&post) = VT_ARRAY | VT_UI1;
    V_ARRAY(&post) = pBytes;
    _variant_t headers(L"X-Trial: yes\r\n");
    std::string told;
    GetRecorder().SetAction([&](DISPID dispid, const DISPPARAMS& params) {
        if (dispid != DISPID_BEFORENAVIGATE2)
            return;
        ASSERT_EQ(params.cArgs, 7u);
        const VARIANT& outer = *V_VARIANTREF(&params.rgvarg[2]);
        ASSERT_EQ(V_VT(&outer), VT_BYREF | VT_VARIANT);
        ASSERT_EQ(V_VT(V_VARIANTREF(&outer)), VT_ARRAY | VT_UI1);
        told.assign(static_cast<const char*>(V_ARRAY(V_VARIANTREF(&outer))->pvData), 3);
        EXPECT_STREQ(V_BSTR(V_VARIANTREF(&params.rgvarg[1])), L"X-Trial: yes\r\n");
        EXPECT_EQ(V_VT(V_VARIANTREF(&params.rgvarg[4])), VT_I4);
        EXPECT_EQ(V_VT(V_VARIANTREF(&params.rgvarg[3])), VT_BSTR);
        EXPECT_EQ(V_VT(&params.rgvarg[0]), VT_BYREF | VT_BOOL);
    });
    TakeRequests();
    LoadBy([&] {
        EXPECT_EQ(m_spBrowser->Navigate(_bstr_t(UrlOf(L"/form").c_str()), nullptr, nullptr, &post, &headers), S_OK);
    });
    EXPECT_EQ(told, "a=b");
    EXPECT_THAT(TakeRequests(),
                Contains(testing::AllOf(HasSubstr("POST /form"), HasSubstr("X-Trial: yes"), HasSubstr("\r\n\r\na=b"))));
}

TEST_F(LoadEvents, GoBackAndForward)
{
    Serve("/one.html", "<title>One</title>");
    Serve("/two.html", "<title>Two</title>");
    Load(L"/one.html");
    EXPECT_FALSE(GetPage().CanGoBack());
    Load(L"/two.html");
    ASSERT_TRUE(PumpUntil([this] { return GetPage().CanGoBack(); }));
    EXPECT_EQ(m_spBrowser->GoBack(), S_OK);
    ASSERT_TRUE(PumpUntil([this] { return m_window.m_strTitle == L"One"; }));
    ASSERT_TRUE(PumpUntil([this] { return GetPage().CanGoForward(); }));
    EXPECT_EQ(m_spBrowser->GoForward(), S_OK);
    EXPECT_TRUE(PumpUntil([this] { return m_window.m_strTitle == L"Two"; }));
}

TEST_F(LoadEvents, EndWithOnQuit)
{
    m_spBrowser->Close();
    EXPECT_THAT(TakeEvents(), ElementsAre("OnQuit"));
    EXPECT_EQ(Navigate(L"about:blank"), RPC_E_DISCONNECTED);
    m_spBrowser->Close();
    EXPECT_THAT(TakeEvents(), IsEmpty());
}
