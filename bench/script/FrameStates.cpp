#include "bench/script/FrameStates.h"

#include "framework/ComQuery.h"

#include <exdisp.h>

using Microsoft::WRL::ComPtr;

namespace
{
ComPtr<IEnumUnknown> EnumEmbeddedObjects(IWebBrowser2& browser)
{
    ComPtr<IDispatch> spDocument;
    ComPtr<IEnumUnknown> spObjects;
    browser.get_Document(&spDocument);
    if (const auto spContainer = QueryFor<IOleContainer>(spDocument.Get()))
        spContainer->EnumObjects(OLECONTF_EMBEDDINGS, &spObjects);
    return spObjects;
}

void Describe(IUnknown* pBrowser, const std::wstring& path, IUnknown* pFrame, std::wstring& text)
{
    const auto spBrowser = QueryFor<IWebBrowser2>(pBrowser);
    READYSTATE eState = READYSTATE_COMPLETE;
    if (!spBrowser)
        return;
    spBrowser->get_ReadyState(&eState);
    text += (text.empty() ? L"" : L" ") + path + L"=" + std::to_wstring(eState);
    if (pFrame != nullptr && IsSameObject(spBrowser.Get(), pFrame))
        text += L"*";

    const ComPtr<IEnumUnknown> spObjects = EnumEmbeddedObjects(*spBrowser.Get());
    ComPtr<IUnknown> spObject;
    int nNumber = 0;
    while (spObjects && spObjects->Next(1, spObject.ReleaseAndGetAddressOf(), nullptr) == S_OK)
        if (QueryFor<IWebBrowser2>(spObject.Get()))
            Describe(spObject.Get(), path + std::to_wstring(++nNumber) + L".", pFrame, text);
}
} // namespace

std::wstring DescribeFrames(IUnknown* pBrowser, IUnknown* pFrame)
{
    std::wstring text;
    Describe(pBrowser, L"1.", pFrame, text);
    return text;
}
