#include "tests/behaviour/PageBehaviourTest.h"
#include "tests/unit/bench/EnginePage.h"

namespace
{
/// A page of the engine as the browser's objects show it; what the page itself says comes from its own scripts.
class CEnginePageUnderTest : public IPageUnderTest
{
public:
    Microsoft::WRL::ComPtr<IHTMLDocument2> Load(const std::wstring& strSource) override
    {
        return m_page.LoadSource(ToUtf8(strSource));
    }

    Microsoft::WRL::ComPtr<IHTMLDocument2> LoadWithFrames(const std::vector<std::wstring>& sources,
                                                          std::optional<size_t> nForeign) override
    {
        std::string page = "text";
        for (size_t n = 0; n < sources.size(); ++n)
        {
            const std::wstring path = L"/frame" + std::to_wstring(n) + L".html";
            m_page.Serve(ToUtf8(path), ToUtf8(sources[n]));
            page += "<iframe src=\"" + ToUtf8(n == nForeign ? m_page.ForeignUrlOf(path) : path) + "\"></iframe>";
        }
        return m_page.LoadSource(page);
    }

    std::wstring GetText() override { return m_page.GetScriptText(L"document.body.textContent.trim()"); }
    std::vector<std::wstring> GetTextsOf(const std::wstring& strTag) override
    {
        return m_page.GetScriptTexts(L"document.body.querySelectorAll('" + strTag + L"')", L"textContent");
    }
    std::wstring GetStyle(const std::wstring& strId, const std::wstring& strProperty) override
    {
        return m_page.GetScriptText(L"document.getElementById('" + strId + L"').style['" + strProperty + L"']");
    }
    std::vector<std::wstring> GetIds() override
    {
        return m_page.GetScriptTexts(L"document.body.querySelectorAll('*')", L"id");
    }

private:
    CEnginePage& m_page = CEnginePage::Get();
};
} // namespace

INSTANTIATE_TEST_SUITE_P(Engine, PageBehaviour,
                         testing::Values(CPageKind {"engine",
                                                    [] { return std::make_unique<CEnginePageUnderTest>(); }}));
