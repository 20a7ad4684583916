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

/// Writes the frames of one event.
class CFrameStates
{
public:
    CFrameStates(IUnknown* pFrame, bool bLeaving) : m_pFrame(pFrame), m_bLeaving(bLeaving) {}

    void Add(IUnknown* pBrowser, const std::wstring& path)
    {
        const auto spBrowser = QueryFor<IWebBrowser2>(pBrowser);
        READYSTATE eState = READYSTATE_COMPLETE;
        if (!spBrowser)
            return;
        spBrowser->get_ReadyState(&eState);
        const bool bOfEvent = m_pFrame != nullptr && IsSameObject(spBrowser.Get(), m_pFrame);
        m_text += (m_text.empty() ? L"" : L" ") + path + L"=" + std::to_wstring(eState) + (bOfEvent ? L"*" : L"");
        if (eState > READYSTATE_LOADING && !(bOfEvent && m_bLeaving))
            AddChildren(*spBrowser.Get(), path);
    }

    const std::wstring& GetText() const { return m_text; }

private:
    void AddChildren(IWebBrowser2& browser, const std::wstring& path)
    {
        const ComPtr<IEnumUnknown> spObjects = EnumEmbeddedObjects(browser);
        ComPtr<IUnknown> spObject;
        int nNumber = 0;
        while (spObjects && spObjects->Next(1, spObject.ReleaseAndGetAddressOf(), nullptr) == S_OK)
            if (QueryFor<IWebBrowser2>(spObject.Get()))
                Add(spObject.Get(), path + std::to_wstring(++nNumber) + L".");
    }

    IUnknown* m_pFrame; ///< for comparison only
    const bool m_bLeaving;
    std::wstring m_text;
};
} // namespace

std::wstring DescribeFrames(IUnknown* pBrowser, IUnknown* pFrame, bool bLeaving)
{
    CFrameStates states(pFrame, bLeaving);
    states.Add(pBrowser, L"1.");
    return states.GetText();
}
