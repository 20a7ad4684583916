// Highlighting on a page of the engine, through the bench browser's document, against a highlighting library that runs
// in the page itself.

#include "framework/ComQuery.h"
#include "tests/benchmark/Benchmark.h"
#include "tests/unit/bench/BrowserFixture.h"
#include "tools/PageHighlight.h"

#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr wchar_t Word[] = L"needle";
constexpr int nHits = 10000;

/// The layout counts too: the user sees nothing before it.
constexpr wchar_t LayOut[] = L"document.body.offsetHeight";

std::filesystem::path GetLibrary()
{
    wchar_t szProgram[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, szProgram, MAX_PATH);
    return std::filesystem::path(szProgram).parent_path().parent_path() / "page-libraries" / "node_modules" /
           "mark.js" / "dist" / "mark.min.js";
}

std::string ReadFile(const std::filesystem::path& path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// 1 MB of text with the library, which is made anew for each sample.
class CMeasuredPage : public CBrowserTest
{
public:
    CMeasuredPage()
    {
        SetUpTestSuite();
        SetUp();
        Serve("/library.js", ReadFile(GetLibrary()));
        Serve("/page.html", MakeSource());
        Load(L"/page.html");
        Run(L"window.source = document.body.innerHTML");
    }

    ~CMeasuredPage() override
    {
        TearDown();
        TearDownTestSuite();
    }

    double TimeHighlight()
    {
        Reset();
        const ComPtr<IHTMLDocument2> spDocument = GetDocument();
        return TimeOf([&] {
            HighlightFrames(Word, spDocument.Get());
            Finish();
        });
    }

    double TimeLibrary()
    {
        Reset();
        return TimeOf([&] {
            Run(L"new Mark(document.body).mark('needle', {element: 'font', separateWordSearch: false})");
            Finish();
        });
    }

    long long CountMarks() { return Run(L"document.querySelectorAll('font').length").get<long long>(); }

private:
    void TestBody() override {}

    static std::string MakeSource()
    {
        std::string strLine = "a line of plain text with a needle in it and more text behind it, ";
        strLine.resize(100, 'x');
        std::string strSource = "<!DOCTYPE html><title>Text</title><script src=/library.js></script><body>";
        for (int n = 0; n < nHits; ++n)
            strSource += n % 10 == 0 ? "<p>" + strLine : strLine;
        return strSource;
    }

    ComPtr<IHTMLDocument2> GetDocument()
    {
        ComPtr<IDispatch> spDocument;
        m_spBrowser->get_Document(&spDocument);
        return QueryFor<IHTMLDocument2>(spDocument.Get());
    }

    void Reset()
    {
        Run(L"document.body.innerHTML = source");
        Finish();
    }

    /// Until all that was asked of the page is done and laid out.
    void Finish()
    {
        PumpUntil([bPumped = false]() mutable { return std::exchange(bPumped, true); });
        Run(LayOut);
    }
};

void MeasurePageSearch(CBenchmark& benchmark)
{
    if (!std::filesystem::exists(GetLibrary()))
    {
        std::puts("highlight in a real page: mark.js is not installed");
        return;
    }
    CMeasuredPage page;
    page.TimeLibrary();
    benchmark.Count("marks by the library in a real page", page.CountMarks(), nHits);
    page.TimeHighlight();
    benchmark.Count("marks by highlight in a real page", page.CountMarks(), nHits);
    benchmark.Compare(
        "highlight in a real page, by mark.js", {.mostRatio = 1}, [&] { return page.TimeHighlight(); },
        [&] { return page.TimeLibrary(); });
}

const CSubject s_subject("page-search", MeasurePageSearch);
} // namespace
