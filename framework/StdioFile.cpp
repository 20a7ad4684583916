#include "framework/StdioFile.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace
{
/// Copies units, which need not be aligned, up to and including the first line feed. How many were copied.
template <class Unit>
std::size_t CopyLine(const BYTE* pBytes, std::size_t nMax, Unit* pUnits)
{
    for (std::size_t n = 0; n < nMax; ++n)
    {
        std::memcpy(&pUnits[n], pBytes + n * sizeof(Unit), sizeof(Unit));
        if (pUnits[n] == Unit('\n'))
            return n + 1;
    }
    return nMax;
}
} // namespace

CStdioFile::~CStdioFile()
{
    try
    {
        CStdioFile::Close();
    }
    catch (const CFileException&)
    {
    }
}

void CStdioFile::Close()
{
    try
    {
        Flush();
    }
    catch (const CFileException&)
    {
        CFile::Close();
        throw;
    }
    m_nNext = m_nFilled = 0;
    CFile::Close();
}

UINT CStdioFile::Read(void* pBuffer, UINT nCount)
{
    auto* pNext = static_cast<BYTE*>(pBuffer);
    UINT nMissing = nCount;
    while (nMissing > 0 && FillTo(1))
    {
        const UINT nChunk = std::min(nMissing, GetUnread());
        pNext = std::copy_n(&m_buffer[m_nNext], nChunk, pNext);
        m_nNext += nChunk;
        nMissing -= nChunk;
    }
    return nCount - nMissing;
}

void CStdioFile::Write(const void* pBuffer, UINT nCount)
{
    if (!IsOpen())
        throw CFileException(ERROR_INVALID_HANDLE, {});
    DropReadAhead();
    if (nCount > m_buffer.size() - m_nPending)
        Flush();
    if (nCount > m_buffer.size())
        return CFile::Write(pBuffer, nCount);
    std::copy_n(static_cast<const BYTE*>(pBuffer), nCount, m_buffer.begin() + m_nPending);
    m_nPending += nCount;
}

ULONGLONG CStdioFile::Seek(LONGLONG offset, UINT nFrom)
{
    DropReadAhead();
    Flush();
    return CFile::Seek(offset, nFrom);
}

ULONGLONG CStdioFile::GetPosition()
{
    return CFile::GetPosition() - GetUnread() + m_nPending;
}

void CStdioFile::WriteString(const std::wstring& text)
{
    Write(text.data(), static_cast<UINT>(text.size() * sizeof(wchar_t)));
}

bool CStdioFile::ReadString(std::wstring& line)
{
    wchar_t szPart[128];
    line.clear();
    std::size_t nRead = 0;
    while (!line.ends_with(L'\n') && (nRead = ReadUnits(szPart, std::size(szPart))) > 0)
        line.append(szPart, nRead);
    const bool bRead = !line.empty();
    if (line.ends_with(L'\n'))
        line.pop_back();
    return bRead;
}

wchar_t* CStdioFile::ReadString(wchar_t* lpsz, UINT nMax)
{
    const std::size_t nRead = ReadUnits(lpsz, nMax - 1);
    lpsz[nRead] = L'\0';
    return nRead > 0 ? lpsz : nullptr;
}

template <class Unit>
std::size_t CStdioFile::ReadUnits(Unit* pUnits, std::size_t nMax)
{
    std::size_t nRead = 0;
    while (nRead < nMax && FillTo(sizeof(Unit)))
    {
        const std::size_t nChunk = std::min<std::size_t>(nMax - nRead, GetUnread() / sizeof(Unit));
        const std::size_t nCopied = CopyLine(&m_buffer[m_nNext], nChunk, pUnits + nRead);
        m_nNext += static_cast<UINT>(nCopied * sizeof(Unit));
        nRead += nCopied;
        if (pUnits[nRead - 1] == Unit('\n'))
            break;
    }
    return nRead;
}

template std::size_t CStdioFile::ReadUnits(char*, std::size_t);
template std::size_t CStdioFile::ReadUnits(wchar_t*, std::size_t);

/// Sees to it that at least so many bytes are read ahead; false when the file ends before.
bool CStdioFile::FillTo(UINT nBytes)
{
    if (GetUnread() >= nBytes)
        return true;
    Flush();
    std::copy(&m_buffer[m_nNext], &m_buffer[m_nFilled], m_buffer.begin());
    m_nFilled = GetUnread();
    m_nNext = 0;
    m_nFilled += CFile::Read(&m_buffer[m_nFilled], static_cast<UINT>(m_buffer.size() - m_nFilled));
    return GetUnread() >= nBytes;
}

void CStdioFile::DropReadAhead()
{
    const LONGLONG nUnread = GetUnread();
    m_nNext = m_nFilled = 0;
    if (nUnread > 0)
        CFile::Seek(-nUnread, current);
}

void CStdioFile::Flush()
{
    if (const UINT nPending = std::exchange(m_nPending, 0))
        CFile::Write(m_buffer.data(), nPending);
}
