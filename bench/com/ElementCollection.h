#pragma once

#include "bench/com/DocumentPart.h"
#include "notimpl/HTMLElementCollection.h"

#include <windows.h>
#include <mshtml.h>

#include <string>

class CElement;

/// Elements of a document or within one of its elements, as they are whenever the collection is asked.
class CElementCollection : public CDocumentPart<CElementCollection, CHTMLElementCollectionNotImpl>
{
    BEGIN_COM_MAP(CElementCollection)
        COM_INTERFACE_ENTRY(IHTMLElementCollection)
        COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

public:
    /// Of the whole document when there is no owner. `kind` is one that page.js knows.
    CElementCollection(CDocument& document, CElement* pOwner, std::string kind);
    ~CElementCollection() override;

    STDMETHODIMP get_length(long* pnLength) override;
    /// By index, a number as either argument, or by name; no element is a success with null.
    STDMETHODIMP item(VARIANT vName, VARIANT vIndex, IDispatch** ppElement) override;
    STDMETHODIMP tags(VARIANT vTag, IDispatch** ppElements) override;

private:
    int GetOwnerNumber() const;

    Microsoft::WRL::ComPtr<CElement> m_spOwner;
    std::string m_kind;
};
