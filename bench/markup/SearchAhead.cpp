#include "bench/markup/SearchAhead.h"

void CSearchAhead::OnFound(const std::wstring& text, int nStart, int nEnd, int nFurther)
{
    m_state = EState::AtHit;
    m_text = text;
    m_nStart = nStart;
    m_nEnd = nEnd;
    m_nFurther = nFurther;
}

void CSearchAhead::OnMoved(int nPointer, int nTo)
{
    if (IsPair(nPointer, nTo) && m_state == EState::AtHit)
        m_state = EState::BehindHit;
    else if (nPointer == m_nStart || nPointer == m_nEnd)
        Forget();
}

bool CSearchAhead::IsHit(int nStart, int nEnd) const
{
    return m_state == EState::AtHit && IsPair(nStart, nEnd);
}

std::optional<bool> CSearchAhead::TakeNext(const std::wstring& text, int nStart, int nEnd)
{
    if (m_state != EState::BehindHit || !IsPair(nStart, nEnd) || text != m_text)
        return std::nullopt;
    if (m_nFurther == 0)
        return false;
    --m_nFurther;
    m_state = EState::AtHit;
    return true;
}
