#include "tests/fakes/page/FakeStyle.h"

STDMETHODIMP CFakeStyle::put_zoom(VARIANT vZoom)
{
    return Call("put_zoom", [&] {
        if (vZoom.vt != VT_BSTR || vZoom.bstrVal == nullptr)
            return E_INVALIDARG;
        m_properties[L"zoom"] = vZoom.bstrVal;
        return S_OK;
    });
}

STDMETHODIMP CFakeStyle::get_zoom(VARIANT* pvZoom)
{
    VariantInit(pvZoom);
    return Call("get_zoom", [&] {
        pvZoom->vt = VT_BSTR;
        pvZoom->bstrVal = SysAllocString(m_properties[L"zoom"].c_str());
        return S_OK;
    });
}
