#include "bench/protocol/Json.h"

#include <windows.h>

namespace
{
const Json* FindMember(const Json& object, const char* pszName)
{
    if (!object.is_object())
        return nullptr;
    const auto found = object.find(pszName);
    return found == object.end() ? nullptr : &*found;
}
} // namespace

std::string ToUtf8(const std::wstring& text)
{
    const int cchText = static_cast<int>(text.size());
    std::string result(WideCharToMultiByte(CP_UTF8, 0, text.data(), cchText, nullptr, 0, nullptr, nullptr), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), cchText, result.data(), static_cast<int>(result.size()), nullptr,
                        nullptr);
    return result;
}

std::wstring FromUtf8(const std::string& text)
{
    const int cbText = static_cast<int>(text.size());
    std::wstring result(MultiByteToWideChar(CP_UTF8, 0, text.data(), cbText, nullptr, 0), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), cbText, result.data(), static_cast<int>(result.size()));
    return result;
}

std::wstring GetText(const Json& object, const char* pszName)
{
    return FromUtf8(GetNarrowText(object, pszName));
}

std::string GetNarrowText(const Json& object, const char* pszName)
{
    const Json* pMember = FindMember(object, pszName);
    return pMember && pMember->is_string() ? pMember->get<std::string>() : std::string();
}

bool GetFlag(const Json& object, const char* pszName)
{
    const Json* pMember = FindMember(object, pszName);
    return pMember && pMember->is_boolean() && pMember->get<bool>();
}

int GetNumber(const Json& object, const char* pszName, int nFallback)
{
    const Json* pMember = FindMember(object, pszName);
    return pMember && pMember->is_number() ? pMember->get<int>() : nFallback;
}

const Json& GetObjectMember(const Json& object, const char* pszName)
{
    static const Json empty = Json::object();
    const Json* pMember = FindMember(object, pszName);
    return pMember && pMember->is_object() ? *pMember : empty;
}
