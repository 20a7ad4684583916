#include "tests/unit/bench/engine_page.h"

#include "framework/ComQuery.h"

using Microsoft::WRL::ComPtr;

namespace
{
constexpr char DocumentHead[] = "<!DOCTYPE html><meta charset=\"utf-8\"><title>Page</title>\n";

class CEngineEnvironment : public testing::Environment
{
public:
    void SetUp() override { CEnginePage::StartEngine(); }
    void TearDown() override { CEnginePage::StopEngine(); }
};

[[maybe_unused]] const auto* const s_pEnvironment = testing::AddGlobalTestEnvironment(new CEngineEnvironment);
} // namespace

CEnginePage::CEnginePage()
{
    SetUp();
}

CEnginePage::~CEnginePage()
{
    TearDown();
}

ComPtr<IHTMLDocument2> CEnginePage::LoadSource(const std::string& source, const std::string& headers)
{
    const std::string path = "/page" + std::to_string(++m_nLoads) + ".html";
    Serve(path, DocumentHead + source, headers);
    Load(FromUtf8(path));
    return GetDocument();
}

ComPtr<IHTMLDocument2> CEnginePage::GetDocument()
{
    ComPtr<IDispatch> spDocument;
    EXPECT_EQ(m_spBrowser->get_Document(&spDocument), S_OK);
    return QueryFor<IHTMLDocument2>(spDocument.Get());
}

Json CEnginePage::Run(const std::wstring& script)
{
    PumpUntil([bPumped = false]() mutable { return std::exchange(bPumped, true); });
    return BrowserTest::Run(script);
}

std::wstring CEnginePage::GetScriptText(const std::wstring& script)
{
    const Json text = Run(script);
    return text.is_string() ? FromUtf8(text.get<std::string>()) : std::wstring();
}

std::vector<std::wstring> CEnginePage::GetScriptTexts(const std::wstring& elements, const std::wstring& property)
{
    std::vector<std::wstring> texts;
    for (const Json& text : Run(L"Array.from(" + elements + L", (element) => element." + property + L")"))
        texts.push_back(FromUtf8(text.get<std::string>()));
    return texts;
}
