#pragma once

#include "framework/FileException.h"
#include "framework/Handles.h"

#include <windows.h>

#include <string>

/// A file of bytes, unbuffered. Errors other than those of Open are thrown as CFileException.
class CFile
{
public:
    enum OpenFlags
    {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
        typeText = 0x4000,
        typeBinary = 0x8000
    };

    enum SeekPosition
    {
        begin = FILE_BEGIN,
        current = FILE_CURRENT,
        end = FILE_END
    };

    CFile() = default;
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;
    virtual ~CFile() = default;

    /// False on failure, with the record filled in when one is given. A file that is open already is closed first.
    virtual bool Open(const std::wstring& fileName, UINT nOpenFlags, CFileException* pError = nullptr);
    virtual void Close();
    bool IsOpen() const { return m_file != nullptr; }

    /// The number of bytes read; fewer than asked for at the end of the file only.
    virtual UINT Read(void* pBuffer, UINT nCount);
    virtual void Write(const void* pBuffer, UINT nCount);

    /// The new position from the start, in bytes.
    virtual ULONGLONG Seek(LONGLONG offset, UINT nFrom);
    virtual ULONGLONG GetPosition();

protected:
    [[noreturn]] void ThrowLastError() const;

private:
    CUniqueKernelHandle m_file;
    std::wstring m_strFileName;
};
