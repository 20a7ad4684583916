#pragma once

#include "notimpl/HTMLElementCollection.h"
#include "tests/fakes/FakeObject.h"
#include "tests/fakes/page/PageMarkup.h"

#include <windows.h>
#include <mshtml.h>

/// All elements inside an element, in order.
class CFakeElementCollection : public CFakeObject<CFakeElementCollection, CHTMLElementCollectionNotImpl>
{
    BEGIN_COM_MAP(CFakeElementCollection)
        COM_INTERFACE_ENTRY(IHTMLElementCollection)
        COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

public:
    CFakeElementCollection(std::shared_ptr<CPageMarkup> spMarkup, std::shared_ptr<CMarkupElement> spParent)
        : CFakeObject("ElementCollection"), m_spMarkup(std::move(spMarkup)), m_spParent(std::move(spParent))
    {
    }

    /// By number alone. Null for a number that no element has.
    STDMETHODIMP item(VARIANT vName, VARIANT vIndex, IDispatch** ppElement) override;

private:
    std::shared_ptr<CPageMarkup> m_spMarkup;
    std::shared_ptr<CMarkupElement> m_spParent;
};
