#include "tests/fakes/page/FakeElement.h"

#include "tests/fakes/page/FakeElementCollection.h"
#include "tests/fakes/page/FakeStyle.h"

CFakeElement::CFakeElement(std::shared_ptr<CPageMarkup> spMarkup, std::shared_ptr<CMarkupElement> spElement)
    : CFakeObject("Element"), m_spMarkup(std::move(spMarkup)), m_spElement(std::move(spElement))
{
    if (m_spElement->strTag != L"BODY")
        Lack(IID_IHTMLBodyElement);
    if (m_spElement->strTag != L"FRAMESET")
        Lack(IID_IHTMLFrameSetElement);
}

STDMETHODIMP CFakeElement::get_all(IDispatch** ppAll)
{
    return Call("get_all", ppAll, [&] {
        return MakeFake<CFakeElementCollection>(m_spMarkup, m_spElement).CopyTo(IID_IDispatch, (void**)ppAll);
    });
}

STDMETHODIMP CFakeElement::get_id(BSTR* pbstrId)
{
    return Call("get_id", pbstrId, [&] {
        const auto found = m_spElement->attributes.find(L"id");
        if (found != m_spElement->attributes.end())
            *pbstrId = SysAllocString(found->second.c_str());
        return S_OK;
    });
}

STDMETHODIMP CFakeElement::get_tagName(BSTR* pbstrTag)
{
    return Call("get_tagName", pbstrTag, [&] {
        *pbstrTag = SysAllocString(m_spElement->strTag.c_str());
        return S_OK;
    });
}

STDMETHODIMP CFakeElement::get_innerText(BSTR* pbstrText)
{
    return Call("get_innerText", pbstrText, [&] {
        if (m_spElement->bIsInPage)
            *pbstrText = SysAllocString(m_spMarkup->GetText(m_spElement->begin, m_spElement->end).c_str());
        return S_OK;
    });
}

STDMETHODIMP CFakeElement::get_style(IHTMLStyle** ppStyle)
{
    return Call("get_style", ppStyle,
                [&] { return MakeFake<CFakeStyle>(m_spElement, m_spElement->style).CopyTo(ppStyle); });
}

STDMETHODIMP CFakeElement::get_runtimeStyle(IHTMLStyle** ppStyle)
{
    return Call("get_runtimeStyle", ppStyle,
                [&] { return MakeFake<CFakeStyle>(m_spElement, m_spElement->runtimeStyle).CopyTo(ppStyle); });
}
