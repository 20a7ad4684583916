#include "bench/com/Style.h"

#include "bench/com/Element.h"

CStyle::CStyle(CElement& element, bool bRuntime)
    : CDocumentPart(element.GetOwner()), m_spElement(&element), m_bRuntime(bRuntime)
{
}

CStyle::~CStyle() = default;

STDMETHODIMP CStyle::put_cssText(BSTR bstrText)
{
    return ComBoundary(
        [&] { return Tell("putStyle", m_spElement->GetNumber(), "cssText", ToUtf8(GetString(bstrText)), m_bRuntime); });
}

STDMETHODIMP CStyle::get_cssText(BSTR* pbstrText)
{
    return AskText(pbstrText, "getStyle", m_spElement->GetNumber(), "cssText", m_bRuntime);
}

STDMETHODIMP CStyle::put_zoom(VARIANT vZoom)
{
    return ComBoundary([&] {
        return Tell("putStyle", m_spElement->GetNumber(), "zoom", ToUtf8(GetOptionalText(&vZoom)), m_bRuntime);
    });
}

STDMETHODIMP CStyle::get_zoom(VARIANT* pvZoom)
{
    if (pvZoom == nullptr)
        return E_POINTER;
    VariantInit(pvZoom);
    BSTR bstrZoom = nullptr;
    const HRESULT hr = AskText(&bstrZoom, "getStyle", m_spElement->GetNumber(), "zoom", m_bRuntime);
    if (FAILED(hr))
        return hr;
    V_VT(pvZoom) = VT_BSTR;
    V_BSTR(pvZoom) = bstrZoom;
    return S_OK;
}
