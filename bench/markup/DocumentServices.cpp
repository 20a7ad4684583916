#include "bench/com/Document.h"
#include "bench/com/Element.h"
#include "bench/markup/DocumentMarkup.h"
#include "bench/markup/MarkupPointer.h"
#include "framework/ComBoundary.h"

namespace
{
/// Of elements that leave the text around them in one line.
constexpr wchar_t InlineTag[] = L"FONT";

const wchar_t* GetTag(ELEMENT_TAG_ID eTag)
{
    switch (eTag)
    {
    case TAGID_DIV:
        return L"DIV";
    case TAGID_FONT:
        return InlineTag;
    default:
        return nullptr;
    }
}
} // namespace

STDMETHODIMP CDocument::CreateMarkupPointer(IMarkupPointer** ppPointer)
{
    if (ppPointer == nullptr)
        return E_POINTER;
    *ppPointer = nullptr;
    return ComBoundary([&]() -> HRESULT {
        return IsOnShow() ? MakeObject<CMarkupPointer>(*this).CopyTo(ppPointer) : RPC_E_DISCONNECTED;
    });
}

STDMETHODIMP CDocument::CreateElement(ELEMENT_TAG_ID eTag, OLECHAR* pszAttributes, IHTMLElement** ppElement)
{
    if (ppElement == nullptr)
        return E_POINTER;
    *ppElement = nullptr;
    const wchar_t* const pszTag = GetTag(eTag);
    if (pszTag == nullptr)
        return E_NOTIMPL;
    return ComBoundary([&]() -> HRESULT {
        if (!IsOnShow())
            return RPC_E_DISCONNECTED;
        const auto nElement = GetMarkup().MakeElement(pszTag, pszAttributes != nullptr ? pszAttributes : L"");
        if (!nElement)
            return IsOnShow() ? E_INVALIDARG : RPC_E_DISCONNECTED;
        return GetElement({{"element", *nElement}, {"tag", ToUtf8(pszTag)}}).CopyTo(ppElement);
    });
}

STDMETHODIMP CDocument::InsertElement(IHTMLElement* pElement, IMarkupPointer* pStart, IMarkupPointer* pEnd)
{
    return ComBoundary([&]() -> HRESULT {
        if (!IsOnShow())
            return RPC_E_DISCONNECTED;
        const int nElement = CElement::NumberOf(pElement, *this);
        const auto spStart = CMarkupPointer::From(pStart, *this);
        const auto spEnd = CMarkupPointer::From(pEnd, *this);
        if (GetMarkup().FindNew(nElement) == nullptr || !spStart || !spStart->IsPositioned() || !spEnd ||
            !spEnd->IsPositioned())
            return E_INVALIDARG;
        return InsertBetween(nElement, spStart->GetNumber(), spEnd->GetNumber());
    });
}

HRESULT CDocument::InsertBetween(int nElement, int nStart, int nEnd)
{
    CDocumentMarkup& markup = GetMarkup();
    if (*markup.FindNew(nElement) == InlineTag && markup.GetSearch().IsHit(nStart, nEnd))
        markup.Do("insert", {nElement, nStart, nEnd});
    else
    {
        markup.GetSearch().Forget();
        const auto inserted = markup.Ask("insert", {nElement, nStart, nEnd});
        if (!inserted)
            return GetFailure();
        if (*inserted != true)
            return E_INVALIDARG;
    }
    markup.OnInserted(nElement);
    return S_OK;
}
