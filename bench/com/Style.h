#pragma once

#include "bench/com/DocumentPart.h"
#include "notimpl/HTMLStyle.h"
#include "notimpl/HTMLStyle3.h"

#include <windows.h>
#include <mshtml.h>

class CElement;

/// The style that an element has of its own, or the runtime style that is laid over it and leaves its own as it is.
class CStyle : public CDocumentPart<CStyle, CHTMLStyleNotImpl, CHTMLStyle3NotImpl>
{
    BEGIN_COM_MAP(CStyle)
        COM_INTERFACE_ENTRY(IHTMLStyle)
        COM_INTERFACE_ENTRY2(IDispatch, IHTMLStyle)
        COM_INTERFACE_ENTRY(IHTMLStyle3)
    END_COM_MAP()

public:
    CStyle(CElement& element, bool bRuntime);
    ~CStyle() override;

    STDMETHODIMP put_cssText(BSTR bstrText) override;
    STDMETHODIMP get_cssText(BSTR* pbstrText) override;

    STDMETHODIMP put_zoom(VARIANT vZoom) override;
    STDMETHODIMP get_zoom(VARIANT* pvZoom) override;

private:
    Microsoft::WRL::ComPtr<CElement> m_spElement;
    bool m_bRuntime;
};
