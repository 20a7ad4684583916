#pragma once

#include <nlohmann/json.hpp>
#include <string>

/// Values of the engine's protocol. Text in them is UTF-8.
using Json = nlohmann::json;

std::string ToUtf8(const std::wstring& text);
std::wstring FromUtf8(const std::string& text);

/// Members of an object; the fallback when the member is absent or of another type.
std::wstring GetText(const Json& object, const char* pszName);
std::string GetNarrowText(const Json& object, const char* pszName);
bool GetFlag(const Json& object, const char* pszName);
int GetNumber(const Json& object, const char* pszName, int nFallback);
/// A member that is an object; an empty object when it isn't there.
const Json& GetObjectMember(const Json& object, const char* pszName);
