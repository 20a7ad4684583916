#include "tools/EscapeSearchText.h"

namespace
{
constexpr wchar_t ReplacementCharacter = 0xFFFD;

bool IsLetterOrDigit(wchar_t ch)
{
    return (ch >= L'0' && ch <= L'9') || (ch >= L'A' && ch <= L'Z') || (ch >= L'a' && ch <= L'z');
}

void AppendEscape(std::wstring& strEscaped, unsigned nByte)
{
    constexpr wchar_t szDigits[] = L"0123456789ABCDEF";
    strEscaped += L'%';
    strEscaped += szDigits[nByte >> 4];
    strEscaped += szDigits[nByte & 0xF];
}

void AppendContinuation(std::wstring& strEscaped, unsigned nBits)
{
    AppendEscape(strEscaped, 0x80 | (nBits & 0x3F));
}

void AppendUtf8Escapes(std::wstring& strEscaped, wchar_t ch)
{
    const bool bIsSurrogate = ch >= 0xD800 && ch <= 0xDFFF;
    const unsigned nCode = bIsSurrogate ? ReplacementCharacter : ch;
    if (nCode < 0x80)
    {
        AppendEscape(strEscaped, nCode);
        return;
    }
    if (nCode < 0x800)
    {
        AppendEscape(strEscaped, 0xC0 | nCode >> 6);
    }
    else
    {
        AppendEscape(strEscaped, 0xE0 | nCode >> 12);
        AppendContinuation(strEscaped, nCode >> 6);
    }
    AppendContinuation(strEscaped, nCode);
}
} // namespace

std::wstring EscapeSearchText(std::wstring_view strText)
{
    std::wstring strEscaped;
    for (const wchar_t ch : strText)
    {
        if (IsLetterOrDigit(ch))
            strEscaped += ch;
        else
            AppendUtf8Escapes(strEscaped, ch);
    }
    return strEscaped;
}
