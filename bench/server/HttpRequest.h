#pragma once

#include <optional>
#include <string>

/// What the server takes from a request.
struct CHttpRequest
{
    std::string strMethod;
    std::string strPath; ///< decoded, without the query; begins with "/"
    std::string strQuery;
};

/// Reads the head of a request, up to the empty line. None when it is no request, or its path is one that no file of
/// the server can have: with "..", a backslash, a colon or a control character.
std::optional<CHttpRequest> ParseHttpRequest(const std::string& head);

/// The value of a name in a query, decoded; empty when it isn't there or can't be decoded.
std::string GetQueryValue(const std::string& query, const std::string& name);

/// The content type for a file's name, by its extension.
const char* GetContentType(const std::string& path);
