#include "band/ButtonIndex.h"
#include "tests/unit/tools/ToolbarFixture.h"
#include "tools/ButtonSearchWeb.h"

#include <gmock/gmock.h>

#include <array>

using Microsoft::WRL::ComPtr;
using testing::AnyOf;
using testing::Each;

namespace
{
/// The documents of the page under test, as bits: the page has the frames A and C, A has the frame B.
enum EDocuments : unsigned
{
    NoDocument = 0,
    Page = 1,
    FrameA = 2,
    FrameB = 4,
    FrameC = 8,
    AllFrames = FrameA | FrameB | FrameC,
    AllDocuments = Page | AllFrames,
};

constexpr wchar_t Source[] = L"<p>one word</p><p>a wo<b>rd</b> and a word</p>";
constexpr wchar_t Text[] = L"one worda word and a word";

/// Highlight and zoom over a page in which any single call fails.
class PageFailures : public CToolbarTest, public testing::WithParamInterface<HRESULT>
{
protected:
    void ShowPageWithFrames()
    {
        m_documents[0] = &ShowPage(Source);
        for (size_t n = 1; n < m_documents.size(); ++n)
            m_documents[n] = MakeFake<CFakeHtmlDocument>(Source);
        m_documents[0]->AddFrame(m_documents[1].Get());
        m_documents[1]->AddFrame(m_documents[2].Get());
        m_documents[0]->AddFrame(m_documents[3].Get());
    }

    /// The documents for which the condition does not hold.
    template <class Condition>
    unsigned GetDocumentsBut(Condition condition) const
    {
        unsigned documents = NoDocument;
        for (size_t n = 0; n < m_documents.size(); ++n)
            if (!condition(*m_documents[n].Get()))
                documents |= 1u << n;
        return documents;
    }

    /// The page, its browser, the window and this test hold the documents, and nobody else.
    void ExpectAllReleased() const
    {
        for (const auto& spDocument : m_documents)
        {
            EXPECT_EQ(spDocument.Get() == m_spPage.Get() ? 3u : 2u, spDocument->GetReferences());
            EXPECT_EQ(Text, spDocument->GetText());
        }
    }

    std::array<ComPtr<CFakeHtmlDocument>, 4> m_documents;
};

bool IsMarked(const CFakeHtmlDocument& document)
{
    return document.GetTextsOf(L"FONT").size() == 3;
}

bool HasMark(const CFakeHtmlDocument& document)
{
    return !document.GetTextsOf(L"FONT").empty();
}

/// Whether the outermost wrapper has the zoom and is the only one.
bool IsZoomed(const CFakeHtmlDocument& document, const wchar_t* pszZoom)
{
    const auto wrappers = document.GetMarkup()->GetElements(L"DIV");
    return wrappers.size() == 1 && wrappers[0]->style[L"zoom"] == pszZoom;
}

std::string GetFailureName(const testing::TestParamInfo<HRESULT>& info)
{
    switch (info.param)
    {
    case E_FAIL:
        return "Fail";
    case E_ACCESSDENIED:
        return "AccessDenied";
    case E_OUTOFMEMORY:
        return "OutOfMemory";
    case RPC_E_DISCONNECTED:
        return "Disconnected";
    default:
        return "SuccessWithNothing";
    }
}
} // namespace

INSTANTIATE_TEST_SUITE_P(Each, PageFailures,
                         testing::Values(E_FAIL, E_ACCESSDENIED, E_OUTOFMEMORY, RPC_E_DISCONNECTED, S_OK),
                         GetFailureName);

TEST_P(PageFailures, EndHighlightInOneDocumentOrBelowIt)
{
    size_t nFailures = 0;
    ForEachFailingCall(GetParam(), [&] {
        ShowPageWithFrames();
        GetItem(SearchInPageIndex).Search(L"word");
        ExpectAllReleased();
        nFailures += CFakeCalls::Get().HasFailed();
        if (GetParam() == S_OK) // where a search claims a hit, what is marked is the rest of the document
            return;
        EXPECT_THAT(GetDocumentsBut(IsMarked),
                    AnyOf(+NoDocument, +Page, +FrameA, +FrameB, +FrameC, FrameA | FrameB, +AllFrames, +AllDocuments));
        for (const auto& spDocument : m_documents)
            EXPECT_THAT(spDocument->GetTextsOf(L"FONT"), Each(L"word"));
    });
    EXPECT_GT(nFailures, 90u);
}

TEST_P(PageFailures, LeaveHighlightFitForTheNextTime)
{
    ForEachFailingCall(GetParam(), [&] {
        ShowPageWithFrames();
        GetItem(SearchInPageIndex).Search(L"word");
        if (!CFakeCalls::Get().HasFailed())
            return;
        EXPECT_TRUE(GetItem(SearchInPageIndex).Search(L"and"));
        EXPECT_EQ(+NoDocument, GetDocumentsBut(HasMark));
    });
}

TEST_P(PageFailures, EndZoomInADocumentAndItsFrames)
{
    size_t nFailures = 0;
    ForEachFailingCall(GetParam(), [&] {
        ShowPageWithFrames();
        GetItem(ZoomIndex).Search(L"150");
        ExpectAllReleased();
        nFailures += CFakeCalls::Get().HasFailed();
        if (GetParam() == S_OK) // what claims to be done may stand undone in any document
            return;
        const auto isZoomed = [](const CFakeHtmlDocument& document) { return IsZoomed(document, L"150%"); };
        // Frame A alone: a root that doesn't tell that it is a body is taken for a frameset, which its parent scales.
        EXPECT_THAT(GetDocumentsBut(isZoomed),
                    AnyOf(+NoDocument, +FrameA, +FrameB, +FrameC, FrameA | FrameB, +AllFrames, +AllDocuments));
    });
    EXPECT_GT(nFailures, 90u);
}

TEST_P(PageFailures, LeaveZoomFitForTheNextTime)
{
    ForEachFailingCall(GetParam(), [&] {
        ShowPageWithFrames();
        GetItem(ZoomIndex).Search(L"150");
        if (!CFakeCalls::Get().HasFailed())
            return;
        EXPECT_TRUE(GetItem(ZoomIndex).Search(L"80"));
        EXPECT_EQ(+NoDocument, GetDocumentsBut([](const auto& document) { return IsZoomed(document, L"80%"); }));
    });
}
