#include "settings/StdioFileEx.h"

#include <algorithm>
#include <new>

namespace
{
constexpr WORD WideMark = 0xFEFF;
constexpr char Utf8Mark[] = {'\xEF', '\xBB', '\xBF'};

bool StartsWithWideMark(CFile& file)
{
    WORD word = 0;
    return file.Read(&word, sizeof(word)) == sizeof(word) && word == WideMark;
}

/// A line ends at its line feed, if it has one.
template <class Unit>
std::basic_string_view<Unit> WithoutLineFeed(std::basic_string_view<Unit> line)
{
    return line.ends_with(Unit('\n')) ? line.substr(0, line.size() - 1) : line;
}
} // namespace

bool CStdioFileEx::Open(const std::wstring& fileName, UINT nOpenFlags, CFileException* pError)
{
    isUnicodeText = (nOpenFlags & typeUnicode) != 0;
    openFlags = (nOpenFlags & ~typeText) | typeBinary;
    if (!CStdioFile::Open(fileName, openFlags, pError))
        return false;
    try
    {
        if (!(openFlags & (modeCreate | modeWrite)))
            DetectEncoding();
    }
    catch (const CFileException& error)
    {
        if (pError != nullptr)
            *pError = error;
        CStdioFile::Close();
    }
    return IsOpen();
}

void CStdioFileEx::DetectEncoding()
{
    isUnicodeText = StartsWithWideMark(*this);
    Seek(0, begin);
}

ULONGLONG CStdioFileEx::Seek(LONGLONG offset, UINT nFrom)
{
    atStart = true;
    return CStdioFile::Seek(offset, nFrom);
}

bool CStdioFileEx::ReadString(std::wstring& line)
{
    try
    {
        StepOverMark();
        if (!(isUnicodeText ? ReadWideLine(line) : ReadNarrowLine(line)))
            return false;
    }
    catch (const std::bad_alloc&)
    {
        line.clear();
        return false;
    }
    if (line.ends_with(L'\r'))
        line.pop_back();
    line.resize(std::min(line.find(L'\0'), line.size()));
    atStart = false;
    return true;
}

wchar_t* CStdioFileEx::ReadString(wchar_t* lpsz, UINT nMax)
{
    return CStdioFile::ReadString(lpsz, nMax);
}

void CStdioFileEx::StepOverMark()
{
    if (!atStart || GetPosition() != 0)
        return;
    char mark[sizeof(Utf8Mark)];
    if (isUnicodeText)
        Read(mark, sizeof(WideMark));
    else if (codePage == CP_UTF8)
        Read(mark, sizeof(Utf8Mark)); // dropped without a look at them
}

bool CStdioFileEx::ReadWideLine(std::wstring& line)
{
    std::wstring longLine;
    const std::wstring_view read = ReadLine(wideBuffer, longLine);
    line = WithoutLineFeed(read);
    return !read.empty();
}

bool CStdioFileEx::ReadNarrowLine(std::wstring& line)
{
    std::string longLine;
    const std::string_view read = ReadLine(narrowBuffer, longLine);
    ConvertToWide(WithoutLineFeed(read), line);
    return !read.empty();
}

/// The next line with its line feed, empty at the end of the file. An ordinary line stands in the buffer, a longer one
/// in the string.
template <class Unit>
std::basic_string_view<Unit> CStdioFileEx::ReadLine(Unit* buffer, std::basic_string<Unit>& longLine)
{
    const std::basic_string_view<Unit> start(buffer, ReadUnits(buffer, LineLength));
    if (start.size() < LineLength || start.ends_with(Unit('\n')))
        return start;
    longLine = start;
    std::size_t length = 0;
    while (!longLine.ends_with(Unit('\n')) && (length = ReadUnits(buffer, LineLength)) > 0)
        longLine.append(buffer, length);
    return longLine;
}

void CStdioFileEx::ConvertToWide(std::string_view bytes, std::wstring& text)
{
    const UINT page = GetCodePage();
    const DWORD flags = page == CP_UTF8 ? 0 : MB_PRECOMPOSED;
    const int size = static_cast<int>(bytes.size());
    const int needed = MultiByteToWideChar(page, flags, bytes.data(), size, nullptr, 0);
    text.resize(needed);
    MultiByteToWideChar(page, flags, bytes.data(), size, text.data(), needed);
}

void CStdioFileEx::WriteString(const std::wstring& text)
{
    if (writeMark && (!IsOpen() || GetPosition() == 0))
        WriteMark();
    if (WritesUnicode())
        CStdioFile::WriteString(text);
    else
        WriteNarrow(text);
}

void CStdioFileEx::WriteMark()
{
    if (WritesUnicode())
        Write(&WideMark, sizeof(WideMark));
    else if (codePage == CP_UTF8)
        Write(Utf8Mark, sizeof(Utf8Mark));
}

void CStdioFileEx::WriteNarrow(const std::wstring& text)
{
    std::string longText;
    char* bytes = narrowBuffer;
    const int needed = ConvertToNarrow(text, nullptr, 0);
    if (needed > LineLength)
    {
        longText.resize(needed);
        bytes = longText.data();
    }
    if (const int written = ConvertToNarrow(text, bytes, needed))
        Write(bytes, written);
}

int CStdioFileEx::ConvertToNarrow(const std::wstring& text, char* bytes, int size) const
{
    const UINT page = GetCodePage();
    const bool isUtf8 = page == CP_UTF8;
    return WideCharToMultiByte(page, isUtf8 ? 0 : WC_COMPOSITECHECK | WC_SEPCHARS, text.data(),
                               static_cast<int>(text.size()), bytes, size, isUtf8 ? nullptr : &fallbackChar, nullptr);
}

bool CStdioFileEx::HasByteOrderMark(const std::wstring& path)
{
    CFile file;
    CFileException error;
    try
    {
        return file.Open(path, modeRead | shareDenyWrite | typeBinary, &error) && StartsWithWideMark(file);
    }
    catch (const CFileException&)
    {
        return false;
    }
}
