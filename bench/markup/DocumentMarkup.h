#pragma once

#include "bench/markup/MarkupList.h"
#include "bench/markup/SearchAhead.h"
#include "bench/protocol/Json.h"
#include "framework/Wnd.h"

#include <windows.h>

#include <initializer_list>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

class CDocument;

/// The way of a document's markup services to the page: everything that they do to it and ask of it passes here. What
/// needs no answer waits until anything is asked of the document, until there is much of it, or until the caller is
/// back in its message loop, and then goes to the page as one message.
class CDocumentMarkup : public CWnd
{
public:
    /// The document owns it.
    explicit CDocumentMarkup(CDocument& document) : m_document(document) {}

    /// Does an operation of markup.js before anything else is asked of the page.
    void Do(const char* pszOperation, std::initializer_list<int> numbers);
    /// Asks for an operation's answer; none when the document is on show no longer or the operation failed.
    std::optional<Json> Ask(const char* pszOperation, std::initializer_list<int> numbers);
    /// The number of a text for the operation that is done or asked for next.
    int AddText(const std::wstring& text) { return m_list.AddText(text); }

    /// Sends what waits.
    void Flush();

    /// Makes an element that doesn't stand in the page yet, and gives its number; none when the page can't make it.
    std::optional<int> MakeElement(const std::wstring& tag, const std::wstring& attributes);
    /// The tag of an element that was made and didn't get into the page yet; null for any other.
    const std::wstring* FindNew(int nElement) const;
    void OnInserted(int nElement) { m_newElements.erase(nElement); }
    /// Nobody holds the element's object any longer.
    void ReleaseElement(int nElement);

    int MakePointerNumber() { return ++m_nLastPointer; }
    CSearchAhead& GetSearch() { return m_search; }

private:
    DECLARE_MESSAGE_MAP()

    LRESULT OnFlush(WPARAM wParam, LPARAM lParam);
    Json TakeList();

    CDocument& m_document;
    CMarkupList m_list;
    bool m_bFlushPosted = false;
    CSearchAhead m_search;
    std::map<int, std::wstring> m_newElements;                ///< the tags of those that aren't in the page yet
    std::set<std::pair<std::wstring, std::wstring>> m_models; ///< tags and attributes that the page has taken once
    int m_nLastPointer = 0;
    int m_nLastMade = 0; ///< counts down: the numbers above 0 are the page's
};
