#include "bench/server/HttpRequest.h"

#include <algorithm>
#include <iterator>

namespace
{
struct CTypeRow
{
    const char* pszExtension;
    const char* pszType;
};

constexpr CTypeRow typeTable[] = {
    {".html", "text/html; charset=utf-8"},
    {".css", "text/css; charset=utf-8"},
    {".js", "text/javascript; charset=utf-8"},
    {".svg", "image/svg+xml"},
    {".png", "image/png"},
    {".jpg", "image/jpeg"},
    {".gif", "image/gif"},
    {".txt", "text/plain; charset=utf-8"},
};

int GetHexDigit(char ch)
{
    if (ch >= '0' && ch <= '9')
        return ch - '0';
    if (ch >= 'a' && ch <= 'f')
        return ch - 'a' + 10;
    return ch >= 'A' && ch <= 'F' ? ch - 'A' + 10 : -1;
}

std::optional<std::string> Decode(const std::string& text)
{
    std::string decoded;
    for (size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] != '%')
        {
            decoded += text[i];
            continue;
        }
        const int nHigh = i + 1 < text.size() ? GetHexDigit(text[i + 1]) : -1;
        const int nLow = i + 2 < text.size() ? GetHexDigit(text[i + 2]) : -1;
        if (nHigh < 0 || nLow < 0)
            return std::nullopt;
        decoded += static_cast<char>(nHigh * 16 + nLow);
        i += 2;
    }
    return decoded;
}

bool IsSafePath(const std::string& path)
{
    const auto isForbidden = [](unsigned char ch) { return ch < ' ' || ch == '\\' || ch == ':'; };
    return path.starts_with('/') && path.find("..") == std::string::npos && std::ranges::none_of(path, isForbidden);
}
} // namespace

std::optional<CHttpRequest> ParseHttpRequest(const std::string& head)
{
    const std::string line = head.substr(0, head.find("\r\n"));
    const size_t nFirst = line.find(' ');
    const size_t nSecond = line.find(' ', nFirst + 1);
    if (nFirst == std::string::npos || nSecond == std::string::npos || !line.substr(nSecond).starts_with(" HTTP/1."))
        return std::nullopt;
    const std::string target = line.substr(nFirst + 1, nSecond - nFirst - 1);
    const size_t nQuery = target.find('?');
    const std::optional<std::string> path = Decode(target.substr(0, nQuery));
    if (!path || !IsSafePath(*path))
        return std::nullopt;
    return CHttpRequest {line.substr(0, nFirst), *path,
                         nQuery == std::string::npos ? std::string() : target.substr(nQuery + 1)};
}

std::string GetQueryValue(const std::string& query, const std::string& name)
{
    const std::string key = "&" + name + "=";
    const std::string padded = "&" + query;
    const size_t nPlace = padded.find(key);
    if (nPlace == std::string::npos)
        return {};
    const size_t nBegin = nPlace + key.size();
    return Decode(padded.substr(nBegin, padded.find('&', nBegin) - nBegin)).value_or(std::string());
}

const char* GetContentType(const std::string& path)
{
    const auto* pRow =
        std::ranges::find_if(typeTable, [&](const CTypeRow& row) { return path.ends_with(row.pszExtension); });
    return pRow == std::end(typeTable) ? "application/octet-stream" : pRow->pszType;
}
