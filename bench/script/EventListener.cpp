#include "bench/script/EventListener.h"

#include "bench/script/EventJournal.h"
#include "bench/script/FrameStates.h"
#include "framework/ComBoundary.h"
#include "framework/ComQuery.h"

#include <comutil.h>
#include <exdispid.h>

#include <algorithm>
#include <iterator>

namespace
{
struct CEventRow
{
    DISPID dispid;
    const wchar_t* pszName;
};

constexpr CEventRow eventTable[] = {
    {DISPID_BEFORENAVIGATE2, L"BeforeNavigate2"},
    {DISPID_COMMANDSTATECHANGE, L"CommandStateChange"},
    {DISPID_DOCUMENTCOMPLETE, L"DocumentComplete"},
    {DISPID_DOWNLOADBEGIN, L"DownloadBegin"},
    {DISPID_DOWNLOADCOMPLETE, L"DownloadComplete"},
    {DISPID_FILEDOWNLOAD, L"FileDownload"},
    {DISPID_NAVIGATECOMPLETE2, L"NavigateComplete2"},
    {DISPID_NAVIGATEERROR, L"NavigateError"},
    {DISPID_NEWWINDOW2, L"NewWindow2"},
    {DISPID_NEWWINDOW3, L"NewWindow3"},
    {DISPID_ONQUIT, L"OnQuit"},
    {DISPID_PROGRESSCHANGE, L"ProgressChange"},
    {DISPID_PROPERTYCHANGE, L"PropertyChange"},
    {DISPID_STATUSTEXTCHANGE, L"StatusTextChange"},
    {DISPID_TITLECHANGE, L"TitleChange"},
};

std::wstring GetEventName(DISPID dispid)
{
    const auto* pRow = std::ranges::find(eventTable, dispid, &CEventRow::dispid);
    return pRow == std::end(eventTable) ? L"Event" + std::to_wstring(dispid) : pRow->pszName;
}

/// The variant itself, where the argument only refers to one.
const VARIANT& Follow(const VARIANT& argument)
{
    return V_VT(&argument) == (VT_BYREF | VT_VARIANT) ? *V_VARIANTREF(&argument) : argument;
}

/// The page or frame that an event is about, which stands first and so comes last; null when it is about none.
IUnknown* GetFrame(const DISPPARAMS& params)
{
    const VARIANT* pLast = params.cArgs != 0 ? &params.rgvarg[params.cArgs - 1] : nullptr;
    return pLast != nullptr && V_VT(pLast) == VT_DISPATCH ? V_DISPATCH(pLast) : nullptr;
}
} // namespace

CEventListener::CEventListener(CEventJournal& journal, int nTab, IUnknown* pBrowser)
    : m_journal(journal), m_nTab(nTab), m_pBrowser(pBrowser)
{
}

STDMETHODIMP CEventListener::GetTypeInfoCount(UINT* pnCount)
{
    if (pnCount == nullptr)
        return E_POINTER;
    *pnCount = 0;
    return S_OK;
}

STDMETHODIMP CEventListener::GetTypeInfo(UINT, LCID, ITypeInfo** ppInfo)
{
    if (ppInfo == nullptr)
        return E_POINTER;
    *ppInfo = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP CEventListener::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*)
{
    return E_NOTIMPL;
}

STDMETHODIMP CEventListener::Invoke(DISPID dispid, REFIID, LCID, WORD, DISPPARAMS* pParams, VARIANT*, EXCEPINFO*, UINT*)
{
    if (pParams == nullptr)
        return E_INVALIDARG;
    return ComBoundary([&] {
        m_journal.Add(DescribeEvent(dispid, *pParams));
        return S_OK;
    });
}

std::wstring CEventListener::DescribeEvent(DISPID dispid, const DISPPARAMS& params) const
{
    std::wstring line = std::to_wstring(m_nTab);
    line.append(1, L' ').append(GetEventName(dispid));
    // The last argument stands first.
    for (UINT i = params.cArgs; i-- > 0;)
        if (const std::wstring text = Describe(Follow(params.rgvarg[i])); !text.empty())
            line.append(1, L' ').append(text);
    if (m_journal.IsWritten())
        line += L" | " + DescribeFrames(m_pBrowser, GetFrame(params), dispid == DISPID_BEFORENAVIGATE2);
    return line;
}

std::wstring CEventListener::Describe(const VARIANT& argument) const
{
    switch (V_VT(&argument))
    {
    case VT_DISPATCH:
        return DescribeObject(V_DISPATCH(&argument));
    case VT_BSTR:
        return V_BSTR(&argument) ? m_journal.ShortenAddress(V_BSTR(&argument)) : std::wstring();
    case VT_BYREF | VT_BOOL:
        return *V_BOOLREF(&argument) != VARIANT_FALSE ? std::wstring(L"cancelled") : std::wstring();
    case VT_BOOL:
        return V_BOOL(&argument) != VARIANT_FALSE ? L"true" : L"false";
    case VT_I4:
        return std::to_wstring(V_I4(&argument));
    default:
        return {};
    }
}

std::wstring CEventListener::DescribeObject(IUnknown* pObject) const
{
    if (pObject == nullptr)
        return L"nothing";
    return IsSameObject(pObject, m_pBrowser) ? L"page" : L"frame";
}
