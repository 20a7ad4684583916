#include "bench/markup/MarkupPointer.h"

#include "bench/com/Element.h"
#include "bench/markup/DocumentMarkup.h"
#include "framework/ComQuery.h"

using Microsoft::WRL::ComPtr;

namespace
{
/// Asked for by its own kind alone: tells these pointers from all other objects.
const IID IID_CMarkupPointer = {0xc1d6f0a4, 0x83e2, 0x4b57, {0xa6, 0x19, 0x0f, 0x72, 0x5d, 0xe8, 0x34, 0x9b}};

constexpr int NoPointer = 0; // the numbers of markup.js begin with 1
} // namespace

CMarkupPointer::CMarkupPointer(CDocument& document)
    : CDocumentPart(document), m_nPointer(GetMarkup().MakePointerNumber())
{
    GetMarkup().Do("pointer", {m_nPointer});
}

CMarkupPointer::~CMarkupPointer()
{
    ComBoundary([&] {
        GetMarkup().Do("drop", {m_nPointer});
        return S_OK;
    });
}

ComPtr<CMarkupPointer> CMarkupPointer::From(IMarkupPointer* pPointer, const CDocument& document)
{
    ComPtr<CMarkupPointer> spPointer;
    if (pPointer == nullptr ||
        FAILED(pPointer->QueryInterface(IID_CMarkupPointer, reinterpret_cast<void**>(spPointer.GetAddressOf()))))
        return nullptr;
    return &spPointer->GetDocumentObject() == &document ? spPointer : nullptr;
}

STDMETHODIMP CMarkupPointer::QueryInterface(REFIID iid, void** ppv)
{
    if (ppv == nullptr || iid != IID_CMarkupPointer)
        return CDocumentPart::QueryInterface(iid, ppv);
    AddRef();
    *ppv = this;
    return S_OK;
}

STDMETHODIMP CMarkupPointer::Gravity(POINTER_GRAVITY* peGravity)
{
    if (peGravity == nullptr)
        return E_POINTER;
    *peGravity = m_eGravity;
    return WithPage([] { return S_OK; });
}

STDMETHODIMP CMarkupPointer::SetGravity(POINTER_GRAVITY eGravity)
{
    return WithPage([&] {
        m_eGravity = eGravity;
        GetMarkup().Do("gravity", {m_nPointer, eGravity == POINTER_GRAVITY_Right});
        return S_OK;
    });
}

STDMETHODIMP CMarkupPointer::IsPositioned(BOOL* pbPositioned)
{
    if (pbPositioned == nullptr)
        return E_POINTER;
    *pbPositioned = m_bPositioned;
    return WithPage([] { return S_OK; });
}

STDMETHODIMP CMarkupPointer::MoveAdjacentToElement(IHTMLElement* pElement, ELEMENT_ADJACENCY eAdjacency)
{
    return WithPage([&]() -> HRESULT {
        const int nElement = CElement::NumberOf(pElement, GetDocumentObject());
        if (nElement == 0 || eAdjacency < ELEM_ADJ_BeforeBegin || eAdjacency > ELEM_ADJ_AfterEnd)
            return E_INVALIDARG;
        GetMarkup().GetSearch().Forget();
        const auto moved = GetMarkup().Ask("moveToElement", {m_nPointer, nElement, eAdjacency});
        if (!moved)
            return GetDocumentObject().GetFailure();
        m_bPositioned |= *moved == true;
        return *moved == true ? S_OK : E_INVALIDARG;
    });
}

STDMETHODIMP CMarkupPointer::MoveToPointer(IMarkupPointer* pPointer)
{
    return WithPage([&]() -> HRESULT {
        const auto spPointer = From(pPointer, GetDocumentObject());
        if (!spPointer || !spPointer->m_bPositioned)
            return E_INVALIDARG;
        GetMarkup().GetSearch().OnMoved(m_nPointer, spPointer->m_nPointer);
        GetMarkup().Do("moveToPointer", {m_nPointer, spPointer->m_nPointer});
        m_bPositioned = true;
        return S_OK;
    });
}

STDMETHODIMP CMarkupPointer::MoveToContainer(IMarkupContainer* pContainer, BOOL bAtStart)
{
    return WithPage([&]() -> HRESULT {
        if (!IsSameObject(pContainer, static_cast<IMarkupContainer*>(&GetDocumentObject())))
            return E_INVALIDARG;
        GetMarkup().GetSearch().Forget();
        GetMarkup().Do(bAtStart ? "moveToStart" : "moveToEnd", {m_nPointer});
        m_bPositioned = true;
        return S_OK;
    });
}

STDMETHODIMP CMarkupPointer::IsEqualTo(IMarkupPointer* pPointer, BOOL* pbEqual)
{
    if (pbEqual == nullptr)
        return E_POINTER;
    *pbEqual = FALSE;
    return WithPage([&]() -> HRESULT {
        const auto spPointer = From(pPointer, GetDocumentObject());
        if (!m_bPositioned || !spPointer || !spPointer->m_bPositioned)
            return E_INVALIDARG;
        const auto equal = GetMarkup().Ask("isEqual", {m_nPointer, spPointer->m_nPointer});
        if (!equal)
            return GetDocumentObject().GetFailure();
        *pbEqual = *equal == true;
        return S_OK;
    });
}

STDMETHODIMP CMarkupPointer::FindText(OLECHAR* pszText, DWORD dwFlags, IMarkupPointer* pEnd, IMarkupPointer* pEndSearch)
{
    if (dwFlags != 0 || pEndSearch != nullptr)
        return E_NOTIMPL;
    return WithPage([&]() -> HRESULT {
        const auto spEnd = From(pEnd, GetDocumentObject());
        if (pszText == nullptr || *pszText == L'\0' || !m_bPositioned || (pEnd != nullptr && !spEnd))
            return E_INVALIDARG;
        return Search(pszText, spEnd.Get());
    });
}

HRESULT CMarkupPointer::Search(const std::wstring& text, CMarkupPointer* pEnd)
{
    CDocumentMarkup& markup = GetMarkup();
    const int nEnd = pEnd != nullptr ? pEnd->m_nPointer : NoPointer;
    const auto bFound = markup.GetSearch().TakeNext(text, m_nPointer, nEnd);
    if (bFound == false)
        return S_FALSE;
    const auto numbers = {m_nPointer, markup.AddText(text), nEnd};
    if (bFound)
    {
        markup.Do("findNext", numbers);
        return S_OK;
    }
    markup.GetSearch().Forget();
    const auto further = markup.Ask("find", numbers);
    if (!further || !further->is_number())
        return GetDocumentObject().GetFailure();
    if (*further < 0)
        return S_FALSE;
    if (pEnd == nullptr)
        return S_OK;
    markup.GetSearch().OnFound(text, m_nPointer, nEnd, further->get<int>());
    pEnd->m_bPositioned = true;
    return S_OK;
}
