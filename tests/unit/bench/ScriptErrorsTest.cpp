#include "framework/ComQuery.h"
#include "notimpl/DocHostUIHandler.h"
#include "tests/unit/bench/BrowserFixture.h"

#include <comutil.h>
#include <docobj.h>
#include <exdispid.h>
#include <gmock/gmock.h>
#include <mshtmhst.h>
#include <mshtml.h>

using Microsoft::WRL::ComPtr;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{
/// A handler that notes the script errors it is asked to show, and answers as it is told.
class CNotingHandler : public CCountedObject<CNotingHandler, CDocHostUIHandlerNotImpl, IOleCommandTarget>
{
    BEGIN_COM_MAP(CNotingHandler)
        COM_INTERFACE_ENTRY(IDocHostUIHandler)
        COM_INTERFACE_ENTRY(IOleCommandTarget)
    END_COM_MAP()

public:
    STDMETHODIMP GetHostInfo(DOCHOSTUIINFO*) override
    {
        ++m_nAsked;
        return S_OK;
    }
    STDMETHODIMP UpdateUI() override
    {
        ++m_nUpdates;
        return S_OK;
    }
    STDMETHODIMP EnableModeless(BOOL bEnable) override
    {
        m_enabled.push_back(bEnable != FALSE);
        return S_OK;
    }
    STDMETHODIMP OnDocWindowActivate(BOOL bActive) override
    {
        m_bActive = bActive != FALSE;
        return S_OK;
    }
    STDMETHODIMP ShowContextMenu(DWORD, POINT* pPoint, IUnknown*, IDispatch*) override
    {
        m_menuPoint = *pPoint;
        return S_OK;
    }
    STDMETHODIMP TranslateAccelerator(LPMSG pMsg, const GUID*, DWORD) override
    {
        return pMsg->wParam == VK_F9 ? S_OK : S_FALSE;
    }
    STDMETHODIMP QueryStatus(const GUID*, ULONG, OLECMD*, OLECMDTEXT*) override { return E_NOTIMPL; }
    STDMETHODIMP Exec(const GUID*, DWORD nCommand, DWORD, VARIANT* pvIn, VARIANT* pvOut) override
    {
        EXPECT_EQ(nCommand, static_cast<DWORD>(OLECMDID_SHOWSCRIPTERROR));
        EXPECT_EQ(V_VT(pvIn), VT_UNKNOWN);
        ComPtr<IHTMLWindow2> spWindow;
        EXPECT_EQ(QueryFor<IHTMLDocument2>(V_UNKNOWN(pvIn))->get_parentWindow(&spWindow), S_OK);
        ComPtr<IHTMLEventObj> spEvent;
        EXPECT_EQ(spWindow->get_event(&spEvent), S_OK);
        for (const wchar_t* pszName : {L"errorLine", L"errorCharacter", L"errorCode", L"errorMessage", L"errorUrl"})
            m_properties.push_back(Get(spEvent.Get(), pszName));
        *pvOut = _variant_t(m_bGoOn).Detach();
        return m_hrAnswer;
    }

    static _variant_t Get(IDispatch* pObject, const wchar_t* pszName)
    {
        LPOLESTR pszOleName = const_cast<LPOLESTR>(pszName);
        DISPID dispid = DISPID_UNKNOWN;
        EXPECT_EQ(pObject->GetIDsOfNames(IID_NULL, &pszOleName, 1, 2048, &dispid), S_OK);
        DISPPARAMS none = {};
        _variant_t value;
        EXPECT_EQ(pObject->Invoke(dispid, IID_NULL, 2048, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr), S_OK);
        return value;
    }

    int m_nAsked = 0;
    int m_nUpdates = 0;
    std::vector<bool> m_enabled;
    bool m_bActive = false;
    POINT m_menuPoint = {};
    bool m_bGoOn = true;
    HRESULT m_hrAnswer = S_OK;
    std::vector<_variant_t> m_properties;
};
} // namespace

class ScriptErrors : public CBrowserTest
{
protected:
    void LoadFailingPage()
    {
        Serve("/frame.html", "<script>\nfunction fail() { missingInFrame(); }</script>");
        Serve("/page.html", "<title>Page</title><iframe name=left src=/frame.html></iframe><script>\n"
                            "  function fail() { missing(); }\n</script>");
        Load(L"/page.html");
    }

    ComPtr<CNotingHandler> SetHandler()
    {
        auto spHandler = MakeObject<CNotingHandler>();
        ComPtr<IDispatch> spDocument;
        EXPECT_EQ(m_spBrowser->get_Document(&spDocument), S_OK);
        EXPECT_EQ(QueryFor<ICustomDoc>(spDocument.Get())->SetUIHandler(spHandler.Get()), S_OK);
        return spHandler;
    }
};

TEST_F(ScriptErrors, GoToTheHandlerWithTheirFiveProperties)
{
    LoadFailingPage();
    const auto spHandler = SetHandler();
    EXPECT_EQ(spHandler->m_nAsked, 1);
    Run(L"setTimeout(fail)");
    ASSERT_TRUE(PumpUntil([&] { return !spHandler->m_properties.empty(); }));
    ASSERT_THAT(spHandler->m_properties, SizeIs(5));
    EXPECT_EQ(V_VT(&spHandler->m_properties[0]), VT_I4);
    EXPECT_EQ(V_I4(&spHandler->m_properties[0]), 2);
    EXPECT_EQ(V_VT(&spHandler->m_properties[1]), VT_I4);
    EXPECT_EQ(V_I4(&spHandler->m_properties[1]), 21);
    EXPECT_EQ(V_VT(&spHandler->m_properties[2]), VT_I4);
    EXPECT_THAT(V_BSTR(&spHandler->m_properties[3]), HasSubstr(L"missing is not defined"));
    EXPECT_EQ(UrlOf(L"/page.html"), V_BSTR(&spHandler->m_properties[4]));
    EXPECT_THAT(m_window.m_scriptErrors, IsEmpty());
}

TEST_F(ScriptErrors, OfAFrameGoToTheHandlerOfThePage)
{
    LoadFailingPage();
    const auto spHandler = SetHandler();
    Run(L"frames[0].setTimeout('fail()')");
    ASSERT_TRUE(PumpUntil([&] { return !spHandler->m_properties.empty(); }));
    EXPECT_EQ(UrlOf(L"/frame.html"), V_BSTR(&spHandler->m_properties[4]));
}

TEST_F(ScriptErrors, GoToTheWindowsOwnBoxWithoutAHandlerOrWhenItRefuses)
{
    LoadFailingPage();
    Run(L"setTimeout(fail)");
    ASSERT_TRUE(PumpUntil([this] { return m_window.m_scriptErrors.size() == 1; }));
    EXPECT_THAT(m_window.m_scriptErrors[0], HasSubstr(L"missing is not defined"));
    const auto spHandler = SetHandler();
    spHandler->m_hrAnswer = E_FAIL;
    Run(L"setTimeout(fail)");
    EXPECT_TRUE(PumpUntil([this] { return m_window.m_scriptErrors.size() == 2; }));
    EXPECT_THAT(spHandler->m_properties, SizeIs(5));
    EXPECT_THAT(spHandler->m_enabled, ElementsAre(false, true));
}

TEST_F(ScriptErrors, StopThePagesScriptsWhenTheHandlerSaysSo)
{
    LoadFailingPage();
    const auto spHandler = SetHandler();
    spHandler->m_bGoOn = false;
    Run(L"onclick = () => document.title = 'clicked'; setTimeout(fail)");
    ASSERT_TRUE(PumpUntil([&] { return !spHandler->m_properties.empty(); }));
    Settle();
    Click({300, 300});
    EXPECT_EQ(Run(L"document.title"), "Page");
    Serve("/next.html", "<title>Next</title><script>document.title += ' runs'</script>");
    Load(L"/next.html");
    EXPECT_EQ(Run(L"document.title"), "Next runs");
}

TEST_F(ScriptErrors, StopNoScriptsOfAPageThatCameWhileTheBoxWasOpen)
{
    LoadFailingPage();
    Serve("/next.html", "<title>Next</title><script>onclick = () => document.title = 'Clicked'</script>");
    m_window.m_bScriptsGoOn = false;
    m_window.m_onScriptError = [this] { Load(L"/next.html"); };
    Run(L"setTimeout(fail)");
    ASSERT_TRUE(PumpUntil([this] { return m_window.m_strTitle == L"Next"; }));
    Click({300, 300});
    EXPECT_TRUE(PumpUntil([this] { return m_window.m_strTitle == L"Clicked"; }));
}

TEST_F(ScriptErrors, StopNoScriptsOfAPageThatIsAwaitedWhenTheBoxIsClosed)
{
    LoadFailingPage();
    Serve("/next.html", "<title>Next</title><script>document.title = 'Next runs'</script>");
    m_window.m_bScriptsGoOn = false;
    m_window.m_onScriptError = [this] {
        bool bAwaited = false;
        GetRecorder().SetAction([&](DISPID dispid, const DISPPARAMS&) { bAwaited |= dispid == DISPID_DOWNLOADBEGIN; });
        Navigate(UrlOf(L"/next.html"));
        EXPECT_TRUE(PumpUntil([&] { return bAwaited; }));
        GetRecorder().SetAction(nullptr);
    };
    Run(L"setTimeout(fail)");
    EXPECT_TRUE(PumpUntil([this] { return m_window.m_strTitle == L"Next runs"; }));
}

TEST_F(ScriptErrors, GoToTheSameHandlerAfterAReload)
{
    LoadFailingPage();
    const auto spHandler = SetHandler();
    for (int nReload = 0; nReload < 2; ++nReload)
        LoadBy([this] { m_spBrowser->Refresh(); });
    Run(L"setTimeout(fail)");
    EXPECT_TRUE(PumpUntil([&] { return !spHandler->m_properties.empty(); }));
    EXPECT_THAT(m_window.m_scriptErrors, IsEmpty());
}

TEST_F(ScriptErrors, OfTheNextPageGoToTheBoxEvenWhenThatIsReloaded)
{
    LoadFailingPage();
    const auto spHandler = SetHandler();
    LoadFailingPage();
    LoadBy([this] { m_spBrowser->Refresh(); });
    Run(L"setTimeout(fail)");
    EXPECT_TRUE(PumpUntil([this] { return m_window.m_scriptErrors.size() == 1; }));
    EXPECT_THAT(spHandler->m_properties, IsEmpty());
}

TEST_F(ScriptErrors, HaveNoEventObjectAtOtherTimes)
{
    LoadFailingPage();
    ComPtr<IDispatch> spDocument;
    ASSERT_EQ(m_spBrowser->get_Document(&spDocument), S_OK);
    ComPtr<IHTMLWindow2> spWindow;
    ASSERT_EQ(QueryFor<IHTMLDocument2>(spDocument.Get())->get_parentWindow(&spWindow), S_OK);
    ComPtr<IHTMLEventObj> spEvent;
    EXPECT_EQ(spWindow->get_event(&spEvent), S_OK);
    EXPECT_FALSE(spEvent);
}

TEST_F(ScriptErrors, FindTheSiteOfTheDocumentWithItsTwoInterfaces)
{
    LoadFailingPage();
    ComPtr<IDispatch> spDocument;
    ASSERT_EQ(m_spBrowser->get_Document(&spDocument), S_OK);
    ComPtr<IOleClientSite> spSite;
    ASSERT_EQ(QueryFor<IOleObject>(spDocument.Get())->GetClientSite(&spSite), S_OK);
    const auto spHandler = QueryFor<IDocHostUIHandler>(spSite.Get());
    ASSERT_TRUE(spHandler);
    const auto spTarget = QueryFor<IOleCommandTarget>(spSite.Get());
    ASSERT_TRUE(spTarget);
    ComPtr<IDispatch> spExternal;
    EXPECT_EQ(spHandler->GetExternal(&spExternal), S_FALSE);
    EXPECT_EQ(spTarget->Exec(nullptr, OLECMDID_PRINT, 0, nullptr, nullptr), OLECMDERR_E_NOTSUPPORTED);
    EXPECT_EQ(spTarget->Exec(nullptr, OLECMDID_SHOWSCRIPTERROR, 0, nullptr, nullptr), E_INVALIDARG);
}

TEST_F(ScriptErrors, AreNotAllThatTheHandlerIsAsked)
{
    LoadFailingPage();
    const auto spHandler = SetHandler();
    m_spBrowser->OnActivate(true);
    EXPECT_TRUE(spHandler->m_bActive);
    m_spBrowser->AskForContextMenu({12, 34});
    EXPECT_EQ(spHandler->m_menuPoint.x, 12);
    MSG msg = {};
    msg.wParam = VK_F9;
    EXPECT_TRUE(m_spBrowser->TranslateKey(msg));
    msg.wParam = VK_F8;
    EXPECT_FALSE(m_spBrowser->TranslateKey(msg));
    Run(L"location.hash = 'anchor'");
    EXPECT_TRUE(PumpUntil([&] { return spHandler->m_nUpdates == 1; }));
    Load(L"/page.html");
    EXPECT_FALSE(m_spBrowser->TranslateKey(msg));
}
