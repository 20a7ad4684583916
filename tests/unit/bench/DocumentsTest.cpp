#include "framework/ComQuery.h"
#include "tests/unit/bench/BrowserFixture.h"

#include <comutil.h>
#include <exdispid.h>
#include <gmock/gmock.h>
#include <mshtml.h>
#include <servprov.h>

using Microsoft::WRL::ComPtr;
using testing::ElementsAre;

class Documents : public CBrowserTest
{
protected:
    ComPtr<IHTMLDocument2> GetDocument(IWebBrowser2* pBrowser)
    {
        ComPtr<IDispatch> spDocument;
        EXPECT_EQ(pBrowser->get_Document(&spDocument), S_OK);
        return QueryFor<IHTMLDocument2>(spDocument.Get());
    }
    ComPtr<IHTMLDocument2> GetDocument() { return GetDocument(m_spBrowser.Get()); }

    static std::vector<ComPtr<IUnknown>> GetEmbedded(IHTMLDocument2* pDocument)
    {
        std::vector<ComPtr<IUnknown>> objects;
        ComPtr<IEnumUnknown> spEnum;
        EXPECT_EQ(QueryFor<IOleContainer>(pDocument)->EnumObjects(OLECONTF_EMBEDDINGS, &spEnum), S_OK);
        ComPtr<IUnknown> spObject;
        while (spEnum->Next(1, spObject.ReleaseAndGetAddressOf(), nullptr) == S_OK)
            objects.push_back(spObject);
        return objects;
    }

    static std::wstring GetUrl(IUnknown* pBrowser)
    {
        _bstr_t url;
        const ComPtr<IWebBrowser2> spBrowser = QueryFor<IWebBrowser2>(pBrowser);
        if (!spBrowser)
            return L"no browser";
        EXPECT_EQ(spBrowser->get_LocationURL(url.GetAddress()), S_OK);
        const std::wstring text(url, url.length());
        return text.starts_with(UrlOf(L"")) ? text.substr(UrlOf(L"").size()) : text;
    }

    static std::vector<std::wstring> GetUrls(IHTMLDocument2* pDocument)
    {
        std::vector<std::wstring> urls;
        for (const auto& spObject : GetEmbedded(pDocument))
            urls.push_back(GetUrl(spObject.Get()));
        return urls;
    }

    static ComPtr<IHTMLWindow2> GetFrame(IHTMLDocument2* pDocument, const _variant_t& which)
    {
        ComPtr<IHTMLFramesCollection2> spFrames;
        EXPECT_EQ(pDocument->get_frames(&spFrames), S_OK);
        _variant_t index(which);
        _variant_t window;
        spFrames->item(&index, &window);
        return V_VT(&window) == VT_DISPATCH ? QueryFor<IHTMLWindow2>(V_DISPATCH(&window)) : nullptr;
    }
};

TEST_F(Documents, TellTheirAddressTitleAndState)
{
    Serve("/page.html", "<title>A page \xc3\xa4</title><p>Text");
    Load(L"/page.html");
    const auto spDocument = GetDocument();
    _bstr_t text;
    EXPECT_EQ(spDocument->get_URL(text.GetAddress()), S_OK);
    EXPECT_EQ(std::wstring(text), UrlOf(L"/page.html"));
    EXPECT_EQ(spDocument->get_title(text.GetAddress()), S_OK);
    EXPECT_STREQ(text, L"A page \u00e4");
    EXPECT_EQ(spDocument->get_readyState(text.GetAddress()), S_OK);
    EXPECT_STREQ(text, L"complete");
    EXPECT_EQ(spDocument->get_URL(nullptr), E_POINTER);
    HWND hWnd = nullptr;
    EXPECT_EQ(QueryFor<IOleWindow>(spDocument.Get())->GetWindow(&hWnd), S_OK);
    EXPECT_EQ(hWnd, m_window.m_hView);
}

TEST_F(Documents, EnumerateWhatIsEmbeddedInDocumentOrder)
{
    Serve("/leaf.html", "<p>Leaf");
    Serve("/nested.html", "<iframe src=/leaf.html?4></iframe>");
    Serve("/page.html", "<iframe src=/leaf.html?1></iframe><object type=text/html data=/leaf.html?2></object>"
                        "<embed type=image/x-none><iframe src=/nested.html?3></iframe>");
    Load(L"/page.html");
    LoadBy([this] {
        Run(L"const f = document.createElement('iframe'); f.src = '/leaf.html?0'; document.body.prepend(f); 0");
    });
    const auto spDocument = GetDocument();
    EXPECT_THAT(GetUrls(spDocument.Get()),
                ElementsAre(L"/leaf.html?0", L"/leaf.html?1", L"/leaf.html?2", L"no browser", L"/nested.html?3"));
    const auto spNested = QueryFor<IWebBrowser2>(GetEmbedded(spDocument.Get())[4].Get());
    EXPECT_THAT(GetUrls(GetDocument(spNested.Get()).Get()), ElementsAre(L"/leaf.html?4"));
}

TEST_F(Documents, HaveStableObjectsForFramesAndElements)
{
    Serve("/leaf.html", "<p>Leaf");
    Serve("/page.html", "<iframe name=left src=/leaf.html></iframe>");
    Load(L"/page.html");
    const auto spDocument = GetDocument();
    EXPECT_TRUE(IsSameObject(spDocument.Get(), GetDocument().Get()));
    EXPECT_TRUE(IsSameObject(GetEmbedded(spDocument.Get())[0].Get(), GetEmbedded(spDocument.Get())[0].Get()));
    const auto spFrame = GetFrame(spDocument.Get(), 0L);
    ASSERT_TRUE(spFrame);
    EXPECT_TRUE(IsSameObject(spFrame.Get(), GetFrame(spDocument.Get(), L"left").Get()));
    EXPECT_FALSE(GetFrame(spDocument.Get(), 1L));
    ComPtr<IHTMLElement> spBody;
    ComPtr<IHTMLElement> spAgain;
    ASSERT_EQ(spDocument->get_body(&spBody), S_OK);
    ASSERT_EQ(spDocument->get_body(&spAgain), S_OK);
    EXPECT_EQ(spBody, spAgain);
    EXPECT_TRUE(QueryFor<IHTMLBodyElement>(spBody.Get()));
    EXPECT_FALSE(QueryFor<IHTMLFrameSetElement>(spBody.Get()));
}

TEST_F(Documents, KeepTheIdentityOfEachKindOfFrame)
{
    Serve("/leaf.html", "<p>Leaf");
    Serve("/other.html", "<p>Other");
    Serve("/frames.html", "<frameset cols='50%,*'><frame src=/leaf.html><frame src=/leaf.html></frameset>");
    Serve("/others.html", "<iframe src=/leaf.html></iframe><object type=text/html data=/leaf.html></object>");
    for (const wchar_t* pszPage : {L"/frames.html", L"/others.html"})
    {
        Load(pszPage);
        const auto spDocument = GetDocument();
        for (size_t nFrame = 0; nFrame < 2; ++nFrame)
        {
            const ComPtr<IUnknown> spFrame = GetEmbedded(spDocument.Get())[nFrame];
            ComPtr<IUnknown> spTold;
            GetRecorder().SetAction([&](DISPID dispid, const DISPPARAMS& params) {
                if (dispid == DISPID_BEFORENAVIGATE2)
                    spTold = V_DISPATCH(&params.rgvarg[6]);
            });
            LoadBy([&] { Run(L"frames[" + std::to_wstring(nFrame) + L"].location = '/other.html'"); });
            GetRecorder().SetAction(nullptr);
            EXPECT_TRUE(IsSameObject(spFrame.Get(), spTold.Get())) << nFrame;
            EXPECT_TRUE(IsSameObject(spFrame.Get(), GetEmbedded(spDocument.Get())[nFrame].Get())) << nFrame;
            EXPECT_EQ(GetUrl(spFrame.Get()), L"/other.html");
        }
    }
}

TEST_F(Documents, GiveTheFramesetAsTheBodyOfAFrameset)
{
    Serve("/leaf.html", "<p>Leaf");
    Serve("/set.html", "<frameset cols='50%,*'><frame name=a src=/leaf.html><frame name=b src=/leaf.html></frameset>");
    Load(L"/set.html");
    ComPtr<IHTMLElement> spRoot;
    ASSERT_EQ(GetDocument()->get_body(&spRoot), S_OK);
    EXPECT_FALSE(QueryFor<IHTMLBodyElement>(spRoot.Get()));
    const auto spFrameset = QueryFor<IHTMLFrameSetElement>(spRoot.Get());
    ASSERT_TRUE(spFrameset);
    _bstr_t cols;
    EXPECT_EQ(spFrameset->get_cols(cols.GetAddress()), S_OK);
    EXPECT_STREQ(cols, L"50%,*");
}

TEST_F(Documents, DenyThoseOfAnotherOriginAndGiveTheOthers)
{
    Serve("/leaf.html", "<p>Leaf");
    const std::string foreign = ToUtf8(ForeignUrlOf(L"/leaf.html"));
    Serve("/page.html",
          "<iframe name=own src=/leaf.html></iframe><iframe name=foreign src='" + foreign + "'></iframe>");
    Load(L"/page.html");
    const auto spDocument = GetDocument();
    ComPtr<IHTMLDocument2> spInner;
    EXPECT_EQ(GetFrame(spDocument.Get(), L"own")->get_document(&spInner), S_OK);
    const auto spForeign = GetFrame(spDocument.Get(), 1L);
    ASSERT_TRUE(spForeign);
    EXPECT_EQ(spForeign->get_document(&spInner), E_ACCESSDENIED);
    EXPECT_FALSE(spInner);
    ComPtr<IDispatch> spDenied;
    EXPECT_EQ(QueryFor<IWebBrowser2>(GetEmbedded(spDocument.Get())[1].Get())->get_Document(&spDenied), E_ACCESSDENIED);
}

TEST_F(Documents, OfAPageThatHasGoneAnswerErrorsAndLeaveTheNewOneAlone)
{
    Serve("/leaf.html", "<p>Leaf");
    Serve("/old.html", "<iframe src=/leaf.html></iframe>");
    Serve("/new.html", "<title>New</title><body style='zoom: 1'>");
    Load(L"/old.html");
    const auto spDocument = GetDocument();
    const auto spFrame = GetFrame(spDocument.Get(), 0L);
    const auto spFrameBrowser = QueryFor<IWebBrowser2>(GetEmbedded(spDocument.Get())[0].Get());
    ComPtr<IHTMLElement> spBody;
    ComPtr<IHTMLStyle> spStyle;
    ASSERT_EQ(spDocument->get_body(&spBody), S_OK);
    ASSERT_EQ(spBody->get_style(&spStyle), S_OK);
    Load(L"/new.html");
    EXPECT_EQ(QueryFor<IHTMLStyle3>(spStyle.Get())->put_zoom(_variant_t(L"300%")), RPC_E_DISCONNECTED);
    EXPECT_EQ(spDocument->put_title(_bstr_t(L"Overwritten")), RPC_E_DISCONNECTED);
    EXPECT_EQ(spDocument->get_body(&spBody), RPC_E_DISCONNECTED);
    ComPtr<IHTMLDocument2> spInner;
    EXPECT_EQ(spFrame->get_document(&spInner), RPC_E_DISCONNECTED);
    ComPtr<IHTMLWindow2> spRelative;
    EXPECT_EQ(spFrame->get_parent(&spRelative), RPC_E_DISCONNECTED);
    EXPECT_EQ(spFrame->get_top(&spRelative), RPC_E_DISCONNECTED);
    READYSTATE eState;
    EXPECT_EQ(spFrameBrowser->get_ReadyState(&eState), RPC_E_DISCONNECTED);
    EXPECT_EQ(Run(L"document.body.style.zoom + document.title"), "1New");
}

TEST_F(Documents, OfThePageIsGivenWhileTheNextOneIsAwaited)
{
    Serve("/page.html", "<title>Page</title>");
    Load(L"/page.html");
    HRESULT hr = E_FAIL;
    ComPtr<IDispatch> spDocument;
    GetRecorder().SetAction([&](DISPID dispid, const DISPPARAMS&) {
        if (dispid == DISPID_BEFORENAVIGATE2)
            hr = m_spBrowser->get_Document(&spDocument);
    });
    Load(L"/page.html");
    EXPECT_EQ(hr, S_OK);
    EXPECT_TRUE(spDocument);
}

TEST_F(Documents, OfAReloadedPageAreNewOnes)
{
    Serve("/page.html", "<title>Page</title>");
    Load(L"/page.html");
    const auto spDocument = GetDocument();
    LoadBy([this] { m_spBrowser->Refresh(); });
    _bstr_t title;
    EXPECT_EQ(spDocument->get_title(title.GetAddress()), RPC_E_DISCONNECTED);
    EXPECT_EQ(GetDocument()->get_title(title.GetAddress()), S_OK);
}

TEST_F(Documents, GiveElementsByPlaceAndName)
{
    Serve("/page.html", "<div id=first><p>One<p id=two>Two</div>");
    Load(L"/page.html");
    ComPtr<IHTMLElement> spBody;
    ASSERT_EQ(GetDocument()->get_body(&spBody), S_OK);
    ComPtr<IDispatch> spAll;
    ASSERT_EQ(spBody->get_all(&spAll), S_OK);
    const auto spElements = QueryFor<IHTMLElementCollection>(spAll.Get());
    long nLength = 0;
    EXPECT_EQ(spElements->get_length(&nLength), S_OK);
    EXPECT_EQ(nLength, 3);
    ComPtr<IDispatch> spItem;
    EXPECT_EQ(spElements->item(_variant_t(0L), _variant_t(0L), &spItem), S_OK);
    _bstr_t id;
    EXPECT_EQ(QueryFor<IHTMLElement>(spItem.Get())->get_id(id.GetAddress()), S_OK);
    EXPECT_STREQ(id, L"first");
    EXPECT_EQ(spElements->item(_variant_t(L"two"), _variant_t(), &spItem), S_OK);
    EXPECT_EQ(QueryFor<IHTMLElement>(spItem.Get())->get_innerText(id.GetAddress()), S_OK);
    EXPECT_STREQ(id, L"Two");
    EXPECT_EQ(spElements->item(_variant_t(9L), _variant_t(9L), &spItem), S_OK);
    EXPECT_FALSE(spItem);
}

TEST_F(Documents, TakeStyles)
{
    Serve("/page.html", "<body><p>Text");
    Load(L"/page.html");
    ComPtr<IHTMLElement> spBody;
    ASSERT_EQ(GetDocument()->get_body(&spBody), S_OK);
    ComPtr<IHTMLStyle> spStyle;
    ASSERT_EQ(QueryFor<IHTMLElement2>(spBody.Get())->get_runtimeStyle(&spStyle), S_OK);
    EXPECT_EQ(QueryFor<IHTMLStyle3>(spStyle.Get())->put_zoom(_variant_t(L"200%")), S_OK);
    EXPECT_EQ(Run(L"document.body.style.zoom"), "200%");
    _variant_t zoom;
    EXPECT_EQ(QueryFor<IHTMLStyle3>(spStyle.Get())->get_zoom(&zoom), S_OK);
    EXPECT_STREQ(V_BSTR(&zoom), L"200%");
}

TEST_F(Documents, LeadFromTheWindowToTheBrowser)
{
    Serve("/leaf.html", "<p>Leaf");
    Serve("/page.html", "<iframe name=left src=/leaf.html></iframe>");
    Load(L"/page.html");
    const auto spFrame = GetFrame(GetDocument().Get(), 0L);
    ComPtr<IWebBrowser2> spBrowser;
    ASSERT_EQ(QueryFor<IServiceProvider>(spFrame.Get())->QueryService(IID_IWebBrowserApp, IID_PPV_ARGS(&spBrowser)),
              S_OK);
    EXPECT_EQ(GetUrl(spBrowser.Get()), L"/leaf.html");
    ComPtr<IHTMLWindow2> spTop;
    ASSERT_EQ(spFrame->get_top(&spTop), S_OK);
    ComPtr<IHTMLWindow2> spTopAgain;
    ASSERT_EQ(GetDocument()->get_parentWindow(&spTopAgain), S_OK);
    EXPECT_TRUE(IsSameObject(spTop.Get(), spTopAgain.Get()));
    ASSERT_EQ(QueryFor<IServiceProvider>(spTop.Get())->QueryService(IID_IWebBrowserApp, IID_PPV_ARGS(&spBrowser)),
              S_OK);
    EXPECT_TRUE(IsSameObject(spBrowser.Get(), static_cast<IWebBrowser2*>(m_spBrowser.Get())));
    _bstr_t name;
    EXPECT_EQ(spFrame->get_name(name.GetAddress()), S_OK);
    EXPECT_STREQ(name, L"left");
}
