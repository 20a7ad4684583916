#pragma once

#include <optional>
#include <string>

/// What is known of a search before it is asked for. A search answers how many hits follow the one that it found; as
/// long as the caller takes them one by one, and changes nothing between them but to put new inline elements around
/// them, the next answers are known.
class CSearchAhead
{
public:
    /// A search found a hit, which is between two pointers now.
    void OnFound(const std::wstring& text, int nStart, int nEnd, int nFurther);
    /// A pointer went where another one is.
    void OnMoved(int nPointer, int nTo);
    /// Anything else happened that may change where the next hit is.
    void Forget() { m_state = EState::Unknown; }

    /// Whether both pointers stand around the hit, so that an element can be put there.
    bool IsHit(int nStart, int nEnd) const;

    /// Whether the search will find something, if that is known. When it does, the pointers count as moved there.
    std::optional<bool> TakeNext(const std::wstring& text, int nStart, int nEnd);

private:
    enum class EState
    {
        Unknown,
        AtHit,     ///< the pointers stand around a hit
        BehindHit, ///< both stand at its end
    };

    bool IsPair(int nStart, int nEnd) const { return nStart == m_nStart && nEnd == m_nEnd; }

    EState m_state = EState::Unknown;
    std::wstring m_text;
    int m_nStart = 0;
    int m_nEnd = 0;
    int m_nFurther = 0;
};
