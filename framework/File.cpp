#include "framework/File.h"

namespace
{
constexpr UINT AccessMask = CFile::modeWrite | CFile::modeReadWrite;
constexpr UINT ShareMask = CFile::shareDenyRead | CFile::shareDenyNone;

DWORD GetAccess(UINT nOpenFlags)
{
    switch (nOpenFlags & AccessMask)
    {
    case CFile::modeWrite:
        return GENERIC_WRITE;
    case CFile::modeReadWrite:
        return GENERIC_READ | GENERIC_WRITE;
    default:
        return GENERIC_READ;
    }
}

DWORD GetSharing(UINT nOpenFlags)
{
    switch (nOpenFlags & ShareMask)
    {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default:
        return 0;
    }
}

DWORD GetCreation(UINT nOpenFlags)
{
    if (!(nOpenFlags & CFile::modeCreate))
        return OPEN_EXISTING;
    return nOpenFlags & CFile::modeNoTruncate ? OPEN_ALWAYS : CREATE_ALWAYS;
}
} // namespace

bool CFile::Open(const std::wstring& fileName, UINT nOpenFlags, CFileException* pError)
{
    Close();
    m_strFileName = fileName;
    const HANDLE hFile = CreateFileW(fileName.c_str(), GetAccess(nOpenFlags), GetSharing(nOpenFlags), nullptr,
                                     GetCreation(nOpenFlags), FILE_ATTRIBUTE_NORMAL, nullptr);
    if (hFile != INVALID_HANDLE_VALUE)
        m_file.reset(hFile);
    else if (pError != nullptr)
        *pError = CFileException(GetLastError(), fileName);
    return IsOpen();
}

void CFile::Close()
{
    m_file.reset();
}

UINT CFile::Read(void* pBuffer, UINT nCount)
{
    DWORD nRead = 0;
    if (!ReadFile(m_file.get(), pBuffer, nCount, &nRead, nullptr))
        ThrowLastError();
    return nRead;
}

void CFile::Write(const void* pBuffer, UINT nCount)
{
    DWORD nWritten = 0;
    if (!WriteFile(m_file.get(), pBuffer, nCount, &nWritten, nullptr))
        ThrowLastError();
    if (nWritten != nCount)
        throw CFileException(ERROR_DISK_FULL, m_strFileName);
}

ULONGLONG CFile::Seek(LONGLONG offset, UINT nFrom)
{
    LARGE_INTEGER distance;
    LARGE_INTEGER position;
    distance.QuadPart = offset;
    if (!SetFilePointerEx(m_file.get(), distance, &position, nFrom))
        ThrowLastError();
    return position.QuadPart;
}

ULONGLONG CFile::GetPosition()
{
    return CFile::Seek(0, current);
}

void CFile::ThrowLastError() const
{
    throw CFileException(GetLastError(), m_strFileName);
}
