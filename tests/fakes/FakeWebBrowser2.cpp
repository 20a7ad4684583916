#include "tests/fakes/FakeWebBrowser2.h"

#include "tests/fakes/BrowserEvent.h"

using Microsoft::WRL::ComPtr;

namespace
{
std::wstring ToText(BSTR bstrText)
{
    return bstrText != nullptr ? bstrText : L"";
}

_variant_t ToVariant(const VARIANT* pvValue)
{
    return pvValue != nullptr ? _variant_t(*pvValue) : _variant_t();
}

bool IsGiven(const VARIANT* pvValue)
{
    return pvValue != nullptr && V_VT(pvValue) != VT_EMPTY;
}
} // namespace

STDMETHODIMP CFakeWebBrowser2::Navigate(BSTR bstrUrl, VARIANT* pFlags, VARIANT* pTarget, VARIANT* pPostData,
                                        VARIANT* pHeaders)
{
    m_navigations.push_back(
        {ToText(bstrUrl), ToVariant(pFlags), IsGiven(pTarget) || IsGiven(pPostData) || IsGiven(pHeaders)});
    return Call("Navigate", [] { return S_OK; });
}

STDMETHODIMP CFakeWebBrowser2::get_Document(IDispatch** ppDocument)
{
    return Call("get_Document", ppDocument,
                [&] { return FAILED(m_hrDocument) ? m_hrDocument : m_spDocument.CopyTo(ppDocument); });
}

STDMETHODIMP CFakeWebBrowser2::get_LocationURL(BSTR* pbstrUrl)
{
    return Call("get_LocationURL", pbstrUrl, [&] {
        *pbstrUrl = SysAllocString(m_strUrl.c_str());
        return S_OK;
    });
}

STDMETHODIMP CFakeWebBrowser2::get_HWND(SHANDLE_PTR* phWnd)
{
    *phWnd = 0;
    return Call("get_HWND", [&] {
        *phWnd = reinterpret_cast<SHANDLE_PTR>(m_hWnd);
        return S_OK;
    });
}

STDMETHODIMP CFakeWebBrowser2::get_ReadyState(READYSTATE* peReadyState)
{
    return Call("get_ReadyState", [&] {
        *peReadyState = m_eReadyState;
        return S_OK;
    });
}

STDMETHODIMP CFakeWebBrowser2::PutProperty(BSTR bstrName, VARIANT vValue)
{
    return Call("PutProperty", [&] {
        m_properties[ToText(bstrName)] = vValue;
        return S_OK;
    });
}

STDMETHODIMP CFakeWebBrowser2::GetProperty(BSTR bstrName, VARIANT* pvValue)
{
    VariantInit(pvValue);
    return Call("GetProperty", [&] {
        const auto found = m_properties.find(ToText(bstrName));
        return found == m_properties.end() ? S_OK : VariantCopy(pvValue, &found->second);
    });
}

STDMETHODIMP CFakeWebBrowser2::ShowBrowserBar(VARIANT* pvClsid, VARIANT* pvShow, VARIANT* pvSize)
{
    m_browserBars.push_back({ToVariant(pvClsid), ToVariant(pvShow), IsGiven(pvSize)});
    return Call("ShowBrowserBar", [] { return S_OK; });
}

STDMETHODIMP CFakeWebBrowser2::EnumConnectionPoints(IEnumConnectionPoints** ppEnum)
{
    return Call("EnumConnectionPoints", ppEnum, [] { return E_NOTIMPL; });
}

STDMETHODIMP CFakeWebBrowser2::FindConnectionPoint(REFIID iid, IConnectionPoint** ppPoint)
{
    return Call("FindConnectionPoint", ppPoint, [&]() -> HRESULT {
        if (iid != DIID_DWebBrowserEvents2)
            return CONNECT_E_NOCONNECTION;
        return m_spConnectionPoint.CopyTo(ppPoint);
    });
}

void CFakeWebBrowser2::Fire(CBrowserEvent& event)
{
    for (const ComPtr<IDispatch>& spSink : m_spConnectionPoint->GetSinks())
        event.SendTo(*spSink.Get());
}
