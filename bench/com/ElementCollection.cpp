#include "bench/com/ElementCollection.h"

#include "bench/com/Element.h"

CElementCollection::CElementCollection(CDocument& document, CElement* pOwner, std::string kind)
    : CDocumentPart(document), m_spOwner(pOwner), m_kind(std::move(kind))
{
}

CElementCollection::~CElementCollection() = default;

int CElementCollection::GetOwnerNumber() const
{
    return m_spOwner ? m_spOwner->GetNumber() : 0;
}

STDMETHODIMP CElementCollection::get_length(long* pnLength)
{
    return AskNumber(pnLength, "count", GetOwnerNumber(), m_kind);
}

STDMETHODIMP CElementCollection::item(VARIANT vName, VARIANT vIndex, IDispatch** ppElement)
{
    if (ppElement == nullptr)
        return E_POINTER;
    *ppElement = nullptr;
    const bool bByName = V_VT(&vName) == VT_BSTR;
    const VARIANT& number = V_VT(&vName) == VT_EMPTY || V_VT(&vName) == VT_ERROR ? vIndex : vName;
    return ComBoundary([&] {
        const Json which = bByName ? Json(ToUtf8(GetOptionalText(&vName))) : Json(GetOptionalNumber(&number));
        Microsoft::WRL::ComPtr<IHTMLElement> spElement;
        const HRESULT hr =
            GetDocumentObject().AskElement(&spElement, bByName ? "namedItem" : "item", GetOwnerNumber(), m_kind, which);
        return FAILED(hr) || !spElement ? hr : spElement.CopyTo(ppElement);
    });
}

STDMETHODIMP CElementCollection::tags(VARIANT vTag, IDispatch** ppElements)
{
    if (ppElements == nullptr)
        return E_POINTER;
    *ppElements = nullptr;
    return ComBoundary([&] {
        return MakeObject<CElementCollection>(GetDocumentObject(), m_spOwner.Get(), ToUtf8(GetOptionalText(&vTag)))
            .CopyTo(ppElements);
    });
}
