#include "bench/engine/Url.h"

#include <windows.h>
#include <shlwapi.h>
#include <wininet.h>

#include <iterator>
#include <sstream>

namespace
{
constexpr wchar_t ScriptScheme[] = L"javascript:";
constexpr size_t ScriptSchemeLength = std::size(ScriptScheme) - 1;

bool BeginsWith(const std::wstring& text, const wchar_t* pszStart)
{
    return _wcsnicmp(text.c_str(), pszStart, wcslen(pszStart)) == 0;
}

bool IsLocalPath(const std::wstring& text)
{
    return !PathIsRelativeW(text.c_str()) && PathFileExistsW(text.c_str());
}

std::wstring GetUrlOfPath(const std::wstring& path)
{
    wchar_t url[INTERNET_MAX_URL_LENGTH];
    DWORD cchUrl = static_cast<DWORD>(std::size(url));
    return SUCCEEDED(UrlCreateFromPathW(path.c_str(), url, &cchUrl, 0)) ? url : path;
}

/// Whether the text begins with a scheme; "host:80" doesn't.
bool HasScheme(const std::wstring& text)
{
    const size_t nColon = text.find(L':');
    return nColon != std::wstring::npos && nColon > 0 && text.find_first_of(L"/.?#") > nColon &&
           !(nColon + 1 < text.size() && iswdigit(text[nColon + 1]));
}
} // namespace

std::wstring CompleteUrl(const std::wstring& text)
{
    if (IsLocalPath(text))
        return GetUrlOfPath(text);
    return HasScheme(text) ? text : L"http://" + text;
}

bool IsFetchedUrl(const std::wstring& url)
{
    return BeginsWith(url, L"http:") || BeginsWith(url, L"https:") || BeginsWith(url, L"file:");
}

bool IsUrlWithoutRequest(const std::wstring& url)
{
    return BeginsWith(url, L"about:") || BeginsWith(url, L"data:") || BeginsWith(url, L"blob:");
}

bool IsScriptUrl(const std::wstring& url)
{
    return BeginsWith(url, ScriptScheme);
}

std::wstring GetScriptOfUrl(const std::wstring& url)
{
    std::wstring script = url.substr(ScriptSchemeLength);
    DWORD cchScript = static_cast<DWORD>(script.size() + 1);
    UrlUnescapeW(script.data(), nullptr, &cchScript, URL_UNESCAPE_INPLACE);
    return script.c_str();
}

Json JoinHeaders(const Json& headers, const std::wstring& lines)
{
    Json joined = Json::array();
    for (const auto& [name, value] : headers.items())
        joined.push_back({{"name", name}, {"value", value}});
    std::istringstream stream(ToUtf8(lines));
    for (std::string line; std::getline(stream, line);)
    {
        const size_t nColon = line.find(':');
        const size_t nValue = nColon == std::string::npos ? nColon : line.find_first_not_of(' ', nColon + 1);
        if (nValue != std::string::npos)
            joined.push_back(
                {{"name", line.substr(0, nColon)}, {"value", line.substr(nValue, line.find('\r') - nValue)}});
    }
    return joined;
}
