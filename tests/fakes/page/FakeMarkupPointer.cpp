#include "tests/fakes/page/FakeMarkupPointer.h"

#include "tests/fakes/page/FakeElement.h"
#include "tests/fakes/page/FakeHtmlDocument.h"

namespace
{
MarkupPosition GetPlaceAt(const CMarkupElement& element, ELEMENT_ADJACENCY eAdjacency)
{
    switch (eAdjacency)
    {
    case ELEM_ADJ_BeforeBegin:
        return element.begin;
    case ELEM_ADJ_AfterBegin:
        return std::next(element.begin);
    case ELEM_ADJ_BeforeEnd:
        return element.end;
    default:
        return std::next(element.end);
    }
}
} // namespace

STDMETHODIMP CFakeMarkupPointer::Gravity(POINTER_GRAVITY* peGravity)
{
    return Call("Gravity", [&] {
        *peGravity = m_gap.bKeepsRight ? POINTER_GRAVITY_Right : POINTER_GRAVITY_Left;
        return S_OK;
    });
}

STDMETHODIMP CFakeMarkupPointer::SetGravity(POINTER_GRAVITY eGravity)
{
    return Call(eGravity == POINTER_GRAVITY_Right ? "SetGravityRight" : "SetGravityLeft", [&] {
        m_gap.bKeepsRight = eGravity == POINTER_GRAVITY_Right;
        return S_OK;
    });
}

STDMETHODIMP CFakeMarkupPointer::IsPositioned(BOOL* pbPositioned)
{
    return Call("IsPositioned", [&] {
        *pbPositioned = m_bPositioned;
        return S_OK;
    });
}

STDMETHODIMP CFakeMarkupPointer::MoveAdjacentToElement(IHTMLElement* pElement, ELEMENT_ADJACENCY eAdjacency)
{
    return Call("MoveAdjacentToElement", [&] {
        const auto* pFake = dynamic_cast<CFakeElement*>(pElement);
        if (pFake == nullptr || !pFake->GetElement()->bIsInPage)
            return E_INVALIDARG;
        return MoveTo(pFake->GetMarkup(), GetPlaceAt(*pFake->GetElement(), eAdjacency));
    });
}

STDMETHODIMP CFakeMarkupPointer::MoveToPointer(IMarkupPointer* pPointer)
{
    return Call("MoveToPointer", [&] {
        const auto* pFake = dynamic_cast<CFakeMarkupPointer*>(pPointer);
        if (pFake == nullptr || !pFake->m_bPositioned)
            return E_INVALIDARG;
        return MoveTo(pFake->m_spMarkup, pFake->m_gap.next);
    });
}

STDMETHODIMP CFakeMarkupPointer::MoveToContainer(IMarkupContainer* pContainer, BOOL bAtStart)
{
    return Call("MoveToContainer", [&] {
        const auto* pFake = dynamic_cast<CFakeHtmlDocument*>(pContainer);
        if (pFake == nullptr)
            return E_INVALIDARG;
        const std::shared_ptr<CPageMarkup> spMarkup = pFake->GetMarkup();
        return MoveTo(spMarkup, bAtStart ? spMarkup->GetBegin() : spMarkup->GetEnd());
    });
}

STDMETHODIMP CFakeMarkupPointer::IsEqualTo(IMarkupPointer* pPointer, BOOL* pbEqual)
{
    return Call("IsEqualTo", [&] {
        const auto* pFake = dynamic_cast<CFakeMarkupPointer*>(pPointer);
        if (pFake == nullptr || !m_bPositioned || !pFake->IsIn(*m_spMarkup))
            return E_INVALIDARG;
        *pbEqual = pFake->m_gap.next == m_gap.next;
        return S_OK;
    });
}

STDMETHODIMP CFakeMarkupPointer::FindText(OLECHAR* pszText, DWORD dwFlags, IMarkupPointer* pEnd,
                                          IMarkupPointer* pEndSearch)
{
    return Call("FindText", [&]() -> HRESULT {
        if (dwFlags != 0 || pEndSearch != nullptr)
            return E_NOTIMPL;
        if (pszText == nullptr || *pszText == L'\0' || !m_bPositioned)
            return E_INVALIDARG;
        const auto hit = m_spMarkup->Find(pszText, m_gap.next);
        if (!hit)
            return S_FALSE;
        m_gap.next = hit->first;
        auto* pFakeEnd = dynamic_cast<CFakeMarkupPointer*>(pEnd);
        return pFakeEnd == nullptr ? S_OK : pFakeEnd->MoveTo(m_spMarkup, hit->second);
    });
}

HRESULT CFakeMarkupPointer::MoveTo(const std::shared_ptr<CPageMarkup>& spMarkup, MarkupPosition position)
{
    m_spMarkup->Drop(m_gap);
    m_spMarkup = spMarkup;
    m_spMarkup->Watch(m_gap);
    m_gap.next = position;
    m_bPositioned = true;
    return S_OK;
}
