// The one command that the handler takes for itself.

#include "framework/ComQuery.h"
#include "tests/unit/events/ToolbarOnPageFixture.h"
#include "tests/unit/events/UIHandlerFixture.h"

#include <comutil.h>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr GUID AnyGroup = {0x5a1e2b3c, 0x1111, 0x2222, {1, 2, 3, 4, 5, 6, 7, 8}};

/// The default's answer, which no other code gives.
constexpr HRESULT DefaultAnswer = OLECMDERR_E_NOHELP;

class ScriptError : public CToolbarOnPageTest
{
protected:
    ScriptError()
    {
        CoCreateInstance(CLSID_TrelvixMSHTMLUIHandler, nullptr, CLSCTX_ALL, IID_PPV_ARGS(&m_spHandler));
        m_spHandler.As(&m_spTarget);
        EXPECT_EQ(S_OK, m_spHandler->SetOleClientSite(m_spSite.Get()));
        SetWindow();
        m_spSite->m_hrAnswer = DefaultAnswer;
    }

    void SetWindow()
    {
        VARIANT window = {};
        V_VT(&window) = VT_UNKNOWN;
        V_UNKNOWN(&window) = reinterpret_cast<IUnknown*>(m_pWindow.get());
        EXPECT_EQ(S_OK, m_spHandler->SetToolbarWindow(window));
    }

    HRESULT Exec(DWORD nCmdID, VARIANT* pvaIn)
    {
        CFakeCalls::Get().ClearLog();
        return m_spTarget->Exec(&AnyGroup, nCmdID, OLECMDEXECOPT_DODEFAULT, pvaIn, &m_vAnswer);
    }

    HRESULT ExecScriptError() { return Exec(OLECMDID_SHOWSCRIPTERROR, &m_vDocument); }

    static bool IsDefaultAsked() { return CFakeCalls::Get().CountOf("ClientSite.Exec") == 1; }

    static UINT_PTR ToNumber(const void* pArgument) { return reinterpret_cast<UINT_PTR>(pArgument); }

    ComPtr<CFakeClientSite> m_spSite = MakeFake<CFakeClientSite>();
    ComPtr<ITrelvixMSHTMLUIHandler> m_spHandler;
    ComPtr<IOleCommandTarget> m_spTarget;
    _variant_t m_vDocument {static_cast<IUnknown*>(CFakePage::GetDocument(GetTop()).AsObject())};
    _variant_t m_vAnswer;
};

TEST_F(ScriptError, IsOfferedToEachVisibleItemInTheOrderOfTheTable)
{
    EXPECT_EQ(DefaultAnswer, ExecScriptError());
    std::vector<std::string> expected;
    for (int nIndex = 0; nIndex < ButtonCount; ++nIndex)
        if (m_pWindow->GetVisibleButton(nIndex) != nullptr)
            expected.push_back(std::to_string(nIndex) + " OnScriptError");
    EXPECT_EQ(expected, CFakeButtons::Get().TakeCalls());
}

TEST_F(ScriptError, IsNotOfferedToHiddenItems)
{
    CSettingsStore(SettingsRoot).WriteString(L"0001000900010003", L"Toolbar", L"Layout");
    m_pWindow->LoadLayout();
    CFakeButtons::Get().TakeCalls();
    EXPECT_EQ(DefaultAnswer, ExecScriptError());
    EXPECT_THAT(CFakeButtons::Get().TakeCalls(),
                testing::ElementsAre("0 OnScriptError", "3 OnScriptError", "9 OnScriptError"));
    CSettingsStore(SettingsRoot).WriteString(L"", L"Toolbar", L"Layout");
}

TEST_F(ScriptError, GoesToTheDefaultWithAllArgumentsWhenNoItemTakesIt)
{
    EXPECT_EQ(DefaultAnswer, ExecScriptError());
    EXPECT_EQ((std::vector<UINT_PTR> {ToNumber(&AnyGroup), OLECMDID_SHOWSCRIPTERROR, OLECMDEXECOPT_DODEFAULT,
                                      ToNumber(&m_vDocument), ToNumber(&m_vAnswer)}),
              m_spSite->m_arguments);
    EXPECT_EQ(VT_EMPTY, V_VT(&m_vAnswer));
}

class HandledScriptError : public ScriptError, public testing::WithParamInterface<bool>
{
};

TEST_P(HandledScriptError, AnswersWhetherTheScriptsGoOn)
{
    CFakeButtons::Get()[ScriptErrorAlertIndex].bTakesScriptErrors = true;
    CFakeButtons::Get()[ScriptErrorAlertIndex].bContinuesScripts = GetParam();
    EXPECT_EQ(S_OK, ExecScriptError());
    EXPECT_EQ(VT_BOOL, V_VT(&m_vAnswer));
    EXPECT_EQ(GetParam() ? VARIANT_TRUE : VARIANT_FALSE, V_BOOL(&m_vAnswer));
    EXPECT_FALSE(IsDefaultAsked());
}

TEST_P(HandledScriptError, NeedsNoPlaceForTheAnswer)
{
    CFakeButtons::Get()[ScriptErrorAlertIndex].bTakesScriptErrors = true;
    CFakeButtons::Get()[ScriptErrorAlertIndex].bContinuesScripts = GetParam();
    EXPECT_EQ(S_OK, m_spTarget->Exec(nullptr, OLECMDID_SHOWSCRIPTERROR, 0, &m_vDocument, nullptr));
}

INSTANTIATE_TEST_SUITE_P(ScriptError, HandledScriptError, testing::Bool());

TEST_F(ScriptError, IsTakenWhateverTheCommandGroup)
{
    CFakeButtons::Get()[ScriptErrorAlertIndex].bTakesScriptErrors = true;
    for (const GUID* pGroup : {static_cast<const GUID*>(nullptr), &AnyGroup, &IID_IUnknown})
        EXPECT_EQ(S_OK, m_spTarget->Exec(pGroup, OLECMDID_SHOWSCRIPTERROR, 0, &m_vDocument, &m_vAnswer));
}

TEST_F(ScriptError, IsNoOtherCommand)
{
    CFakeButtons::Get()[ScriptErrorAlertIndex].bTakesScriptErrors = true;
    for (const DWORD nCmdID : {0, 1, 39, 41, 40 + 0x10000, -1})
    {
        EXPECT_EQ(DefaultAnswer, Exec(nCmdID, &m_vDocument)) << nCmdID;
        EXPECT_TRUE(IsDefaultAsked());
    }
    EXPECT_TRUE(CFakeButtons::Get().TakeCalls().empty());
}

TEST_F(ScriptError, GoesToTheDefaultWithAnArgumentOfAnotherType)
{
    CFakeButtons::Get()[ScriptErrorAlertIndex].bTakesScriptErrors = true;
    EXPECT_EQ(DefaultAnswer, Exec(OLECMDID_SHOWSCRIPTERROR, nullptr));
    static constexpr VARTYPE otherTypes[] = {VT_EMPTY,
                                             VT_NULL,
                                             VT_I4,
                                             VT_BSTR,
                                             VT_DISPATCH,
                                             VT_BOOL,
                                             VT_I8,
                                             VT_VARIANT | VT_BYREF,
                                             VT_UNKNOWN | VT_BYREF,
                                             VT_UNKNOWN | VT_ARRAY};
    for (const VARTYPE vt : otherTypes)
    {
        VARIANT vaIn = {};
        V_VT(&vaIn) = vt;
        EXPECT_EQ(DefaultAnswer, Exec(OLECMDID_SHOWSCRIPTERROR, &vaIn)) << vt;
    }
    EXPECT_TRUE(CFakeButtons::Get().TakeCalls().empty());
}

TEST_F(ScriptError, GoesToTheDefaultWithoutADocument)
{
    VARIANT vaNull = {};
    V_VT(&vaNull) = VT_UNKNOWN;
    EXPECT_EQ(DefaultAnswer, Exec(OLECMDID_SHOWSCRIPTERROR, &vaNull));
    _variant_t vaOther(static_cast<IUnknown*>(GetTop().AsFrame()));
    EXPECT_EQ(DefaultAnswer, Exec(OLECMDID_SHOWSCRIPTERROR, &vaOther));
    EXPECT_TRUE(CFakeButtons::Get().TakeCalls().empty());
}

TEST_F(ScriptError, FailsWithoutADefaultWhenNoItemTakesIt)
{
    ComPtr<ITrelvixMSHTMLUIHandler> spHandler;
    CoCreateInstance(CLSID_TrelvixMSHTMLUIHandler, nullptr, CLSCTX_ALL, IID_PPV_ARGS(&spHandler));
    ComPtr<IOleCommandTarget> spTarget;
    spHandler.As(&spTarget);
    EXPECT_EQ(E_FAIL, spTarget->Exec(nullptr, OLECMDID_SHOWSCRIPTERROR, 0, &m_vDocument, &m_vAnswer));
    EXPECT_EQ(E_FAIL, spTarget->Exec(nullptr, OLECMDID_PRINT, 0, nullptr, nullptr));
}

TEST_F(ScriptError, IsTheBrowsersOwnOnceTheToolbarHasGone)
{
    CFakeButtons::Get()[ScriptErrorAlertIndex].bTakesScriptErrors = true;
    m_spHandler->ClearToolbarWindow();
    EXPECT_EQ(DefaultAnswer, ExecScriptError());
    EXPECT_TRUE(CFakeButtons::Get().TakeCalls().empty());
}

TEST_F(ScriptError, LeavesTheDocumentAsItWas)
{
    CFakeDocument& document = CFakePage::GetDocument(GetTop());
    const ULONG nReferences = document.GetReferences();
    ExecScriptError();
    EXPECT_EQ(nReferences, document.GetReferences());
}

TEST_F(ScriptError, SurvivesAnItemThatLetsTheDocumentDropTheHandler)
{
    CFakeDocument& document = CFakePage::GetDocument(GetTop());
    m_spHandler.As(&document.m_spUIHandler);
    IOleCommandTarget* const pTarget = m_spTarget.Get();
    m_spHandler.Reset();
    m_spTarget.Reset();
    CFakeButtons::Get().m_onCall = [&](const std::string&) { document.m_spUIHandler.Reset(); };
    EXPECT_EQ(DefaultAnswer, pTarget->Exec(nullptr, OLECMDID_SHOWSCRIPTERROR, 0, &m_vDocument, &m_vAnswer));
    EXPECT_EQ(0, m_module.GetObjectCount());
}

class FailingScriptError : public ScriptError, public testing::WithParamInterface<HRESULT>
{
protected:
    static void ExpectNoDefault(ITrelvixMSHTMLUIHandler& handler)
    {
        const auto spUI = QueryFor<IDocHostUIHandler>(&handler);
        ComPtr<IDispatch> spExternal;
        EXPECT_EQ(S_FALSE, spUI->GetExternal(&spExternal));
        EXPECT_EQ(E_FAIL, QueryFor<IOleCommandTarget>(&handler)->QueryStatus(nullptr, 0, nullptr, nullptr));
    }
};

TEST_P(FailingScriptError, ComesToNoHarmWhicheverCallFails)
{
    ForEachFailingCall(GetParam(), [&] {
        m_vAnswer.Clear();
        const HRESULT hr = m_spTarget->Exec(nullptr, OLECMDID_SHOWSCRIPTERROR, 0, &m_vDocument, &m_vAnswer);
        EXPECT_TRUE(hr == DefaultAnswer || hr == GetParam());
        EXPECT_EQ(VT_EMPTY, V_VT(&m_vAnswer));
    });
}

TEST_P(FailingScriptError, IsTakenOrGoesToTheDefaultWhicheverCallFails)
{
    CFakeButtons::Get()[ScriptErrorAlertIndex].bTakesScriptErrors = true;
    ForEachFailingCall(GetParam(), [&] {
        m_vAnswer.Clear();
        const HRESULT hr = m_spTarget->Exec(nullptr, OLECMDID_SHOWSCRIPTERROR, 0, &m_vDocument, &m_vAnswer);
        const bool bFailed = CFakeCalls::Get().HasFailed();
        EXPECT_EQ(bFailed ? DefaultAnswer : S_OK, hr);
        EXPECT_EQ(bFailed ? VT_EMPTY : VT_BOOL, V_VT(&m_vAnswer));
    });
}

TEST_P(FailingScriptError, LeavesNoDefaultBehindWhicheverCallOfTheSiteFails)
{
    ForEachFailingCall(GetParam(), [&] {
        ComPtr<ITrelvixMSHTMLUIHandler> spHandler;
        CoCreateInstance(CLSID_TrelvixMSHTMLUIHandler, nullptr, CLSCTX_ALL, IID_PPV_ARGS(&spHandler));
        const HRESULT hr = spHandler->SetOleClientSite(m_spSite.Get());
        EXPECT_EQ(CFakeCalls::Get().HasFailed() ? GetParam() : S_OK, hr);
        if (FAILED(hr))
            ExpectNoDefault(*spHandler.Get());
    });
}

INSTANTIATE_TEST_SUITE_P(ScriptError, FailingScriptError,
                         testing::Values(E_FAIL, E_ACCESSDENIED, E_OUTOFMEMORY, RPC_E_DISCONNECTED, S_OK));
} // namespace
