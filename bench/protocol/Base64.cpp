#include "bench/protocol/Base64.h"

#include <windows.h>
#include <wincrypt.h>

std::string ToBase64(const std::string& bytes)
{
    const auto* const pBytes = reinterpret_cast<const BYTE*>(bytes.data());
    const DWORD cbBytes = static_cast<DWORD>(bytes.size());
    constexpr DWORD Format = CRYPT_STRING_BASE64 | CRYPT_STRING_NOCRLF;
    DWORD cchText = 0;
    CryptBinaryToStringA(pBytes, cbBytes, Format, nullptr, &cchText);
    std::string text(cchText, '\0');
    if (!CryptBinaryToStringA(pBytes, cbBytes, Format, text.data(), &cchText))
        return {};
    text.resize(cchText);
    return text;
}

std::string FromBase64(const std::string& text)
{
    const DWORD cchText = static_cast<DWORD>(text.size());
    DWORD cbBytes = 0;
    if (!CryptStringToBinaryA(text.data(), cchText, CRYPT_STRING_BASE64, nullptr, &cbBytes, nullptr, nullptr))
        return {};
    std::string bytes(cbBytes, '\0');
    CryptStringToBinaryA(text.data(), cchText, CRYPT_STRING_BASE64, reinterpret_cast<BYTE*>(bytes.data()), &cbBytes,
                         nullptr, nullptr);
    return bytes;
}
