#include "framework/ComQuery.h"
#include "tests/benchmark/Benchmark.h"
#include "tests/fakes/page/FakeHtmlDocument.h"
#include "tools/PageHighlight.h"

using Microsoft::WRL::ComPtr;

namespace
{
constexpr int nHits = 10000;
constexpr int nLarger = 10;
constexpr wchar_t Word[] = L"needle";

/// A page of 100 characters for each hit, in paragraphs of ten lines.
ComPtr<CFakeHtmlDocument> MakePage(int nHitsInPage)
{
    constexpr size_t nLineLength = 100;
    std::wstring strLine = L"a line of plain text with a needle in it and more text behind it, ";
    strLine.resize(nLineLength, L'x');
    std::wstring strSource;
    for (int n = 0; n < nHitsInPage; ++n)
        strSource += n % 10 == 0 ? L"<p>" + strLine : strLine;
    CFakeCalls::Get().Reset();
    return MakeFake<CFakeHtmlDocument>(strSource);
}

/// The calls that mark the hits of a page, and nothing else.
void MarkByBareCalls(IHTMLDocument2* pDocument)
{
    wchar_t szWord[sizeof Word / sizeof *Word];
    wchar_t szAttributes[] = L"STYLE=\"color:black; background-color:yellow\"";
    std::copy(std::begin(Word), std::end(Word), szWord);
    const auto spServices = QueryFor<IMarkupServices>(pDocument);
    const auto spContainer = QueryFor<IMarkupContainer>(pDocument);
    ComPtr<IMarkupPointer> spStart;
    ComPtr<IMarkupPointer> spEnd;
    spServices->CreateMarkupPointer(&spStart);
    spServices->CreateMarkupPointer(&spEnd);
    spStart->SetGravity(POINTER_GRAVITY_Right);
    spEnd->SetGravity(POINTER_GRAVITY_Left);
    spStart->MoveToContainer(spContainer.Get(), TRUE);
    spEnd->MoveToContainer(spContainer.Get(), FALSE);
    while (spStart->FindText(szWord, 0, spEnd.Get(), nullptr) == S_OK)
    {
        ComPtr<IHTMLElement> spMark;
        spServices->CreateElement(TAGID_FONT, szAttributes, &spMark);
        spServices->InsertElement(spMark.Get(), spStart.Get(), spEnd.Get());
        spStart->MoveToPointer(spEnd.Get());
    }
    ComPtr<IHTMLFramesCollection2> spFrames;
    long nFrames = 0;
    pDocument->get_frames(&spFrames);
    spFrames->get_length(&nFrames);
}

double TimeHighlight(int nHitsInPage)
{
    const auto spPage = MakePage(nHitsInPage);
    return TimeOf([&] { HighlightFrames(Word, spPage.Get()); });
}

double TimeBareCalls(int nHitsInPage)
{
    const auto spPage = MakePage(nHitsInPage);
    return TimeOf([&] { MarkByBareCalls(spPage.Get()); });
}

void CountMarks(CBenchmark& benchmark)
{
    const auto spPage = MakePage(nHits);
    HighlightFrames(Word, spPage.Get());
    benchmark.Count("marks of 10,000 hits", static_cast<long long>(spPage->GetTextsOf(L"FONT").size()), nHits);
}

void MeasureSearch(CBenchmark& benchmark)
{
    CountMarks(benchmark);
    benchmark.Compare(
        "highlight of 10,000 hits in 1 MB", {.mostRatio = 1.1}, [] { return TimeHighlight(nHits); },
        [] { return TimeBareCalls(nHits); });
    benchmark.Compare(
        "highlight of ten times the text", {.mostRatio = 12}, [] { return TimeHighlight(nHits * nLarger); },
        [] { return TimeHighlight(nHits); });
    CFakeCalls::Get().Reset();
}

const CSubject s_subject("search", MeasureSearch);
} // namespace
