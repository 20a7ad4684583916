#include "bench/markup/MarkupList.h"

#include <algorithm>

namespace
{
constexpr size_t FullLength = 64 * 1024;
}

void CMarkupList::Add(const char* pszOperation, std::initializer_list<int> numbers)
{
    if (!m_lines.empty())
        m_lines += '\n';
    m_lines += pszOperation;
    for (const int nNumber : numbers)
        (m_lines += ' ') += std::to_string(nNumber);
}

int CMarkupList::AddText(const std::wstring& text)
{
    const auto found = std::find(m_texts.begin(), m_texts.end(), text);
    const auto nIndex = found - m_texts.begin();
    if (found == m_texts.end())
        m_texts.push_back(text);
    return static_cast<int>(nIndex);
}

bool CMarkupList::IsFull() const
{
    return m_lines.size() >= FullLength;
}
