// The handler hands on all that a document asks, and answers for itself without a site.

#include "tests/unit/events/UIHandlerFixture.h"

#include <functional>

using Microsoft::WRL::ComPtr;

namespace
{
/// An argument that only passes through: an address that is never looked at.
template <class T>
T* Opaque(UINT_PTR nAddress)
{
    return reinterpret_cast<T*>(nAddress);
}

/// An operation of IDocHostUIHandler with arguments of its own.
struct COperation
{
    const char* pszName;
    std::function<HRESULT(IDocHostUIHandler&)> call;
    std::vector<UINT_PTR> arguments;
    HRESULT hrWithoutSite;
};

void PrintTo(const COperation& operation, std::ostream* pStream)
{
    *pStream << operation.pszName;
}

LPOLESTR s_pszOut = nullptr;
IDropTarget* s_pDropTarget = nullptr;
IDispatch* s_pExternal = nullptr;
IDataObject* s_pDataObject = nullptr;

UINT_PTR AddressOf(const void* pOut)
{
    return reinterpret_cast<UINT_PTR>(pOut);
}

const COperation operations[] = {
    {"ShowContextMenu",
     [](IDocHostUIHandler& ui) {
         return ui.ShowContextMenu(1, Opaque<POINT>(2), Opaque<IUnknown>(3), Opaque<IDispatch>(4));
     },
     {1, 2, 3, 4},
     S_FALSE},
    {"GetHostInfo", [](IDocHostUIHandler& ui) { return ui.GetHostInfo(Opaque<DOCHOSTUIINFO>(1)); }, {1}, S_OK},
    {"ShowUI",
     [](IDocHostUIHandler& ui) {
         return ui.ShowUI(1, Opaque<IOleInPlaceActiveObject>(2), Opaque<IOleCommandTarget>(3),
                          Opaque<IOleInPlaceFrame>(4), Opaque<IOleInPlaceUIWindow>(5));
     },
     {1, 2, 3, 4, 5},
     S_FALSE},
    {"HideUI", [](IDocHostUIHandler& ui) { return ui.HideUI(); }, {}, S_OK},
    {"UpdateUI", [](IDocHostUIHandler& ui) { return ui.UpdateUI(); }, {}, S_OK},
    {"EnableModeless", [](IDocHostUIHandler& ui) { return ui.EnableModeless(TRUE); }, {TRUE}, S_OK},
    {"OnDocWindowActivate", [](IDocHostUIHandler& ui) { return ui.OnDocWindowActivate(TRUE); }, {TRUE}, S_OK},
    {"OnFrameWindowActivate", [](IDocHostUIHandler& ui) { return ui.OnFrameWindowActivate(TRUE); }, {TRUE}, S_OK},
    {"ResizeBorder",
     [](IDocHostUIHandler& ui) { return ui.ResizeBorder(Opaque<RECT>(1), Opaque<IOleInPlaceUIWindow>(2), TRUE); },
     {1, 2, TRUE},
     S_OK},
    {"TranslateAccelerator",
     [](IDocHostUIHandler& ui) { return ui.TranslateAccelerator(Opaque<MSG>(1), Opaque<GUID>(2), 3); },
     {1, 2, 3},
     E_NOTIMPL},
    {"GetOptionKeyPath",
     [](IDocHostUIHandler& ui) { return ui.GetOptionKeyPath(&s_pszOut, 2); },
     {AddressOf(&s_pszOut), 2},
     E_FAIL},
    {"GetDropTarget",
     [](IDocHostUIHandler& ui) { return ui.GetDropTarget(Opaque<IDropTarget>(1), &s_pDropTarget); },
     {1, AddressOf(&s_pDropTarget)},
     S_OK},
    {"GetExternal",
     [](IDocHostUIHandler& ui) { return ui.GetExternal(&s_pExternal); },
     {AddressOf(&s_pExternal)},
     S_FALSE},
    {"TranslateUrl",
     [](IDocHostUIHandler& ui) { return ui.TranslateUrl(1, Opaque<wchar_t>(2), &s_pszOut); },
     {1, 2, AddressOf(&s_pszOut)},
     S_FALSE},
    {"FilterDataObject",
     [](IDocHostUIHandler& ui) { return ui.FilterDataObject(Opaque<IDataObject>(1), &s_pDataObject); },
     {1, AddressOf(&s_pDataObject)},
     S_FALSE},
};

class UIHandlerOperation : public CUIHandlerTest, public testing::WithParamInterface<COperation>
{
};

TEST_P(UIHandlerOperation, IsHandedOnUnchangedWithItsResult)
{
    SetSite();
    const std::string strName = std::string("ClientSite.") + GetParam().pszName;
    for (const HRESULT hr : {S_OK, S_FALSE, E_FAIL, E_NOTIMPL})
    {
        CFakeCalls::Get().ClearLog();
        m_spSite->m_arguments.clear();
        m_spSite->m_hrAnswer = hr;
        EXPECT_EQ(hr, GetParam().call(*m_spUI.Get()));
        EXPECT_EQ(std::vector {strName}, CFakeCalls::Get().GetNames());
        EXPECT_EQ(GetParam().arguments, m_spSite->m_arguments);
    }
}

TEST_P(UIHandlerOperation, AnswersForItselfWithoutASite)
{
    EXPECT_EQ(GetParam().hrWithoutSite, GetParam().call(*m_spUI.Get()));
}

INSTANTIATE_TEST_SUITE_P(All, UIHandlerOperation, testing::ValuesIn(operations),
                         [](const auto& info) { return info.param.pszName; });

using UIHandler = CUIHandlerTest;

TEST_F(UIHandler, ClearsWhatItIsToGiveWithoutASite)
{
    s_pszOut = Opaque<wchar_t>(1);
    m_spUI->GetOptionKeyPath(&s_pszOut, 0);
    EXPECT_EQ(nullptr, s_pszOut);
    s_pExternal = Opaque<IDispatch>(1);
    m_spUI->GetExternal(&s_pExternal);
    EXPECT_EQ(nullptr, s_pExternal);
    EXPECT_EQ(E_FAIL, m_spUI->GetOptionKeyPath(nullptr, 0));
    EXPECT_EQ(S_FALSE, m_spUI->GetExternal(nullptr));
}

TEST_F(UIHandler, HandsOnTheStatusOfCommands)
{
    EXPECT_EQ(E_FAIL, m_spTarget->QueryStatus(Opaque<GUID>(1), 2, Opaque<OLECMD>(3), Opaque<OLECMDTEXT>(4)));
    SetSite();
    m_spSite->m_hrAnswer = OLECMDERR_E_UNKNOWNGROUP;
    EXPECT_EQ(OLECMDERR_E_UNKNOWNGROUP,
              m_spTarget->QueryStatus(Opaque<GUID>(1), 2, Opaque<OLECMD>(3), Opaque<OLECMDTEXT>(4)));
    EXPECT_EQ((std::vector<UINT_PTR> {1, 2, 3, 4}), m_spSite->m_arguments);
}

TEST_F(UIHandler, HasTheInterfacesOfItsTable)
{
    for (const IID& iid :
         {IID_IUnknown, IID_ITrelvixMSHTMLUIHandler, IID_IDispatch, IID_IDocHostUIHandler, IID_IOleCommandTarget})
    {
        ComPtr<IUnknown> spInterface;
        EXPECT_EQ(S_OK, m_spHandler->QueryInterface(iid, &spInterface));
    }
    for (const IID& iid : {IID_IOleClientSite, IID_IServiceProvider, IID_IHTMLDocument2})
    {
        ComPtr<IUnknown> spInterface;
        EXPECT_EQ(E_NOINTERFACE, m_spHandler->QueryInterface(iid, &spInterface));
        EXPECT_EQ(nullptr, spInterface.Get());
    }
}

TEST_F(UIHandler, RefusesNoSite)
{
    EXPECT_EQ(E_FAIL, m_spHandler->SetOleClientSite(nullptr));
}

TEST_F(UIHandler, HasNoDefaultFromASiteThatIsNoUIHandler)
{
    m_spSite->Lack(IID_IDocHostUIHandler);
    EXPECT_EQ(E_NOINTERFACE, m_spHandler->SetOleClientSite(m_spSite.Get()));
    EXPECT_EQ(S_FALSE, m_spUI->GetExternal(&s_pExternal));
    EXPECT_EQ(E_FAIL, m_spTarget->QueryStatus(nullptr, 0, nullptr, nullptr));
}

TEST_F(UIHandler, HasNoDefaultFromASiteThatIsNoCommandTarget)
{
    m_spSite->Lack(IID_IOleCommandTarget);
    EXPECT_EQ(E_NOINTERFACE, m_spHandler->SetOleClientSite(m_spSite.Get()));
    EXPECT_EQ(S_FALSE, m_spUI->GetExternal(&s_pExternal));
    EXPECT_EQ(E_FAIL, m_spTarget->QueryStatus(nullptr, 0, nullptr, nullptr));
    EXPECT_EQ(1u, m_spSite->GetReferences());
}

TEST_F(UIHandler, LetsTheSiteGoWithTheDocument)
{
    SetSite();
    EXPECT_EQ(3u, m_spSite->GetReferences());
    m_spUI.Reset();
    m_spTarget.Reset();
    m_spHandler.Reset();
    EXPECT_EQ(1u, m_spSite->GetReferences());
    EXPECT_EQ(0, m_module.GetObjectCount());
}

TEST_F(UIHandler, TakesItsWindowInTheDisguiseOfAnObjectOnly)
{
    VARIANT window = {};
    V_VT(&window) = VT_I8;
    V_I8(&window) = 1;
    EXPECT_EQ(E_INVALIDARG, m_spHandler->SetToolbarWindow(window));
    V_VT(&window) = VT_UNKNOWN;
    V_UNKNOWN(&window) = nullptr;
    EXPECT_EQ(S_OK, m_spHandler->SetToolbarWindow(window));
    EXPECT_EQ(S_OK, m_spHandler->ClearToolbarWindow());
}

TEST_F(UIHandler, CanBeDrivenByName)
{
    LPOLESTR names[] = {const_cast<LPOLESTR>(L"SetOleClientSite"), const_cast<LPOLESTR>(L"SetToolbarWindow"),
                        const_cast<LPOLESTR>(L"ClearToolbarWindow")};
    for (DISPID nExpected = 1; nExpected <= 3; ++nExpected)
    {
        DISPID dispid = 0;
        EXPECT_EQ(S_OK, m_spHandler->GetIDsOfNames(IID_NULL, &names[nExpected - 1], 1, LOCALE_NEUTRAL, &dispid));
        EXPECT_EQ(nExpected, dispid);
    }
}
} // namespace
