#include "tests/fakes/page/PageMarkup.h"

#include "tests/fakes/page/CaseFolding.h"

#include <algorithm>
#include <array>
#include <cwctype>

namespace
{
template <size_t nTags>
bool IsOneOf(const std::array<std::wstring_view, nTags>& tags, std::wstring_view strTag)
{
    return std::find(tags.begin(), tags.end(), strTag) != tags.end();
}

bool EndsWord(const CMarkupElement& element)
{
    static constexpr std::array<std::wstring_view, 22> words = {
        L"ADDRESS", L"BODY", L"BR", L"DIV", L"H1", L"H2",  L"H3",     L"H4",    L"H5", L"H6",       L"HR",
        L"IFRAME",  L"IMG",  L"LI", L"OL",  L"P",  L"PRE", L"SELECT", L"TABLE", L"TD", L"TEXTAREA", L"UL"};
    return IsOneOf(words, element.strTag);
}

bool IsHidden(const CMarkupElement& element)
{
    static constexpr std::array<std::wstring_view, 6> hidden = {L"HEAD",  L"SCRIPT", L"SELECT",
                                                                L"STYLE", L"TITLE",  L"TEXTAREA"};
    return IsOneOf(hidden, element.strTag);
}

constexpr wchar_t NoBreakSpace = 0xA0;

bool IsBlank(wchar_t ch)
{
    return iswspace(ch) || ch == NoBreakSpace;
}

/// The text in small letters, any blanks in a row as one.
std::wstring MakePattern(std::wstring_view strText)
{
    std::wstring strPattern;
    for (const wchar_t ch : strText)
        if (!IsBlank(ch))
            strPattern += FoldCase(ch);
        else if (!strPattern.ends_with(L' '))
            strPattern += L' ';
    return strPattern;
}
} // namespace

/// Walks over the characters that a reader sees. The border of a block counts as a character that matches nothing.
class CPageMarkup::CCursor
{
public:
    CCursor(MarkupPosition piece, MarkupPosition end) : m_piece(piece), m_end(end) { Settle(); }

    bool IsAtEnd() const { return m_piece == m_end; }
    /// A blank stands for any.
    bool Is(wchar_t chFolded) const
    {
        if (m_piece->spElement != nullptr)
            return false;
        const wchar_t ch = m_piece->strText[m_nOffset];
        return chFolded == L' ' ? IsBlank(ch) : FoldCase(ch) == chFolded;
    }
    void Advance()
    {
        ++m_nOffset;
        Settle();
    }

    MarkupPosition GetPiece() const { return m_piece; }
    size_t GetOffset() const { return m_nOffset; }

private:
    /// Goes on to the next character, if this isn't one.
    void Settle()
    {
        while (m_piece != m_end && m_nOffset >= GetWidth())
        {
            if (m_piece->spElement != nullptr && !m_piece->bIsEnd && IsHidden(*m_piece->spElement))
                m_piece = m_piece->spElement->end;
            ++m_piece;
            m_nOffset = 0;
        }
    }

    size_t GetWidth() const
    {
        return m_piece->spElement != nullptr ? EndsWord(*m_piece->spElement) : m_piece->strText.size();
    }

    MarkupPosition m_piece;
    MarkupPosition m_end;
    size_t m_nOffset = 0;
};

void CPageMarkup::AppendText(std::wstring strText)
{
    m_texts.push_back(std::move(strText));
    m_pieces.push_back({m_texts.back(), nullptr});
}

void CPageMarkup::AppendTag(const std::shared_ptr<CMarkupElement>& spElement, bool bIsEnd)
{
    m_pieces.push_back({{}, spElement, bIsEnd});
    (bIsEnd ? spElement->end : spElement->begin) = std::prev(m_pieces.end());
    spElement->bIsInPage = true;
}

bool CPageMarkup::IsInOrder(MarkupPosition start, MarkupPosition end) const
{
    while (start != end && start != m_pieces.end())
        ++start;
    return start == end;
}

void CPageMarkup::Insert(const std::shared_ptr<CMarkupElement>& spElement, MarkupPosition start, MarkupPosition end)
{
    spElement->end = m_pieces.insert(end, {{}, spElement, true});
    spElement->begin = m_pieces.insert(start == end ? spElement->end : start, {{}, spElement, false});
    spElement->bIsInPage = true;
    MoveGaps(start, spElement->begin);
    MoveGaps(end, spElement->end);
}

void CPageMarkup::MoveGaps(MarkupPosition place, MarkupPosition inserted)
{
    for (CMarkupGap* pGap : m_gaps)
        if (pGap->next == place && !pGap->bKeepsRight)
            pGap->next = inserted;
}

std::optional<std::pair<MarkupPosition, MarkupPosition>> CPageMarkup::Find(std::wstring_view strText,
                                                                           MarkupPosition start)
{
    const std::wstring strPattern = MakePattern(strText);
    for (CCursor cursor(start, m_pieces.end()); !cursor.IsAtEnd(); cursor.Advance())
    {
        const auto last = Match(cursor, strPattern);
        if (!last)
            continue;
        // In this order: what stands before a split keeps its place.
        const MarkupPosition end = Split(last->GetPiece(), last->GetOffset() + 1);
        return std::pair(Split(cursor.GetPiece(), cursor.GetOffset()), end);
    }
    return std::nullopt;
}

/// The last character of what matches the pattern at the cursor.
std::optional<CPageMarkup::CCursor> CPageMarkup::Match(CCursor cursor, std::wstring_view strPattern)
{
    std::optional<CCursor> last;
    for (const wchar_t ch : strPattern)
    {
        if (cursor.IsAtEnd() || !cursor.Is(ch))
            return std::nullopt;
        do
        {
            last = cursor;
            cursor.Advance();
        } while (ch == L' ' && !cursor.IsAtEnd() && cursor.Is(ch));
    }
    return last;
}

/// The piece that begins at the offset.
MarkupPosition CPageMarkup::Split(MarkupPosition piece, size_t nOffset)
{
    if (nOffset == 0)
        return piece;
    const MarkupPosition next = std::next(piece);
    if (nOffset == piece->strText.size())
        return next;
    const std::wstring_view strRest = piece->strText.substr(nOffset);
    piece->strText = piece->strText.substr(0, nOffset);
    return m_pieces.insert(next, {strRest, nullptr});
}

std::shared_ptr<CMarkupElement> CPageMarkup::GetElement(MarkupPosition start, MarkupPosition end, size_t n) const
{
    for (; start != end; ++start)
        if (start->spElement != nullptr && !start->bIsEnd && n-- == 0)
            return start->spElement;
    return nullptr;
}

std::shared_ptr<CMarkupElement> CPageMarkup::FindElement(
    const std::function<bool(const CMarkupElement&)>& condition) const
{
    for (const CMarkupPiece& piece : m_pieces)
        if (piece.spElement != nullptr && condition(*piece.spElement))
            return piece.spElement;
    return nullptr;
}

std::vector<std::shared_ptr<CMarkupElement>> CPageMarkup::GetElements(std::wstring_view strTag) const
{
    std::vector<std::shared_ptr<CMarkupElement>> elements;
    for (const CMarkupPiece& piece : m_pieces)
        if (piece.spElement != nullptr && !piece.bIsEnd && piece.spElement->strTag == strTag)
            elements.push_back(piece.spElement);
    return elements;
}

std::wstring CPageMarkup::GetText(MarkupPosition start, MarkupPosition end) const
{
    std::wstring strText;
    for (; start != end; ++start)
        strText += start->strText;
    return strText;
}
