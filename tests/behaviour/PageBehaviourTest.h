#pragma once

#include "tests/behaviour/PageUnderTest.h"

#include <gtest/gtest.h>

/// What the tools rely on in a page's document. A test program that has a kind of page instantiates the suite with it:
/// INSTANTIATE_TEST_SUITE_P(Fake, PageBehaviour, testing::Values(CPageKind{...})).
class PageBehaviour : public testing::TestWithParam<CPageKind>
{
protected:
    PageBehaviour() : m_pPage(GetParam().create()) {}

    /// Loads a page and makes two pointers in it: the first at its start, the second at its end, with the gravity that
    /// keeps both inside what is put around them.
    void Load(const std::wstring& strSource);

    /// Loads a page with frames. Its document alone is there for the test.
    void LoadWithFrames(const std::vector<std::wstring>& sources, std::optional<size_t> nForeign = {});

    /// Asks for the n-th frame of the page.
    HRESULT GetFrame(long nIndex, VARIANT* pvFrame);
    /// Asks for the document of the n-th frame.
    HRESULT GetFrameDocument(long nIndex, IHTMLDocument2** ppDocument);

    Microsoft::WRL::ComPtr<IHTMLElement> GetBody();
    Microsoft::WRL::ComPtr<IHTMLElement> GetElementInBody(long nIndex);
    Microsoft::WRL::ComPtr<IHTMLElement> MakeElement(ELEMENT_TAG_ID eTag, std::wstring strAttributes);

    /// Looks behind the first pointer; a hit is then between the two.
    HRESULT Find(std::wstring strText);
    /// Puts a new element around what is between the pointers.
    HRESULT Wrap(ELEMENT_TAG_ID eTag, const std::wstring& strAttributes = L"");
    /// Puts a FONT around the first hit behind the first pointer.
    void Mark(const std::wstring& strText);
    /// The texts of the marks in the page, one behind the other.
    std::wstring GetMarkedText();

    std::unique_ptr<IPageUnderTest> m_pPage;
    Microsoft::WRL::ComPtr<IHTMLDocument2> m_spDocument;
    Microsoft::WRL::ComPtr<IMarkupServices> m_spServices;
    Microsoft::WRL::ComPtr<IMarkupContainer> m_spContainer;
    Microsoft::WRL::ComPtr<IMarkupPointer> m_spStart;
    Microsoft::WRL::ComPtr<IMarkupPointer> m_spEnd;
};
