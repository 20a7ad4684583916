#pragma once

#include "framework/File.h"

#include <windows.h>

#include <array>
#include <cstddef>
#include <string>

/// A buffered file of text lines. The stream is binary: its text is wide characters, and line ends stand as they are.
/// Reads and writes may follow each other in any order. Errors other than those of Open are thrown as CFileException.
class CStdioFile : public CFile
{
public:
    CStdioFile() = default;
    /// Closes the file; an error that this brings up is lost.
    ~CStdioFile() override;

    /// Writes out what is buffered. The file is closed even when that fails.
    void Close() override;
    UINT Read(void* pBuffer, UINT nCount) override;
    void Write(const void* pBuffer, UINT nCount) override;
    ULONGLONG Seek(LONGLONG offset, UINT nFrom) override;
    ULONGLONG GetPosition() override;

    /// Writes the characters without a terminating null.
    virtual void WriteString(const std::wstring& text);

    /// The next line without its line feed. False at the end of the file.
    virtual bool ReadString(std::wstring& line);

    /// Reads up to and including the next line feed, at most nMax - 1 characters, and puts a null behind them.
    /// The buffer, or null at the end of the file.
    virtual wchar_t* ReadString(wchar_t* lpsz, UINT nMax);

protected:
    /// Reads whole units of text, chars or wide characters, up to and including the next line feed, at most nMax. The
    /// number of units read, 0 at the end of the file. Nulls among them are units like others.
    template <class Unit>
    std::size_t ReadUnits(Unit* pUnits, std::size_t nMax);

private:
    UINT GetUnread() const { return m_nFilled - m_nNext; }
    bool FillTo(UINT nBytes);
    void DropReadAhead();
    void Flush();

    // Bytes read ahead, or bytes that wait to be written, never both.
    std::array<BYTE, 16384> m_buffer;
    UINT m_nNext = 0;
    UINT m_nFilled = 0;
    UINT m_nPending = 0;
};
