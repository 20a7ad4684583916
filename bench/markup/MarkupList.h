#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// Operations of markup.js in the order in which they are to be done.
class CMarkupList
{
public:
    /// Appends an operation, named by a literal, with the numbers that it needs.
    void Add(const char* pszOperation, std::initializer_list<int> numbers);
    /// The number that stands for a text in the operations of this list.
    int AddText(const std::wstring& text);

    bool IsEmpty() const { return m_operations.empty(); }
    /// Whether it is long enough for a message of its own.
    bool IsFull() const;

    /// A line for each operation. What is done again and again, each time for the next of the new elements, whose
    /// numbers count down from -1, stands there once, with a line that tells how many operations are repeated and how
    /// often.
    std::string WriteLines() const;
    const std::vector<std::wstring>& GetTexts() const { return m_texts; }

private:
    static constexpr size_t MostNumbers = 3;

    struct COperation
    {
        std::string_view name;
        size_t nNumbers = 0;
        std::array<int, MostNumbers> numbers = {}; ///< in place, since a long search makes very many operations
    };
    /// Operations that are done once and then again.
    struct CTurns
    {
        size_t nLength = 1;
        size_t nFurther = 0;
    };

    static COperation MakeOperation(std::string_view name, std::initializer_list<int> numbers);
    static void WriteLine(std::string& lines, const COperation& operation);
    static bool IsSameForNext(const COperation& first, const COperation& second);
    size_t CountTurns(size_t nFrom, size_t nLength) const;
    CTurns FindTurns(size_t nFrom) const;

    std::vector<COperation> m_operations;
    std::vector<std::wstring> m_texts;
};
