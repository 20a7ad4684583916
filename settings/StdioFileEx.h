#pragma once

#include "framework/StdioFile.h"

#include <windows.h>

#include <string>
#include <string_view>

/// A text file whose encoding its byte-order mark tells: UTF-16 little-endian when it starts with FF FE, otherwise text
/// of a code page. The stream is always binary, so line ends are written as the caller gives them. Errors other than
/// those of Open are thrown as CFileException.
class CStdioFileEx : public CStdioFile
{
public:
    /// Open flag: what is written is UTF-16.
    static constexpr UINT typeUnicode = 0x200000;

    /// The code page that stands for the system's ANSI code page.
    static constexpr int SystemCodePage = -1;

    CStdioFileEx() = default;
    /// For a file without a mark, or one to be written that isn't UTF-16.
    explicit CStdioFileEx(int nCodePage) : codePage(nCodePage) {}

    /// What is written for a character that the code page lacks: "#" unless told.
    void SetFallbackChar(char character) { fallbackChar = character; }
    /// Whether a mark is written at the start of a file that has one in its encoding: yes unless told.
    void SetWriteMark(bool bWrite) { writeMark = bWrite; }

    /// A file that is opened for reading tells by its mark whether it is UTF-16; the flags don't matter then.
    bool Open(const std::wstring& fileName, UINT nOpenFlags, CFileException* pError = nullptr) override;
    ULONGLONG Seek(LONGLONG offset, UINT nFrom) override;

    /// Writes the text, at the start of the file behind the mark of its encoding.
    void WriteString(const std::wstring& text) override;

    /// The next line without its line end and up to its first null. False at the end of the file, and when the memory
    /// for a long line runs out. A line that can't be converted is empty. In UTF-8 the first three bytes count as the
    /// mark.
    bool ReadString(std::wstring& line) override;
    wchar_t* ReadString(wchar_t* lpsz, UINT nMax) override;

    bool IsUnicodeText() const { return isUnicodeText; }

    /// Whether the file can be read and starts with FF FE. Throws nothing.
    static bool HasByteOrderMark(const std::wstring& path);

private:
    static constexpr int LineLength = 4096;

    bool WritesUnicode() const { return (openFlags & typeUnicode) != 0; }
    UINT GetCodePage() const { return codePage == SystemCodePage ? GetACP() : codePage; }
    void DetectEncoding();
    void StepOverMark();
    void WriteMark();
    bool ReadWideLine(std::wstring& line);
    bool ReadNarrowLine(std::wstring& line);
    template <class Unit>
    std::basic_string_view<Unit> ReadLine(Unit* buffer, std::basic_string<Unit>& longLine);
    void ConvertToWide(std::string_view bytes, std::wstring& text);
    void WriteNarrow(const std::wstring& text);
    int ConvertToNarrow(const std::wstring& text, char* bytes, int size) const;

    bool isUnicodeText = false;
    UINT openFlags = 0;
    int codePage = SystemCodePage;
    char fallbackChar = '#';
    bool writeMark = true;
    wchar_t wideBuffer[LineLength];
    char narrowBuffer[LineLength];
    bool atStart = true;
};
