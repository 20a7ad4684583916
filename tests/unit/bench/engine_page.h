#pragma once

#include "tests/unit/bench/browser_fixture.h"

#include <mshtml.h>
#include <wrl/client.h>

#include <string>
#include <vector>

/// A page in the engine with a browser around it. The engine is started once for all pages of the program.
class CEnginePage : public BrowserTest
{
public:
    CEnginePage();
    ~CEnginePage() override;

    // For the program's start and end.
    static void StartEngine() { SetUpTestSuite(); }
    static void StopEngine() { TearDownTestSuite(); }

    using BrowserTest::GetPage;
    using BrowserTest::Load;
    using BrowserTest::PumpUntil;
    using BrowserTest::Serve;

    /// Shows a page whose source is that of a BODY or FRAMESET, or of a body's content.
    Microsoft::WRL::ComPtr<IHTMLDocument2> LoadSource(const std::string& source, const std::string& headers = {});
    Microsoft::WRL::ComPtr<IHTMLDocument2> GetDocument();
    CWebBrowser& GetBrowser() { return *m_spBrowser.Get(); }

    /// Lets everything go to the page that waits for the caller's message loop, and runs a script in the page.
    Json Run(const std::wstring& script);
    /// The text that a script gives, empty for anything else.
    std::wstring GetScriptText(const std::wstring& script);
    /// A property of each of the elements that a script gives.
    std::vector<std::wstring> GetScriptTexts(const std::wstring& elements, const std::wstring& property);

private:
    void TestBody() override {}

    int m_nLoads = 0;
};
