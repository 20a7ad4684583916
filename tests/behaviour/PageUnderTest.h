#pragma once

#include <windows.h>
#include <mshtml.h>
#include <wrl/client.h>

#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

/// A page as the behaviour tests load it and look at it, whatever stands behind it: a fake or a real engine.
class IPageUnderTest
{
public:
    virtual ~IPageUnderTest() = default;

    /// Loads a page; the source is that of a BODY or FRAMESET, or of a body's content.
    virtual Microsoft::WRL::ComPtr<IHTMLDocument2> Load(const std::wstring& strSource) = 0;
    /// Loads a page that has a frame for each of the sources. One of them may be of another origin.
    virtual Microsoft::WRL::ComPtr<IHTMLDocument2> LoadWithFrames(const std::vector<std::wstring>& sources,
                                                                  std::optional<size_t> nForeign = {}) = 0;

    // What the page itself says, not through the interfaces that are tested:

    /// All characters in the body, without blanks at the ends.
    virtual std::wstring GetText() = 0;
    /// The text in each element of a kind, in order. An element that can't stand across the border of another may be
    /// several.
    virtual std::vector<std::wstring> GetTextsOf(const std::wstring& strTag) = 0;
    /// A property of the style that an element has of its own, by the element's id. Empty when it has none.
    virtual std::wstring GetStyle(const std::wstring& strId, const std::wstring& strProperty) = 0;
    /// The ids of the elements in the body, in order; empty texts for those without.
    virtual std::vector<std::wstring> GetIds() = 0;
};

/// A kind of page, with its name.
struct CPageKind
{
    const char* pszName;
    std::function<std::unique_ptr<IPageUnderTest>()> create;
};

inline void PrintTo(const CPageKind& kind, std::ostream* pStream)
{
    *pStream << kind.pszName;
}
