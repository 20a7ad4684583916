#include "bench/com/Element.h"

#include "bench/com/ElementCollection.h"
#include "bench/com/Style.h"
#include "bench/com/Window.h"
#include "framework/ComQuery.h"

#include <comutil.h>

using Microsoft::WRL::ComPtr;

namespace
{
/// Asked for by its own kind alone: tells the document's elements from all other objects.
const IID IID_CElement = {0x5b9e1d0c, 0x2f7a, 0x4c1e, {0x9d, 0x83, 0x61, 0x0a, 0xb7, 0x4e, 0x52, 0xc6}};

/// Whether elements with the tag lack an interface that the class has.
bool Lacks(const std::string& tag, REFIID iid)
{
    if (iid == __uuidof(IHTMLBodyElement))
        return tag != "BODY";
    if (iid == __uuidof(IHTMLFrameSetElement))
        return tag != "FRAMESET";
    return iid == __uuidof(IHTMLFrameBase2) && tag != "FRAME" && tag != "IFRAME";
}
} // namespace

CElement::CElement(CDocument& document, int nElement, std::string tag)
    : CDocumentPart(document), m_nElement(nElement), m_tag(std::move(tag))
{
}

CElement::~CElement()
{
    GetDocumentObject().ForgetElement(m_nElement);
}

STDMETHODIMP CElement::QueryInterface(REFIID iid, void** ppv)
{
    if (ppv == nullptr)
        return E_POINTER;
    if (iid == IID_CElement)
    {
        AddRef();
        *ppv = this;
        return S_OK;
    }
    if (!Lacks(m_tag, iid))
        return CDocumentPart::QueryInterface(iid, ppv);
    *ppv = nullptr;
    return E_NOINTERFACE;
}

int CElement::NumberOf(IUnknown* pElement, const CDocument& document)
{
    ComPtr<CElement> spElement;
    if (pElement == nullptr ||
        FAILED(pElement->QueryInterface(IID_CElement, reinterpret_cast<void**>(spElement.GetAddressOf()))))
        return 0;
    return &spElement->GetDocumentObject() == &document ? spElement->m_nElement : 0;
}

HRESULT CElement::PutText(const char* pszName, BSTR bstr) const
{
    return ComBoundary([&] { return Tell("putOf", m_nElement, pszName, ToUtf8(GetString(bstr))); });
}

STDMETHODIMP CElement::setAttribute(BSTR bstrName, VARIANT vValue, LONG)
{
    return ComBoundary([&] {
        return Tell("setAttribute", m_nElement, ToUtf8(GetString(bstrName)), ToUtf8(GetOptionalText(&vValue)));
    });
}

STDMETHODIMP CElement::getAttribute(BSTR bstrName, LONG, VARIANT* pvValue)
{
    if (pvValue == nullptr)
        return E_POINTER;
    VariantInit(pvValue);
    return ComBoundary([&] {
        const auto take = [&](const Json& answer) {
            V_VT(pvValue) = answer.is_string() ? VT_BSTR : VT_NULL;
            return answer.is_string() ? CopyText(FromUtf8(answer.get<std::string>()), &V_BSTR(pvValue)) : S_OK;
        };
        return Ask("getAttribute", take, m_nElement, ToUtf8(GetString(bstrName)));
    });
}

STDMETHODIMP CElement::get_parentElement(IHTMLElement** ppParent)
{
    return GetDocumentObject().AskElement(ppParent, "elementOf", m_nElement, "parentElement");
}

STDMETHODIMP CElement::get_document(IDispatch** ppDocument)
{
    return ppDocument ? GetDocumentObject().QueryInterface(IID_PPV_ARGS(ppDocument)) : E_POINTER;
}

HRESULT CElement::GetStyle(bool bRuntime, IHTMLStyle** ppStyle)
{
    if (ppStyle == nullptr)
        return E_POINTER;
    *ppStyle = nullptr;
    return ComBoundary([&] { return MakeObject<CStyle>(*this, bRuntime).CopyTo(ppStyle); });
}

HRESULT CElement::GetCollection(std::string kind, IDispatch** ppElements)
{
    if (ppElements == nullptr)
        return E_POINTER;
    *ppElements = nullptr;
    return ComBoundary(
        [&] { return MakeObject<CElementCollection>(GetDocumentObject(), this, std::move(kind)).CopyTo(ppElements); });
}

STDMETHODIMP CElement::get_all(IDispatch** ppAll)
{
    return GetCollection("all", ppAll);
}

STDMETHODIMP CElement::get_children(IDispatch** ppChildren)
{
    return GetCollection("children", ppChildren);
}

STDMETHODIMP CElement::getElementsByTagName(BSTR bstrTag, IHTMLElementCollection** ppElements)
{
    if (ppElements == nullptr)
        return E_POINTER;
    *ppElements = nullptr;
    return ComBoundary([&] {
        ComPtr<IDispatch> spElements;
        const HRESULT hr = GetCollection(ToUtf8(GetString(bstrTag)), &spElements);
        return FAILED(hr) ? hr : spElements.CopyTo(ppElements);
    });
}

STDMETHODIMP CElement::contains(IHTMLElement* pElement, VARIANT_BOOL* pbContains)
{
    if (pbContains == nullptr)
        return E_POINTER;
    *pbContains = VARIANT_FALSE;
    const auto take = [&](const Json& answer) {
        *pbContains = answer.is_boolean() && answer.get<bool>() ? VARIANT_TRUE : VARIANT_FALSE;
        return S_OK;
    };
    return Ask("contains", take, m_nElement, NumberOf(pElement, GetDocumentObject()));
}

STDMETHODIMP CElement::click()
{
    return Tell("click", m_nElement);
}

STDMETHODIMP CElement::get_contentWindow(IHTMLWindow2** ppWindow)
{
    if (ppWindow == nullptr)
        return E_POINTER;
    *ppWindow = nullptr;
    return ComBoundary([&] {
        const ComPtr<CWindow> spWindow = GetDocumentObject().GetWindowOfElement(m_nElement);
        return spWindow ? spWindow.CopyTo(ppWindow) : GetDocumentObject().GetFailure();
    });
}
