// An item opens a modal loop or lets the browser re-enter while it is called, and in it a layout is loaded or the band
// ends: the walk that called it goes on safely. Freed memory is poisoned here.

#include "resources/Trelvix.h"
#include "tests/fakes/FakeBandSite.h"
#include "tests/fakes/FakeClientSite.h"
#include "tests/fakes/MessageBoxAnswerer.h"
#include "tests/unit/events/ToolbarOnPageFixture.h"

#include <docobj.h>
#include <shlobj.h>

#include <map>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr wchar_t PageUrl[] = L"http://page.test/";
constexpr wchar_t FrameUrl[] = L"http://page.test/frame";
constexpr wchar_t LongLayout[] = L"0001000300010004000100010001000500010001000100080001000100010009";
constexpr wchar_t ShortLayout[] = L"00010001";

void StoreLayout(const wchar_t* pszLayout)
{
    CSettingsStore(SettingsRoot).WriteString(pszLayout, L"Toolbar", L"Layout");
}

/// A band with its window, as a browser makes them, with fake items.
class Walks : public testing::Test
{
protected:
    Walks()
    {
        CFakeButtons::Get().Reset();
        StoreLayout(LongLayout);
        CoCreateInstance(CLSID_ATLTrelvix, nullptr, CLSCTX_ALL, IID_PPV_ARGS(&m_spBand));
        m_spBand.As(&m_spDispatch);
        const auto spSite = MakeFake<CFakeBandSite>(m_parent, &m_page.GetTop());
        ComPtr<IObjectWithSite> spObject;
        m_spBand.As(&spObject);
        EXPECT_EQ(S_OK, spObject->SetSite(static_cast<IInputObjectSite*>(spSite.Get())));
        m_spBand->GetWindow(&m_hWnd);
        m_pWindow = static_cast<CTrelvixWindow*>(CWnd::FromHandlePermanent(m_hWnd));
        for (int nIndex = 0; nIndex < ButtonCount; ++nIndex)
        {
            CFakeButtons::Get()[nIndex].bFocusable = true;
            CFakeButtons::Get()[nIndex].bHasControl = true;
            CFakeButtons::Get()[nIndex].bTakesFocus = false;
        }
        m_pWindow->LoadLayout();
        CFakePage::GetDocument(m_page.GetTop()).m_spClientSite = MakeFake<CFakeClientSite>();
        CFakeButtons::Get().TakeCalls();
    }

    ~Walks() override
    {
        CFakeButtons::Get().m_onCall = nullptr;
        Disconnect();
        CFakePage::GetDocument(m_page.GetTop()).m_spUIHandler.Reset();
        m_spDispatch.Reset();
        m_spBand.Reset();
        EXPECT_EQ(0, CFakeButtons::Get().m_nLiving);
        EXPECT_EQ(0, m_module.GetObjectCount());
        CFakeButtons::Get().Reset();
        StoreLayout(L"");
    }

    /// What a browser does at the end of a tab.
    void Disconnect()
    {
        ComPtr<IObjectWithSite> spObject;
        m_spBand.As(&spObject);
        m_spBand->CloseDW(0);
        spObject->SetSite(nullptr);
    }

    void Send(CBrowserEvent event) { event.SendTo(*m_spDispatch.Get()); }
    void Navigate(IDispatch* pFrame) { Send(CBrowserEvent::BeforeNavigate2(pFrame, PageUrl)); }
    void Complete(IDispatch* pFrame) { Send(CBrowserEvent::DocumentComplete(pFrame, PageUrl)); }
    void Refresh(CFakeWebBrowser2& frame)
    {
        CFakePage::Refresh(frame, [this](CBrowserEvent& event) { event.SendTo(*m_spDispatch.Get()); });
    }

    /// Reports a script error as the document does.
    void ReportScriptError()
    {
        ComPtr<IOleCommandTarget> spTarget;
        m_pWindow->InstallUIHandler();
        CFakePage::GetDocument(m_page.GetTop()).m_spUIHandler.As(&spTarget);
        _variant_t vDocument(CFakePage::GetDocument(m_page.GetTop()).AsObject());
        spTarget->Exec(nullptr, OLECMDID_SHOWSCRIPTERROR, 0, &vDocument, nullptr);
    }

    void SendToWindow(UINT nMessage, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        SendMessageW(m_hWnd, nMessage, wParam, lParam);
    }

    CProductModule m_module;
    CFakeSettingsBrokerServer m_broker;
    CTestWindow m_parent;
    CFakePage m_page;
    CFakeWebBrowser2& m_frame = m_page.AddFrame(m_page.GetTop(), FrameUrl);
    ComPtr<IDeskBand> m_spBand;
    ComPtr<IDispatch> m_spDispatch;
    HWND m_hWnd = nullptr;
    CTrelvixWindow* m_pWindow = nullptr; ///< owned by the band
};

class DisturbedWalks : public Walks, public testing::WithParamInterface<std::tuple<const char*, const char*>>
{
protected:
    /// Makes the window walk its items for the call.
    void Walk(const std::string& strCall)
    {
        static const std::map<std::string, void (DisturbedWalks::*)()> walks = {
            {"OnPageLoadBegin", &DisturbedWalks::LoadPage},
            {"OnPageLoadComplete", &DisturbedWalks::LoadPage},
            {"OnFrameLoadBegin", &DisturbedWalks::LoadFrame},
            {"OnFrameLoadComplete", &DisturbedWalks::LoadFrame},
            {"OnPageRefreshBegin", &DisturbedWalks::RefreshPage},
            {"OnPageRefreshComplete", &DisturbedWalks::RefreshPage},
            {"OnFrameRefreshBegin", &DisturbedWalks::RefreshFrame},
            {"OnFrameRefreshComplete", &DisturbedWalks::RefreshFrame},
            {"OnBrowserEvent", &DisturbedWalks::SendEvent},
            {"OnScriptError", &DisturbedWalks::ReportError},
            {"OnCommand", &DisturbedWalks::Click},
            {"OnDropDown", &DisturbedWalks::DropDown},
            {"Repaint", &DisturbedWalks::Resize},
            {"TakeFocus", &DisturbedWalks::Activate},
        };
        (this->*walks.at(strCall))();
    }

    void LoadPage()
    {
        Navigate(m_page.GetTop().AsFrame());
        Complete(m_page.GetTop().AsFrame());
    }
    void LoadFrame()
    {
        Navigate(m_frame.AsFrame());
        Complete(m_frame.AsFrame());
    }
    void RefreshPage() { Refresh(m_page.GetTop()); }
    void RefreshFrame() { Refresh(m_frame); }
    void SendEvent() { Send(CBrowserEvent::NavigateComplete2(m_frame.AsFrame(), FrameUrl)); }
    void ReportError() { ReportScriptError(); }
    void Click()
    {
        SendMessageW(GetWindow(m_hWnd, GW_CHILD), WM_COMMAND, FirstButtonCommand + EmailScreenShotPageIndex,
                     reinterpret_cast<LPARAM>(m_hWnd));
    }
    void DropDown()
    {
        NMTOOLBARW notification = {};
        notification.hdr = {m_hWnd, ToolbarControlId, TBN_DROPDOWN};
        notification.iItem = FirstButtonCommand + EmailScreenShotPageIndex;
        SendMessageW(GetWindow(m_hWnd, GW_CHILD), WM_NOTIFY, ToolbarControlId, reinterpret_cast<LPARAM>(&notification));
    }
    void Resize() { SendToWindow(WM_SIZE); }
    void Activate()
    {
        ComPtr<IInputObject> spInput;
        m_spBand.As(&spInput);
        spInput->UIActivateIO(TRUE, nullptr);
        SendToWindow(FocusSearchBoxMessage);
    }

    void Disturb(const std::string& strHow)
    {
        static const std::map<std::string, void (DisturbedWalks::*)()> disturbances = {
            {"RunsAModalLoop", &DisturbedWalks::RunModalLoop},
            {"LetsTheBrowserReEnter", &DisturbedWalks::ReEnter},
        };
        (this->*disturbances.at(strHow))();
    }

    void RunModalLoop()
    {
        const CMessageBoxAnswerer answerer(IDOK, [this] { m_pWindow->LoadLayout(); });
        MessageBoxW(nullptr, L"", L"", MB_OK);
    }
    void ReEnter()
    {
        LoadPage();
        RefreshFrame();
        m_pWindow->LoadLayout();
    }
};

TEST_P(DisturbedWalks, GoOnSafely)
{
    const auto& [pszCall, pszHow] = GetParam();
    int nDisturbed = 0;
    CFakeButtons::Get().m_onCall = [&, strCall = std::string(pszCall)](const std::string& strTold) {
        // Once, or a second item would be disturbed inside the first.
        if (strTold.find(" " + strCall) == std::string::npos || nDisturbed++ != 0)
            return;
        Disturb(pszHow);
    };
    Walk(pszCall);
    EXPECT_GE(nDisturbed, 1) << "an item was called";
}

INSTANTIATE_TEST_SUITE_P(
    All, DisturbedWalks,
    testing::Combine(testing::Values("OnPageLoadBegin", "OnPageLoadComplete", "OnFrameLoadBegin", "OnFrameLoadComplete",
                                     "OnPageRefreshBegin", "OnPageRefreshComplete", "OnFrameRefreshBegin",
                                     "OnFrameRefreshComplete", "OnBrowserEvent", "OnScriptError", "OnCommand",
                                     "OnDropDown", "Repaint", "TakeFocus"),
                     testing::Values("RunsAModalLoop", "LetsTheBrowserReEnter")),
    [](const auto& info) { return std::string(std::get<0>(info.param)) + std::get<1>(info.param); });

TEST_F(Walks, ReachTheNewItemsAfterALayoutWasLoaded)
{
    CFakeButtons::Get().m_onCall = [&](const std::string& strTold) {
        if (strTold == "3 OnBrowserEvent 104")
            m_pWindow->LoadLayout();
    };
    Send(CBrowserEvent::DownloadComplete());
    const auto calls = CFakeButtons::Get().TakeCalls();
    for (const char* pszCall : {"0 OnBrowserEvent 104", "3 OnBrowserEvent 104", "4 OnBrowserEvent 104",
                                "5 OnBrowserEvent 104", "8 OnBrowserEvent 104", "9 OnBrowserEvent 104"})
        EXPECT_EQ(1, std::count(calls.begin(), calls.end(), pszCall)) << pszCall;
}

TEST_F(Walks, EndWhereAShorterLayoutEnds)
{
    CFakeButtons::Get().m_onCall = [&](const std::string& strTold) {
        if (strTold != "3 OnBrowserEvent 104")
            return;
        StoreLayout(ShortLayout);
        m_pWindow->LoadLayout();
    };
    Send(CBrowserEvent::DownloadComplete());
    const auto calls = CFakeButtons::Get().TakeCalls();
    EXPECT_EQ(0, std::count(calls.begin(), calls.end(), "4 OnBrowserEvent 104"));
}

TEST_F(Walks, InstallNoHandlerForABandThatEndsMeanwhile)
{
    const ComPtr<CFakeClientSite> spSite = MakeFake<CFakeClientSite>();
    CFakeDocument& document = CFakePage::GetDocument(m_page.GetTop());
    document.m_spClientSite = spSite;
    CFakeCalls::Get().ActIn("WebBrowser.get_Document", [this] { Disconnect(); });
    Send(CBrowserEvent::NavigateComplete2(m_page.GetTop().AsFrame(), PageUrl));
    EXPECT_EQ(nullptr, document.m_spUIHandler.Get());
}

TEST_F(Walks, EndWithTheBandInsideABoxOfAPagesCommand)
{
    const CMessageBoxAnswerer answerer(IDOK, [this] { Disconnect(); });
    Send(
        CBrowserEvent::BeforeNavigate2(m_page.GetTop().AsFrame(), L"trelvix:searchweb?name=n&url=http://search.test/"));
    EXPECT_EQ(1u, answerer.GetShown().size());
}
} // namespace
