#include "tools/PageHighlight.h"

#include "framework/ComQuery.h"
#include "tools/FrameDocuments.h"

#include <array>
#include <cstddef>
#include <memory_resource>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr size_t ShortTextSize = 128; // with the terminator

/// The two ends of a hit. The next search starts behind the end of the last one.
class CHitRange
{
public:
    bool Create(IMarkupServices* pServices)
    {
        return SUCCEEDED(pServices->CreateMarkupPointer(&m_spStart)) && m_spStart &&
               SUCCEEDED(pServices->CreateMarkupPointer(&m_spEnd)) && m_spEnd;
    }

    /// Puts the range around the whole document.
    bool MoveTo(IMarkupContainer* pContainer)
    {
        m_spStart->SetGravity(POINTER_GRAVITY_Right);
        m_spEnd->SetGravity(POINTER_GRAVITY_Left);
        return SUCCEEDED(m_spStart->MoveToContainer(pContainer, TRUE)) &&
               SUCCEEDED(m_spEnd->MoveToContainer(pContainer, FALSE));
    }

    bool Find(wchar_t* pszText)
    {
        const HRESULT hr = m_spStart->FindText(pszText, 0, m_spEnd.Get(), nullptr);
        return SUCCEEDED(hr) && hr != S_FALSE;
    }

    bool Mark(IMarkupServices* pServices)
    {
        wchar_t szAttributes[] = L"STYLE=\"color:black; background-color:yellow\"";
        ComPtr<IHTMLElement> spMark;
        return SUCCEEDED(pServices->CreateElement(TAGID_FONT, szAttributes, &spMark)) && spMark &&
               SUCCEEDED(pServices->InsertElement(spMark.Get(), m_spStart.Get(), m_spEnd.Get()));
    }

    bool MoveBehind() { return SUCCEEDED(m_spStart->MoveToPointer(m_spEnd.Get())); }

private:
    ComPtr<IMarkupPointer> m_spStart;
    ComPtr<IMarkupPointer> m_spEnd;
};
} // namespace

bool HighlightDocument(const std::wstring& strText, IHTMLDocument2* pDocument)
{
    const auto spServices = QueryFor<IMarkupServices>(pDocument);
    const auto spContainer = QueryFor<IMarkupContainer>(pDocument);
    CHitRange range;
    if (!spServices || !spContainer || !range.Create(spServices.Get()) || !range.MoveTo(spContainer.Get()))
        return false;
    // The search takes no constant text, and a short copy needs no block from the heap.
    alignas(wchar_t) std::array<std::byte, ShortTextSize * sizeof(wchar_t)> stackBlock;
    std::pmr::monotonic_buffer_resource memory(stackBlock.data(), stackBlock.size());
    std::pmr::wstring strBuffer(strText, &memory);
    while (range.Find(strBuffer.data()) && range.Mark(spServices.Get()) && range.MoveBehind())
    {
    }
    return true;
}

bool HighlightFrames(const std::wstring& strText, IHTMLDocument2* pDocument)
{
    HighlightDocument(strText, pDocument);
    return ForEachFrameDocument(pDocument, [&](IHTMLDocument2* pFrame) { HighlightFrames(strText, pFrame); });
}
