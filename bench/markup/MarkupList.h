#pragma once

#include <initializer_list>
#include <string>
#include <vector>

/// Operations of markup.js in the order in which they are to be done.
class CMarkupList
{
public:
    /// Appends an operation with the numbers that it needs.
    void Add(const char* pszOperation, std::initializer_list<int> numbers);
    /// The number that stands for a text in the operations of this list.
    int AddText(const std::wstring& text);

    bool IsEmpty() const { return m_lines.empty(); }
    /// Whether it is long enough for a message of its own.
    bool IsFull() const;

    const std::string& GetLines() const { return m_lines; }
    const std::vector<std::wstring>& GetTexts() const { return m_texts; }

private:
    std::string m_lines;
    std::vector<std::wstring> m_texts;
};
