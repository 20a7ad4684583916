#pragma once

#include "tests/unit/bench/BrowserFixture.h"

#include <mshtml.h>
#include <wrl/client.h>

#include <memory>
#include <string>
#include <vector>

/// A page of the engine with a browser around it, one for all tests of the program. What it gives is the page's own
/// word on its content.
class CEnginePage : public CBrowserTest
{
public:
    static CEnginePage& Get();
    ~CEnginePage() override;

    using CBrowserTest::ForeignUrlOf;
    using CBrowserTest::Load;
    using CBrowserTest::PumpUntil;
    using CBrowserTest::Serve;

    /// Shows a page whose source is that of a BODY or FRAMESET, or of a body's content.
    Microsoft::WRL::ComPtr<IHTMLDocument2> LoadSource(const std::string& source, const std::string& headers = {});
    Microsoft::WRL::ComPtr<IHTMLDocument2> GetDocument();

    /// Runs a script in the page, as soon as everything has gone there that waits for the caller's message loop.
    Json Run(const std::wstring& script);
    /// Runs a script before that.
    Json RunAtOnce(const std::wstring& script) { return CBrowserTest::Run(script); }

    /// The text that a script gives, empty for anything else.
    std::wstring GetScriptText(const std::wstring& script);
    /// A property of each of the elements that a script gives.
    std::vector<std::wstring> GetScriptTexts(const std::wstring& elements, const std::wstring& property);

private:
    class CEnvironment;

    CEnginePage();
    void TestBody() override {}

    int m_nLoads = 0;
};
