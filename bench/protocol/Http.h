#pragma once

#include "framework/Handles.h"

#include <windows.h>
#include <winhttp.h>

#include <string>

using CUniqueInternetHandle = CUniqueHandle<HINTERNET, WinHttpCloseHandle>;

/// A request to a port of this machine's loopback address, with the handles that it stands on.
class CLoopbackRequest
{
public:
    /// Prepares a request; `path` begins with a slash. Nothing is sent yet.
    CLoopbackRequest(WORD wPort, LPCWSTR pszVerb, const std::wstring& path);

    /// Sends the request and waits for the head of its answer; false when nobody answers.
    bool Send();

    /// The body of the answer, empty when there is none.
    std::string ReadBody();

    /// The request itself, null when it could not be prepared; borrowed.
    HINTERNET Get() const { return m_request.get(); }

private:
    CUniqueInternetHandle m_session;
    CUniqueInternetHandle m_server;
    CUniqueInternetHandle m_request;
};
