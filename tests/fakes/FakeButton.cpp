#include "tests/fakes/FakeButton.h"

#include "band/ButtonTable.h"

#include <cstring>
#include <new>
#include <utility>

namespace
{
constexpr int Poison = 0xDD;

std::string ToNarrow(LPCWSTR pszText)
{
    const std::wstring strText = pszText ? pszText : L"(null)";
    return std::string(strText.begin(), strText.end()); // the tests' texts are ASCII
}

std::string Join(const char* pszName, LPCWSTR pszUrl)
{
    return pszName + (" " + ToNarrow(pszUrl));
}

std::string Join(const char* pszName, LPCWSTR pszUrl, LPCWSTR pszFramePath)
{
    return Join(pszName, pszUrl) + " " + ToNarrow(pszFramePath);
}
} // namespace

CFakeButtons& CFakeButtons::Get()
{
    static CFakeButtons buttons;
    return buttons;
}

void CFakeButtons::Reset()
{
    for (void* pMemory : std::exchange(m_graves, {}))
        ::operator delete(pMemory);
    *this = CFakeButtons();
}

void CFakeButtons::Tell(int nIndex, const std::string& strCall)
{
    m_calls.push_back(std::to_string(nIndex) + " " + strCall);
    LetTestAct(std::string(m_calls.back()));
}

void CFakeButtons::LetTestAct(const std::string& strCall) const
{
    // A copy, since the test may set another within the call.
    if (const auto onCall = m_onCall)
        onCall(strCall);
}

CFakeButton::CFakeButton(int nIndex)
{
    m_nButtonId = nIndex;
    ++CFakeButtons::Get().m_nLiving;
    ++CFakeButtons::Get().m_nCreated;
}

CFakeButton::~CFakeButton()
{
    --CFakeButtons::Get().m_nLiving;
}

void* CFakeButton::operator new(std::size_t nSize)
{
    return ::operator new(nSize);
}

void CFakeButton::operator delete(void* pMemory, std::size_t nSize)
{
    std::memset(pMemory, Poison, nSize);
    CFakeButtons::Get().m_graves.push_back(pMemory);
}

const CRuntimeClass* CFakeButton::GetRuntimeClass() const
{
    return GetButtonTable()[m_nButtonId];
}

bool CFakeButton::Initialize(CTrelvixWindow* pParent)
{
    CFakeButtons::Get().LetTestAct(std::to_string(m_nButtonId) + " Initialize");
    m_bHasControl = GetTraits().bHasControl;
    m_bFocusable = GetTraits().bFocusable;
    m_nControlWidth = 50;
    const bool bInitialized = CTrelvixButton::Initialize(pParent);
    m_tbButton.fsStyle = GetTraits().fsStyle;
    return bInitialized;
}

void CFakeButton::Show(bool bShow)
{
    CTrelvixButton::Show(bShow);
    Tell(bShow ? "Show" : "Hide");
}

bool CFakeButton::OnCommand(UINT nCommand)
{
    Tell("OnCommand " + std::to_string(nCommand));
    return true;
}

void CFakeButton::OnBrowserEvent(DISPID dispid, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS* pDispParams,
                                 VARIANT* pVarResult, EXCEPINFO* pExcepInfo, UINT* puArgErr)
{
    CFakeButtons::Get().m_lastEvent = {dispid, riid, lcid, wFlags, pDispParams, pVarResult, pExcepInfo, puArgErr};
    Tell("OnBrowserEvent " + std::to_string(dispid));
}

bool CFakeButton::Place()
{
    CTrelvixButton::Place();
    Tell("Place");
    return true;
}

bool CFakeButton::HasFocus()
{
    return GetTraits().bHasFocus;
}

bool CFakeButton::TakeFocus()
{
    const bool bTakesFocus = GetTraits().bTakesFocus;
    Tell("TakeFocus");
    return bTakesFocus;
}

HRESULT CFakeButton::TranslateKey(MSG* pMsg)
{
    const HRESULT hr = GetTraits().hrTranslateKey;
    Tell("TranslateKey " + std::to_string(pMsg->wParam));
    return hr;
}

bool CFakeButton::OnIconClick(UINT nFlags, POINT)
{
    const bool bTakesIconClick = GetTraits().bTakesIconClick;
    Tell("OnIconClick " + std::to_string(nFlags));
    return bTakesIconClick;
}

bool CFakeButton::OnDropDown(NMTOOLBARW*, int nCommand)
{
    Tell("OnDropDown " + std::to_string(nCommand));
    return true;
}

bool CFakeButton::Repaint()
{
    Tell("Repaint");
    return true;
}

bool CFakeButton::OnScriptError(IHTMLDocument2*, bool* pbContinueScripts, bool* pbNotHandled)
{
    if (GetTraits().bTakesScriptErrors)
    {
        *pbContinueScripts = GetTraits().bContinuesScripts;
        *pbNotHandled = false;
    }
    Tell("OnScriptError");
    return true;
}

void CFakeButton::OnPageLoadBegin(IDispatch*, LPCWSTR pszUrl)
{
    Tell(Join("OnPageLoadBegin", pszUrl));
}

void CFakeButton::OnPageLoadComplete(IDispatch*, LPCWSTR pszUrl)
{
    Tell(Join("OnPageLoadComplete", pszUrl));
}

void CFakeButton::OnFrameLoadBegin(IDispatch*, LPCWSTR pszUrl, LPCWSTR pszFramePath)
{
    Tell(Join("OnFrameLoadBegin", pszUrl, pszFramePath));
}

void CFakeButton::OnFrameLoadComplete(IDispatch*, LPCWSTR pszUrl)
{
    Tell(Join("OnFrameLoadComplete", pszUrl));
}

void CFakeButton::OnPageRefreshBegin(IDispatch*, LPCWSTR pszUrl)
{
    Tell(Join("OnPageRefreshBegin", pszUrl));
}

void CFakeButton::OnPageRefreshComplete()
{
    Tell("OnPageRefreshComplete");
}

void CFakeButton::OnFrameRefreshBegin(IDispatch*, LPCWSTR pszUrl, LPCWSTR pszFramePath)
{
    Tell(Join("OnFrameRefreshBegin", pszUrl, pszFramePath));
}

void CFakeButton::OnFrameRefreshComplete()
{
    Tell("OnFrameRefreshComplete");
}

void CFakeButton::OnSpareEvent()
{
    Tell("OnSpareEvent");
}
