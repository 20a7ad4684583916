// The window puts a handler between each new document and the browser.

#include "resources/Trelvix.h"
#include "tests/fakes/FakeClientSite.h"
#include "tests/fakes/RefusedClass.h"
#include "tests/unit/events/ToolbarOnPageFixture.h"

#include <windows.h>
#include <docobj.h>

using Microsoft::WRL::ComPtr;

namespace
{
class InstallUIHandler : public CToolbarOnPageTest
{
protected:
    InstallUIHandler() { GetDocument().m_spClientSite = m_spSite; }
    ~InstallUIHandler() override { GetDocument().m_spUIHandler.Reset(); }

    CFakeDocument& GetDocument() { return *m_spDocument.Get(); }

    /// Installs a handler, which fails, and tells how many are left.
    LONG FailAndCountHandlers()
    {
        EXPECT_FALSE(m_pWindow->InstallUIHandler());
        return m_module.GetObjectCount();
    }

    ComPtr<CFakeClientSite> m_spSite = MakeFake<CFakeClientSite>();
    ComPtr<CFakeDocument> m_spDocument = &CFakePage::GetDocument(GetTop());
};

TEST_F(InstallUIHandler, AsksTheDocumentForItsSiteAndBecomesItsHandler)
{
    CFakeCalls::Get().ClearLog();
    EXPECT_TRUE(m_pWindow->InstallUIHandler());
    EXPECT_EQ((std::vector<std::string> {"WebBrowser.get_Document", "Document.GetClientSite", "Document.SetUIHandler"}),
              CFakeCalls::Get().GetNames());
    ComPtr<ITrelvixMSHTMLUIHandler> spHandler;
    EXPECT_EQ(S_OK, GetDocument().m_spUIHandler.As(&spHandler));
}

TEST_F(InstallUIHandler, HandsTheSiteToTheHandler)
{
    ASSERT_TRUE(m_pWindow->InstallUIHandler());
    m_spSite->m_hrAnswer = E_ABORT;
    EXPECT_EQ(E_ABORT, GetDocument().m_spUIHandler->UpdateUI());
}

TEST_F(InstallUIHandler, HandsTheWindowToTheHandler)
{
    ASSERT_TRUE(m_pWindow->InstallUIHandler());
    ComPtr<IOleCommandTarget> spTarget;
    GetDocument().m_spUIHandler.As(&spTarget);
    _variant_t vDocument(static_cast<IUnknown*>(GetDocument().AsObject()));
    spTarget->Exec(nullptr, OLECMDID_SHOWSCRIPTERROR, 0, &vDocument, nullptr);
    EXPECT_THAT(CFakeButtons::Get().TakeCalls(), testing::Contains("0 OnScriptError"));
}

TEST_F(InstallUIHandler, FollowsEachNavigationOfPageAndFrames)
{
    CFakeWebBrowser2& frame = m_page.AddFrame(GetTop(), L"http://page.test/frame");
    for (IDispatch* pFrame : {GetTop().AsFrame(), frame.AsFrame(), static_cast<IDispatch*>(nullptr)})
    {
        const ComPtr<IDocHostUIHandler> spPrevious = GetDocument().m_spUIHandler;
        Send(CBrowserEvent::NavigateComplete2(pFrame, L"http://page.test/"));
        EXPECT_NE(nullptr, GetDocument().m_spUIHandler.Get());
        EXPECT_NE(spPrevious.Get(), GetDocument().m_spUIHandler.Get());
    }
    EXPECT_EQ(nullptr, CFakePage::GetDocument(frame).m_spUIHandler.Get());
}

TEST_F(InstallUIHandler, LetsThePreviousHandlerGo)
{
    for (int n = 0; n < 3; ++n)
        EXPECT_TRUE(m_pWindow->InstallUIHandler());
    EXPECT_EQ(1, m_module.GetObjectCount());
}

TEST_F(InstallUIHandler, LeavesAHandlerThatOutlivesTheToolbar)
{
    ASSERT_TRUE(m_pWindow->InstallUIHandler());
    m_pWindow.reset();
    ComPtr<IOleCommandTarget> spTarget;
    GetDocument().m_spUIHandler.As(&spTarget);
    _variant_t vDocument(static_cast<IUnknown*>(GetDocument().AsObject()));
    m_spSite->m_hrAnswer = E_ABORT;
    EXPECT_EQ(E_ABORT, spTarget->Exec(nullptr, OLECMDID_SHOWSCRIPTERROR, 0, &vDocument, nullptr));
    EXPECT_EQ(E_ABORT, GetDocument().m_spUIHandler->HideUI());
}

TEST_F(InstallUIHandler, NeedsABrowser)
{
    m_pWindow->SetWebBrowser(nullptr);
    EXPECT_EQ(0, FailAndCountHandlers());
}

TEST_F(InstallUIHandler, NeedsTheClass)
{
    m_module.RevokeClasses();
    const CRefusedClass refused(CLSID_TrelvixMSHTMLUIHandler, CLSCTX_INPROC_SERVER);
    EXPECT_EQ(0, FailAndCountHandlers());
}

TEST_F(InstallUIHandler, KeepsTheNewHandlerWhenTheBrowserGivesNoDocument)
{
    CFakeCalls::Get().FailAll("WebBrowser.get_Document", E_FAIL);
    EXPECT_EQ(1, FailAndCountHandlers());
}

TEST_F(InstallUIHandler, DropsTheHandlerWithoutADocument)
{
    GetTop().m_spDocument.Reset();
    EXPECT_EQ(0, FailAndCountHandlers());
}

class LackingDocument : public InstallUIHandler, public testing::WithParamInterface<std::pair<IID, LONG>>
{
};

TEST_P(LackingDocument, GetsNoHandler)
{
    GetDocument().Lack(GetParam().first);
    EXPECT_EQ(GetParam().second, FailAndCountHandlers());
    EXPECT_EQ(nullptr, GetDocument().m_spUIHandler.Get());
}

INSTANTIATE_TEST_SUITE_P(InstallUIHandler, LackingDocument,
                         testing::Values(std::pair(IID_IHTMLDocument2, 0), std::pair(IID_IOleObject, 0),
                                         std::pair(IID_ICustomDoc, 1)));

TEST_F(InstallUIHandler, NeedsASite)
{
    GetDocument().m_spClientSite.Reset();
    EXPECT_EQ(0, FailAndCountHandlers());
    CFakeCalls::Get().FailAll("Document.GetClientSite", E_UNEXPECTED);
    EXPECT_EQ(0, FailAndCountHandlers());
}

TEST_F(InstallUIHandler, NeedsASiteThatHandlesTheUserInterface)
{
    m_spSite->Lack(IID_IDocHostUIHandler);
    EXPECT_EQ(0, FailAndCountHandlers());
}

TEST_F(InstallUIHandler, NeedsASiteThatTakesCommands)
{
    m_spSite->Lack(IID_IOleCommandTarget);
    EXPECT_EQ(0, FailAndCountHandlers());
}

TEST_F(InstallUIHandler, FailsWhenTheDocumentRefusesTheHandler)
{
    CFakeCalls::Get().FailAll("Document.SetUIHandler", E_ACCESSDENIED);
    EXPECT_EQ(1, FailAndCountHandlers());
}

class FailingInstallation : public InstallUIHandler, public testing::WithParamInterface<HRESULT>
{
};

TEST_P(FailingInstallation, ComesToNoHarmWhicheverCallFails)
{
    int nFailed = 0;
    ForEachFailingCall(GetParam(), [&] {
        const bool bInstalled = m_pWindow->InstallUIHandler();
        nFailed += bInstalled ? 0 : 1;
        EXPECT_TRUE(bInstalled || CFakeCalls::Get().HasFailed());
    });
    EXPECT_GE(nFailed, 5);
}

INSTANTIATE_TEST_SUITE_P(InstallUIHandler, FailingInstallation,
                         testing::Values(E_FAIL, E_ACCESSDENIED, E_OUTOFMEMORY, RPC_E_DISCONNECTED, S_OK));

// The browser completes another navigation while it is asked for the document or its site.
class NestedInstallation : public InstallUIHandler, public testing::WithParamInterface<const char*>
{
};

TEST_P(NestedInstallation, KeepsTheHandlerOfTheNavigationInside)
{
    ComPtr<IDocHostUIHandler> spInner;
    CFakeCalls::Get().ActIn(GetParam(), [&] {
        EXPECT_TRUE(m_pWindow->InstallUIHandler());
        spInner = GetDocument().m_spUIHandler;
    });
    EXPECT_FALSE(m_pWindow->InstallUIHandler());
    EXPECT_EQ(spInner.Get(), GetDocument().m_spUIHandler.Get());
}

TEST_P(NestedInstallation, LeavesNoHandlerWithAWindowThatIsGone)
{
    CFakeCalls::Get().ActIn(GetParam(), [&] { m_pWindow->InstallUIHandler(); });
    m_pWindow->InstallUIHandler();
    m_pWindow.reset();
    ComPtr<IOleCommandTarget> spTarget;
    ASSERT_EQ(S_OK, GetDocument().m_spUIHandler.As(&spTarget));
    _variant_t vDocument(static_cast<IUnknown*>(GetDocument().AsObject()));
    m_spSite->m_hrAnswer = E_ABORT;
    EXPECT_EQ(E_ABORT, spTarget->Exec(nullptr, OLECMDID_SHOWSCRIPTERROR, 0, &vDocument, nullptr));
}

INSTANTIATE_TEST_SUITE_P(InstallUIHandler, NestedInstallation,
                         testing::Values("WebBrowser.get_Document", "Document.GetClientSite"));

TEST_F(InstallUIHandler, StandsABrowserThatReEntersWithAPageThatHasNoSite)
{
    // The browser completes another navigation while it is asked for the document.
    CFakeCalls::Get().ActIn("WebBrowser.get_Document", [&] {
        GetDocument().m_spClientSite.Reset();
        m_pWindow->InstallUIHandler();
        GetDocument().m_spClientSite = m_spSite;
    });
    m_pWindow->InstallUIHandler();
    EXPECT_TRUE(m_pWindow->InstallUIHandler());
}
} // namespace
