#include "bench/markup/MarkupList.h"

#include <algorithm>

namespace
{
constexpr size_t FullSize = 20000; // the page lays itself out between two messages
constexpr size_t LongestTurn = 8;
} // namespace

void CMarkupList::Add(const char* pszOperation, std::initializer_list<int> numbers)
{
    m_operations.push_back(MakeOperation(pszOperation, numbers));
}

CMarkupList::COperation CMarkupList::MakeOperation(std::string_view name, std::initializer_list<int> numbers)
{
    COperation operation = {name, std::min(numbers.size(), MostNumbers)};
    std::copy_n(numbers.begin(), operation.nNumbers, operation.numbers.begin());
    return operation;
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
    return m_operations.size() >= FullSize;
}

std::string CMarkupList::WriteLines() const
{
    std::string lines;
    for (size_t n = 0; n < m_operations.size();)
    {
        const CTurns turns = FindTurns(n);
        for (size_t nOperation = n; nOperation < n + turns.nLength; ++nOperation)
            WriteLine(lines, m_operations[nOperation]);
        if (turns.nFurther > 0)
            WriteLine(lines,
                      MakeOperation("repeat", {static_cast<int>(turns.nLength), static_cast<int>(turns.nFurther)}));
        n += turns.nLength * (1 + turns.nFurther);
    }
    return lines;
}

void CMarkupList::WriteLine(std::string& lines, const COperation& operation)
{
    if (!lines.empty())
        lines += '\n';
    lines += operation.name;
    for (size_t n = 0; n < operation.nNumbers; ++n)
        (lines += ' ') += std::to_string(operation.numbers[n]);
}

CMarkupList::CTurns CMarkupList::FindTurns(size_t nFrom) const
{
    for (size_t nLength = 1; nLength <= LongestTurn; ++nLength)
        if (const size_t nFurther = CountTurns(nFrom, nLength))
            return {nLength, nFurther};
    return {};
}

/// How often as many operations as the length says are repeated behind themselves.
size_t CMarkupList::CountTurns(size_t nFrom, size_t nLength) const
{
    size_t nSame = 0;
    while (nFrom + nLength + nSame < m_operations.size() &&
           IsSameForNext(m_operations[nFrom + nSame], m_operations[nFrom + nLength + nSame]))
        ++nSame;
    return nSame / nLength;
}

/// Whether the second does with the next elements what the first did.
bool CMarkupList::IsSameForNext(const COperation& first, const COperation& second)
{
    return first.name == second.name &&
           std::equal(first.numbers.begin(), first.numbers.end(), second.numbers.begin(),
                      [](int nFirst, int nSecond) { return nSecond == (nFirst < 0 ? nFirst - 1 : nFirst); });
}
