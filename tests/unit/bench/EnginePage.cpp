#include "tests/unit/bench/EnginePage.h"

#include "framework/ComQuery.h"

#include <utility>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr char DocumentHead[] = "<!DOCTYPE html><meta charset=\"utf-8\"><title>Page</title>\n";

std::unique_ptr<CEnginePage> s_pPage;
} // namespace

/// Opens the page before the first test and closes it after the last.
class CEnginePage::CEnvironment : public testing::Environment
{
public:
    void SetUp() override
    {
        SetUpTestSuite();
        s_pPage.reset(new CEnginePage);
    }
    void TearDown() override
    {
        s_pPage.reset();
        TearDownTestSuite();
    }

    static const testing::Environment* const s_pAdded;
};

const testing::Environment* const CEnginePage::CEnvironment::s_pAdded =
    testing::AddGlobalTestEnvironment(new CEnvironment);

CEnginePage& CEnginePage::Get()
{
    return *s_pPage;
}

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
    return RunAtOnce(script);
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
