#include "tools/PageZoom.h"

#include "framework/ComQuery.h"
#include "tools/FrameDocuments.h"
#include "tools/ZoomPercent.h"

#include <comutil.h>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr wchar_t WrapperId[] = L"__hw__trelvix__zoom__";

bool PutZoom(IHTMLStyle* pStyle, long nPercent)
{
    const auto spStyle = QueryFor<IHTMLStyle3>(pStyle);
    return spStyle && SUCCEEDED(spStyle->put_zoom(_variant_t(FormatPercent(nPercent).c_str())));
}

bool PutRuntimeZoom(IHTMLElement* pElement, long nPercent)
{
    const auto spElement = QueryFor<IHTMLElement2>(pElement);
    ComPtr<IHTMLStyle> spStyle;
    return spElement && SUCCEEDED(spElement->get_runtimeStyle(&spStyle)) && PutZoom(spStyle.Get(), nPercent);
}

ComPtr<IHTMLElement> GetFirstElement(IHTMLElementCollection* pElements)
{
    ComPtr<IDispatch> spFirst;
    if (FAILED(pElements->item(_variant_t(0L), _variant_t(0L), &spFirst)))
        return nullptr;
    return QueryFor<IHTMLElement>(spFirst.Get());
}

bool IsWrapper(IHTMLElement* pElement)
{
    _bstr_t id;
    return pElement != nullptr && SUCCEEDED(pElement->get_id(id.GetAddress())) &&
           VarBstrCmp(id, _bstr_t(WrapperId), LOCALE_USER_DEFAULT, 0) == VARCMP_EQ;
}

std::wstring MakeWrapperAttributes(long nPercent)
{
    const std::wstring strId = WrapperId;
    return L"ID = \"" + strId + L"\" NAME=\"" + strId + L"\" STYLE=\"position: relative;zoom: " +
           FormatPercent(nPercent) + L"\"";
}

ComPtr<IMarkupPointer> CreatePointer(IMarkupServices* pServices)
{
    ComPtr<IMarkupPointer> spPointer;
    return SUCCEEDED(pServices->CreateMarkupPointer(&spPointer)) ? spPointer : nullptr;
}

bool WrapContent(IHTMLDocument2* pDocument, IHTMLElement* pBody, long nPercent)
{
    const auto spServices = QueryFor<IMarkupServices>(pDocument);
    if (!spServices || !QueryFor<IMarkupContainer>(pDocument))
        return false;
    const auto spStart = CreatePointer(spServices.Get());
    const auto spEnd = spStart ? CreatePointer(spServices.Get()) : nullptr;
    if (!spEnd || FAILED(spStart->MoveAdjacentToElement(pBody, ELEM_ADJ_AfterBegin)) ||
        FAILED(spEnd->MoveAdjacentToElement(pBody, ELEM_ADJ_BeforeEnd)))
        return false;
    std::wstring strAttributes = MakeWrapperAttributes(nPercent);
    ComPtr<IHTMLElement> spWrapper;
    return SUCCEEDED(spServices->CreateElement(TAGID_DIV, strAttributes.data(), &spWrapper)) && spWrapper &&
           SUCCEEDED(spServices->InsertElement(spWrapper.Get(), spStart.Get(), spEnd.Get()));
}

bool ZoomContent(IHTMLDocument2* pDocument, IHTMLElement* pBody, long nPercent)
{
    ComPtr<IDispatch> spAll;
    if (FAILED(pBody->get_all(&spAll)))
        return false;
    const auto spElements = QueryFor<IHTMLElementCollection>(spAll.Get());
    if (!spElements)
        return false;
    const ComPtr<IHTMLElement> spFirst = GetFirstElement(spElements.Get());
    if (!IsWrapper(spFirst.Get()))
        return WrapContent(pDocument, pBody, nPercent);
    ComPtr<IHTMLStyle> spStyle;
    return SUCCEEDED(spFirst->get_style(&spStyle)) && PutZoom(spStyle.Get(), nPercent);
}

/// The counter-zoom, the wrapper in the parent's page and the wrapper in this one make the wanted zoom once.
bool ZoomBody(IHTMLDocument2* pDocument, IHTMLElement* pBody, long nPercent, bool bIsFrame)
{
    constexpr long nWholeSquared = 10000;
    if (bIsFrame)
        PutRuntimeZoom(pBody, nWholeSquared / nPercent);
    return ZoomContent(pDocument, pBody, nPercent);
}

/// A frameset in a frame is scaled by its parent already.
bool ZoomFrameSet(IHTMLElement* pRoot, long nPercent, bool bIsFrame)
{
    return bIsFrame || (QueryFor<IHTMLFrameSetElement>(pRoot) && PutRuntimeZoom(pRoot, nPercent));
}

bool ZoomFrames(IHTMLDocument2* pDocument, long nPercent)
{
    return ForEachFrameDocument(pDocument, [=](IHTMLDocument2* pFrame) { ZoomDocument(pFrame, nPercent, true); });
}
} // namespace

bool ZoomDocument(IHTMLDocument2* pDocument, long nPercent, bool bIsFrame)
{
    ComPtr<IHTMLElement> spRoot;
    if (FAILED(pDocument->get_body(&spRoot)) || !spRoot)
        return false;
    const bool bHasBody = QueryFor<IHTMLBodyElement>(spRoot.Get()) != nullptr;
    const bool bIsZoomed = bHasBody ? ZoomBody(pDocument, spRoot.Get(), nPercent, bIsFrame)
                                    : ZoomFrameSet(spRoot.Get(), nPercent, bIsFrame);
    return bIsZoomed && ZoomFrames(pDocument, nPercent);
}
