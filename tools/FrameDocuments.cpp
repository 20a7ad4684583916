#include "tools/FrameDocuments.h"

#include "framework/ComQuery.h"

#include <comutil.h>

using Microsoft::WRL::ComPtr;

namespace
{
ComPtr<IHTMLDocument2> GetFrameDocument(IHTMLFramesCollection2* pFrames, long nIndex)
{
    _variant_t vIndex(nIndex);
    _variant_t vFrame;
    if (FAILED(pFrames->item(&vIndex, &vFrame)) || vFrame.vt != VT_DISPATCH)
        return nullptr;
    const auto spWindow = QueryFor<IHTMLWindow2>(vFrame.pdispVal);
    ComPtr<IHTMLDocument2> spDocument;
    if (!spWindow || FAILED(spWindow->get_document(&spDocument)))
        return nullptr;
    return spDocument;
}
} // namespace

bool ForEachFrameDocument(IHTMLDocument2* pDocument, const std::function<void(IHTMLDocument2*)>& action)
{
    ComPtr<IHTMLFramesCollection2> spFrames;
    long nFrames = 0;
    if (FAILED(pDocument->get_frames(&spFrames)) || !spFrames || FAILED(spFrames->get_length(&nFrames)))
        return false;
    for (long nIndex = 0; nIndex < nFrames; ++nIndex)
        if (const auto spDocument = GetFrameDocument(spFrames.Get(), nIndex))
            action(spDocument.Get());
    return true;
}
