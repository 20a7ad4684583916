#include "tests/fakes/page/FakeHtmlDocument.h"

#include "tests/fakes/page/FakeElement.h"
#include "tests/fakes/page/FakeMarkupPointer.h"
#include "tests/fakes/page/MarkupAttributes.h"
#include "tests/fakes/page/PageMarkupReader.h"

namespace
{
const wchar_t* GetTag(ELEMENT_TAG_ID eTag)
{
    switch (eTag)
    {
    case TAGID_DIV:
        return L"DIV";
    case TAGID_FONT:
        return L"FONT";
    default:
        return nullptr;
    }
}
} // namespace

CFakeHtmlDocument::CFakeHtmlDocument(const std::wstring& strSource)
    : CFakeObject("HtmlDocument"), m_spMarkup(ReadMarkup(strSource))
{
}

STDMETHODIMP CFakeHtmlDocument::get_body(IHTMLElement** ppBody)
{
    return Call("get_body", ppBody, [&] {
        const auto spRoot = GetRoot();
        return spRoot == nullptr ? S_OK : MakeFake<CFakeElement>(m_spMarkup, spRoot).CopyTo(ppBody);
    });
}

STDMETHODIMP CFakeHtmlDocument::get_frames(IHTMLFramesCollection2** ppFrames)
{
    return Call("get_frames", ppFrames, [&] { return MakeFake<CFakeFramesCollection>(m_windows).CopyTo(ppFrames); });
}

STDMETHODIMP CFakeHtmlDocument::CreateMarkupPointer(IMarkupPointer** ppPointer)
{
    return Call("CreateMarkupPointer", ppPointer,
                [&] { return MakeFake<CFakeMarkupPointer>(m_spMarkup).CopyTo(ppPointer); });
}

STDMETHODIMP CFakeHtmlDocument::CreateElement(ELEMENT_TAG_ID eTag, OLECHAR* pszAttributes, IHTMLElement** ppElement)
{
    return Call("CreateElement", ppElement, [&]() -> HRESULT {
        const wchar_t* pszTag = GetTag(eTag);
        if (pszTag == nullptr)
            return E_NOTIMPL;
        const auto spElement = MakeElement(pszTag, pszAttributes != nullptr ? pszAttributes : L"");
        return MakeFake<CFakeElement>(m_spMarkup, spElement).CopyTo(ppElement);
    });
}

STDMETHODIMP CFakeHtmlDocument::InsertElement(IHTMLElement* pElement, IMarkupPointer* pStart, IMarkupPointer* pEnd)
{
    return Call("InsertElement", [&] {
        const auto* pFake = dynamic_cast<CFakeElement*>(pElement);
        const auto* pFakeStart = dynamic_cast<CFakeMarkupPointer*>(pStart);
        const auto* pFakeEnd = dynamic_cast<CFakeMarkupPointer*>(pEnd);
        if (pFake == nullptr || pFake->GetMarkup() != m_spMarkup || pFake->GetElement()->bIsInPage ||
            pFakeStart == nullptr || !pFakeStart->IsIn(*m_spMarkup) || pFakeEnd == nullptr ||
            !pFakeEnd->IsIn(*m_spMarkup) || !m_spMarkup->IsInOrder(pFakeStart->GetPosition(), pFakeEnd->GetPosition()))
            return E_INVALIDARG;
        m_spMarkup->Insert(pFake->GetElement(), pFakeStart->GetPosition(), pFakeEnd->GetPosition());
        return S_OK;
    });
}

CFakeFrameWindow& CFakeHtmlDocument::AddFrame(CFakeHtmlDocument* pDocument)
{
    m_windows.push_back(MakeFake<CFakeFrameWindow>(pDocument));
    return *m_windows.back().Get();
}

std::vector<std::wstring> CFakeHtmlDocument::GetTextsOf(const std::wstring& strTag) const
{
    std::vector<std::wstring> texts;
    for (const auto& spElement : m_spMarkup->GetElements(strTag))
        texts.push_back(m_spMarkup->GetText(spElement->begin, spElement->end));
    return texts;
}

std::wstring CFakeHtmlDocument::GetText() const
{
    const auto spRoot = GetRoot();
    return spRoot != nullptr ? m_spMarkup->GetText(spRoot->begin, spRoot->end) : std::wstring();
}

std::shared_ptr<CMarkupElement> CFakeHtmlDocument::GetRoot() const
{
    return m_spMarkup->FindElement(
        [](const CMarkupElement& element) { return element.strTag == L"BODY" || element.strTag == L"FRAMESET"; });
}
