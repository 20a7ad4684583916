#pragma once

#include "bench/protocol/Json.h"

#include <string>

/// What a person or program gave as a whole address: a path of this machine becomes one of a file, a bare host one of
/// the web.
std::wstring CompleteUrl(const std::wstring& text);

/// Whether the engine fetches addresses of this kind by requests that can be stopped before they go out.
bool IsFetchedUrl(const std::wstring& url);

/// Whether the engine shows addresses of this kind without any request. Those that are neither such nor fetched it
/// can't load at all.
bool IsUrlWithoutRequest(const std::wstring& url);

/// Whether the address is a script to run in the document, and that script.
bool IsScriptUrl(const std::wstring& url);
std::wstring GetScriptOfUrl(const std::wstring& url);

/// A request's headers, an object of names and values, with further lines; a list of objects with "name" and "value",
/// as the protocol wants them.
Json JoinHeaders(const Json& headers, const std::wstring& lines);
