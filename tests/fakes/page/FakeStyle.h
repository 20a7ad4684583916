#pragma once

#include "notimpl/HTMLStyle.h"
#include "notimpl/HTMLStyle3.h"
#include "tests/fakes/FakeObject.h"
#include "tests/fakes/page/PageMarkup.h"

#include <windows.h>
#include <mshtml.h>

/// A style or runtime style of an element, which it keeps alive.
class CFakeStyle : public CFakeObject<CFakeStyle, CHTMLStyleNotImpl, CHTMLStyle3NotImpl>
{
    BEGIN_COM_MAP(CFakeStyle)
        COM_INTERFACE_ENTRY(IHTMLStyle)
        COM_INTERFACE_ENTRY2(IDispatch, IHTMLStyle)
        COM_INTERFACE_ENTRY(IHTMLStyle3)
    END_COM_MAP()

public:
    CFakeStyle(std::shared_ptr<CMarkupElement> spElement, StyleProperties& properties)
        : CFakeObject("Style"), m_spElement(std::move(spElement)), m_properties(properties)
    {
    }

    /// Takes text alone.
    STDMETHODIMP put_zoom(VARIANT vZoom) override;
    STDMETHODIMP get_zoom(VARIANT* pvZoom) override;

private:
    std::shared_ptr<CMarkupElement> m_spElement;
    StyleProperties& m_properties;
};
