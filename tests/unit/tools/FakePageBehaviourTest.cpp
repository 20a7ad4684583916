#include "tests/behaviour/PageBehaviourTest.h"
#include "tests/fakes/page/FakeHtmlDocument.h"

namespace
{
class CFakePageUnderTest : public IPageUnderTest
{
public:
    Microsoft::WRL::ComPtr<IHTMLDocument2> Load(const std::wstring& strSource) override
    {
        m_spDocument = MakeFake<CFakeHtmlDocument>(strSource);
        return m_spDocument.Get();
    }

    Microsoft::WRL::ComPtr<IHTMLDocument2> LoadWithFrames(const std::vector<std::wstring>& sources,
                                                          std::optional<size_t> nForeign) override
    {
        Load(L"text");
        for (const std::wstring& strSource : sources)
            m_spDocument->AddFrame(MakeFake<CFakeHtmlDocument>(strSource).Get());
        if (nForeign)
            m_spDocument->m_windows[*nForeign]->Deny();
        return m_spDocument.Get();
    }

    std::wstring GetText() override { return m_spDocument->GetText(); }
    std::vector<std::wstring> GetTextsOf(const std::wstring& strTag) override
    {
        return m_spDocument->GetTextsOf(strTag);
    }

    std::wstring GetStyle(const std::wstring& strId, const std::wstring& strProperty) override
    {
        const auto spElement = m_spDocument->GetMarkup()->FindElement(
            [&](const CMarkupElement& element) { return GetIdOf(element) == strId; });
        return spElement != nullptr ? spElement->style[strProperty] : std::wstring();
    }

    std::vector<std::wstring> GetIds() override
    {
        const auto spRoot = m_spDocument->GetRoot();
        std::vector<std::wstring> ids;
        for (size_t n = 0;; ++n)
        {
            const auto spElement = m_spDocument->GetMarkup()->GetElement(std::next(spRoot->begin), spRoot->end, n);
            if (spElement == nullptr)
                return ids;
            ids.push_back(GetIdOf(*spElement));
        }
    }

private:
    static std::wstring GetIdOf(const CMarkupElement& element)
    {
        const auto found = element.attributes.find(L"id");
        return found != element.attributes.end() ? found->second : std::wstring();
    }

    Microsoft::WRL::ComPtr<CFakeHtmlDocument> m_spDocument;
};
} // namespace

INSTANTIATE_TEST_SUITE_P(Fake, PageBehaviour,
                         testing::Values(CPageKind {"fake", [] { return std::make_unique<CFakePageUnderTest>(); }}));
