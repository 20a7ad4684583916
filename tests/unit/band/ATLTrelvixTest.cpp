#include "band/ATLTrelvix.h"

#include "framework/Wnd.h"
#include "resources/Trelvix.h"
#include "tests/fakes/BrowserEvent.h"
#include "tests/unit/band/BandFixture.h"

#include <gmock/gmock.h>

using Microsoft::WRL::ComPtr;
using testing::ElementsAre;

namespace
{
class Band : public CBandTest
{
protected:
    static bool IsShown(HWND hWnd) { return (GetWindowLongPtrW(hWnd, GWL_STYLE) & WS_VISIBLE) != 0; }

    HRESULT SendEvent(CBrowserEvent event) { return event.SendTo(*AskBandFor<IDispatch>().Get()); }
};

/// An outer object for an aggregate, on the stack of a test.
class COuter : public IUnknown
{
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override
    {
        if (!IsEqualIID(iid, IID_IUnknown))
            return m_spInner->QueryInterface(iid, ppv);
        *ppv = this;
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }

    ComPtr<IUnknown> m_spInner;
};
} // namespace

TEST_F(Band, AnswersTheInterfacesOfItsTableInOrder)
{
    std::vector<IID> table;
    for (const CComInterfaceEntry* pEntry = CATLTrelvix::GetEntries(); pEntry->piid != nullptr; ++pEntry)
        table.push_back(*pEntry->piid);
    EXPECT_THAT(table, ElementsAre(__uuidof(IATLTrelvix), IID_IOleWindow, IID_IDockingWindow, IID_IObjectWithSite,
                                   IID_IDeskBand, IID_IPersist, IID_IInputObject, IID_IPersistStream, IID_IDispatch));
    for (const IID& iid : table)
    {
        ComPtr<IUnknown> spInterface;
        EXPECT_EQ(S_OK, m_spBand->QueryInterface(iid, reinterpret_cast<void**>(spInterface.GetAddressOf())));
    }
}

TEST_F(Band, HasItsFirstInterfaceAsItsIdentity)
{
    EXPECT_EQ(static_cast<IUnknown*>(AskBandFor<IATLTrelvix>().Get()), AskBandFor<IUnknown>().Get());
}

TEST_F(Band, IsNoCommandTarget)
{
    void* pv = &pv;
    EXPECT_EQ(E_NOINTERFACE, m_spBand->QueryInterface(IID_IOleCommandTarget, &pv));
    EXPECT_EQ(nullptr, pv);
    EXPECT_EQ(E_POINTER, m_spBand->QueryInterface(IID_IUnknown, nullptr));
}

TEST_F(Band, CanBeAggregated)
{
    COuter outer;
    ASSERT_EQ(S_OK, CoCreateInstance(CLSID_ATLTrelvix, &outer, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&outer.m_spInner)));
    ComPtr<IDeskBand> spBand;
    ASSERT_EQ(S_OK, outer.QueryInterface(IID_PPV_ARGS(&spBand)));
    ComPtr<IUnknown> spIdentity;
    ASSERT_EQ(S_OK, spBand.As(&spIdentity));
    EXPECT_EQ(&outer, spIdentity.Get());
}

TEST_F(Band, HasNeitherWindowNorSiteAtFirst)
{
    EXPECT_EQ(nullptr, GetBandWindow());
    void* pv = &pv;
    EXPECT_EQ(E_FAIL, AskBandFor<IObjectWithSite>()->GetSite(IID_IUnknown, &pv));
}

TEST_F(Band, GivesItsWindowSomewhere)
{
    EXPECT_EQ(E_INVALIDARG, m_spBand->GetWindow(nullptr));
    Connect();
    EXPECT_TRUE(IsWindow(GetBandWindow()));
}

TEST_F(Band, TakesContextSensitiveHelpWithoutEffect)
{
    EXPECT_EQ(S_OK, m_spBand->ContextSensitiveHelp(TRUE));
    EXPECT_EQ(S_OK, m_spBand->ContextSensitiveHelp(FALSE));
}

TEST_F(Band, ShowsAndHidesItsWindow)
{
    Connect();
    EXPECT_EQ(S_OK, m_spBand->ShowDW(FALSE));
    EXPECT_FALSE(IsShown(GetBandWindow()));
    EXPECT_EQ(S_OK, m_spBand->ShowDW(TRUE));
    EXPECT_TRUE(IsShown(GetBandWindow()));
}

TEST_F(Band, IsShownBeforeItHasAWindow)
{
    EXPECT_EQ(S_OK, m_spBand->ShowDW(TRUE));
}

TEST_F(Band, DestroysItsWindowWhenItIsClosed)
{
    Connect();
    const HWND hWnd = GetBandWindow();
    EXPECT_EQ(S_OK, m_spBand->CloseDW(0));
    EXPECT_FALSE(IsWindow(hWnd));
    EXPECT_EQ(nullptr, GetBandWindow());
    EXPECT_EQ(0u, CWnd::GetAttachedCount());
    EXPECT_EQ(S_OK, m_spBand->CloseDW(0)) << "a second time";
}

TEST_F(Band, IsClosedBeforeItHasAWindow)
{
    EXPECT_EQ(S_OK, m_spBand->CloseDW(0));
}

TEST_F(Band, KeepsItsWindowObjectWhenItsWindowWentFirst)
{
    Connect();
    DestroyWindow(GetBandWindow());
    EXPECT_EQ(S_OK, m_spBand->CloseDW(0));
    EXPECT_EQ(S_FALSE, AskBandFor<IInputObject>()->HasFocusIO());
    EXPECT_EQ(S_OK, AskBandFor<IInputObject>()->UIActivateIO(TRUE, nullptr)) << "the object still answers";
    EXPECT_EQ(S_OK, SendEvent(CBrowserEvent::DownloadBegin()));
}

TEST_F(Band, KeepsItsEventsWhenItIsClosed)
{
    Connect();
    m_spBand->CloseDW(0);
    EXPECT_EQ(1u, m_spBrowser->GetConnectionPoint().GetSinkCount());
    CBrowserEvent event = CBrowserEvent::DownloadBegin();
    m_spBrowser->Fire(event);
}

TEST_F(Band, LeavesTheBorderToTheBrowser)
{
    const RECT border = {};
    EXPECT_EQ(E_NOTIMPL, m_spBand->ResizeBorderDW(&border, nullptr, FALSE));
    EXPECT_EQ(E_NOTIMPL, m_spBand->ResizeBorderDW(nullptr, nullptr, TRUE));
}

TEST_F(Band, WithoutAWindowObjectHasNoPartInTheFocus)
{
    const auto spInput = AskBandFor<IInputObject>();
    MSG msg = {};
    EXPECT_EQ(S_FALSE, spInput->HasFocusIO());
    EXPECT_EQ(S_FALSE, spInput->UIActivateIO(TRUE, &msg));
    EXPECT_EQ(S_FALSE, spInput->TranslateAcceleratorIO(&msg));
    Connect();
    m_spBand->CloseDW(0);
    EXPECT_EQ(S_FALSE, spInput->HasFocusIO());
    EXPECT_EQ(S_FALSE, spInput->UIActivateIO(TRUE, &msg));
    EXPECT_EQ(S_FALSE, spInput->UIActivateIO(FALSE, &msg));
    EXPECT_EQ(S_FALSE, spInput->TranslateAcceleratorIO(&msg));
}

TEST_F(Band, TakesItsFocusCallsWithoutAMessage)
{
    Connect();
    const auto spInput = AskBandFor<IInputObject>();
    EXPECT_EQ(S_OK, spInput->UIActivateIO(FALSE, nullptr));
    EXPECT_EQ(S_FALSE, spInput->TranslateAcceleratorIO(nullptr));
}

TEST_F(Band, KeepsNothingInItsStream)
{
    const auto spStream = AskBandFor<IPersistStream>();
    CLSID clsid = {};
    EXPECT_EQ(S_OK, spStream->GetClassID(&clsid));
    EXPECT_EQ(CLSID_ATLTrelvix, clsid);
    EXPECT_EQ(E_POINTER, spStream->GetClassID(nullptr));
    EXPECT_EQ(S_FALSE, spStream->IsDirty());
    EXPECT_EQ(S_OK, spStream->Load(nullptr));
    EXPECT_EQ(S_OK, spStream->Save(nullptr, TRUE));
    ULARGE_INTEGER size = {};
    size.QuadPart = 5;
    EXPECT_EQ(E_NOTIMPL, spStream->GetSizeMax(&size));
    EXPECT_EQ(0u, size.QuadPart);
    EXPECT_EQ(E_NOTIMPL, spStream->GetSizeMax(nullptr));
}

TEST_F(Band, TellsItsTypeByTheLibrary)
{
    const auto spDispatch = AskBandFor<IDispatch>();
    UINT nCount = 0;
    EXPECT_EQ(S_OK, spDispatch->GetTypeInfoCount(&nCount));
    EXPECT_EQ(1u, nCount);
    EXPECT_EQ(E_POINTER, spDispatch->GetTypeInfoCount(nullptr));

    ComPtr<ITypeInfo> spTypeInfo;
    ASSERT_EQ(S_OK, spDispatch->GetTypeInfo(0, LOCALE_NEUTRAL, &spTypeInfo));
    TYPEATTR* pAttributes = nullptr;
    ASSERT_EQ(S_OK, spTypeInfo->GetTypeAttr(&pAttributes));
    EXPECT_EQ(__uuidof(IATLTrelvix), pAttributes->guid);
    EXPECT_NE(0, pAttributes->wTypeFlags & TYPEFLAG_FDUAL);
    spTypeInfo->ReleaseTypeAttr(pAttributes);
}

TEST_F(Band, RefusesToTellAnotherType)
{
    const auto spDispatch = AskBandFor<IDispatch>();
    ComPtr<ITypeInfo> spTypeInfo;
    EXPECT_EQ(DISP_E_BADINDEX, spDispatch->GetTypeInfo(1, LOCALE_NEUTRAL, &spTypeInfo));
    EXPECT_EQ(nullptr, spTypeInfo);
    EXPECT_EQ(E_POINTER, spDispatch->GetTypeInfo(0, LOCALE_NEUTRAL, nullptr));
}

TEST_F(Band, KnowsNoNames)
{
    wchar_t szName[] = L"Anything";
    LPOLESTR pszName = szName;
    DISPID dispid = 0;
    EXPECT_EQ(DISP_E_UNKNOWNNAME,
              AskBandFor<IDispatch>()->GetIDsOfNames(IID_NULL, &pszName, 1, LOCALE_NEUTRAL, &dispid));
    EXPECT_EQ(DISPID_UNKNOWN, dispid);
}

TEST_F(Band, RefusesToLookForNamesNowhere)
{
    wchar_t szName[] = L"Anything";
    LPOLESTR pszName = szName;
    DISPID dispid = 0;
    const auto spDispatch = AskBandFor<IDispatch>();
    EXPECT_EQ(E_POINTER, spDispatch->GetIDsOfNames(IID_NULL, nullptr, 1, LOCALE_NEUTRAL, &dispid));
    EXPECT_EQ(E_POINTER, spDispatch->GetIDsOfNames(IID_NULL, &pszName, 1, LOCALE_NEUTRAL, nullptr));
}

TEST_F(Band, KeepsTheBrowserUntilItsEnd)
{
    const ULONG nBefore = m_spBrowser->GetReferences();
    Connect();
    m_spBand->CloseDW(0);
    GiveSite(nullptr);
    EXPECT_EQ(nBefore + 1, m_spBrowser->GetReferences());
    m_spBand = CreateBand();
    EXPECT_EQ(nBefore, m_spBrowser->GetReferences());
}

TEST_F(Band, EndsWithoutBeingTakenDown)
{
    Connect();
    const HWND hWnd = GetBandWindow();
    CBrowserEvent event = CBrowserEvent::OnQuit();
    m_spBrowser->Fire(event);
    m_spBand = CreateBand();
    EXPECT_FALSE(IsWindow(hWnd));
}
