#pragma once

#include <deque>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class CPageMarkup;
struct CMarkupPiece;
using MarkupPieces = std::list<CMarkupPiece>;
using MarkupPosition = MarkupPieces::iterator; ///< the piece behind the place

/// The properties of a style, by their names in small letters.
using StyleProperties = std::map<std::wstring, std::wstring>;

/// An element of a page. It need not stand in the page yet.
struct CMarkupElement
{
    std::wstring strTag;                             ///< in capitals
    std::map<std::wstring, std::wstring> attributes; ///< without the style; names in small letters
    StyleProperties style;
    StyleProperties runtimeStyle;
    bool bIsInPage = false;
    MarkupPosition begin; ///< its tags, once it stands in the page
    MarkupPosition end;
};

/// A run of text or a tag. The tags of two elements may overlap.
struct CMarkupPiece
{
    std::wstring_view strText;
    std::shared_ptr<CMarkupElement> spElement; ///< null for text
    bool bIsEnd = false;
};

/// A place between two characters or tags, which holds fast to its neighbour on one side when something comes in there.
struct CMarkupGap
{
    MarkupPosition next;
    bool bKeepsRight = false;
};

/// The text and the elements of a page, in the order of its source.
class CPageMarkup
{
public:
    CPageMarkup() = default;
    CPageMarkup(const CPageMarkup&) = delete;
    CPageMarkup& operator=(const CPageMarkup&) = delete;

    void AppendText(std::wstring strText);
    void AppendTag(const std::shared_ptr<CMarkupElement>& spElement, bool bIsEnd);

    MarkupPosition GetBegin() { return m_pieces.begin(); }
    MarkupPosition GetEnd() { return m_pieces.end(); }
    /// Whether `end` is `start` or stands behind it.
    bool IsInOrder(MarkupPosition start, MarkupPosition end) const;

    /// Puts the element, which must not stand in the page, around all that is between two places.
    void Insert(const std::shared_ptr<CMarkupElement>& spElement, MarkupPosition start, MarkupPosition end);

    /// The first hit behind a place: directly before its first character, directly behind its last. Case is ignored,
    /// and blanks match any; the text may run through inline elements but not out of a block. What a reader doesn't see
    /// is left out.
    std::optional<std::pair<MarkupPosition, MarkupPosition>> Find(std::wstring_view strText, MarkupPosition start);

    /// The n-th element that begins between two places, or null.
    std::shared_ptr<CMarkupElement> GetElement(MarkupPosition start, MarkupPosition end, size_t n) const;
    /// The first element for which the condition holds, or null.
    std::shared_ptr<CMarkupElement> FindElement(const std::function<bool(const CMarkupElement&)>& condition) const;
    /// The elements with the tag, in order.
    std::vector<std::shared_ptr<CMarkupElement>> GetElements(std::wstring_view strTag) const;
    std::wstring GetText(MarkupPosition start, MarkupPosition end) const;

    /// Holds the gap up to date until it is dropped.
    void Watch(CMarkupGap& gap) { m_gaps.push_back(&gap); }
    void Drop(CMarkupGap& gap) { std::erase(m_gaps, &gap); }

private:
    class CCursor;

    std::optional<CCursor> Match(CCursor cursor, std::wstring_view strPattern);
    MarkupPosition Split(MarkupPosition piece, size_t nOffset);
    void MoveGaps(MarkupPosition place, MarkupPosition inserted);

    std::deque<std::wstring> m_texts; ///< the pieces borrow from it
    MarkupPieces m_pieces;
    std::vector<CMarkupGap*> m_gaps;
};
