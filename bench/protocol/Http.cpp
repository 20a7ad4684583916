#include "bench/protocol/Http.h"

CLoopbackRequest::CLoopbackRequest(WORD wPort, LPCWSTR pszVerb, const std::wstring& path)
{
    m_session.reset(
        WinHttpOpen(L"bench", WINHTTP_ACCESS_TYPE_NO_PROXY, WINHTTP_NO_PROXY_NAME, WINHTTP_NO_PROXY_BYPASS, 0));
    if (!m_session)
        return;
    // An engine at rest sends nothing for as long as it likes.
    WinHttpSetTimeouts(m_session.get(), 0, 0, 0, 0);
    m_server.reset(WinHttpConnect(m_session.get(), L"127.0.0.1", wPort, 0));
    if (m_server)
        m_request.reset(WinHttpOpenRequest(m_server.get(), pszVerb, path.c_str(), nullptr, WINHTTP_NO_REFERER,
                                           WINHTTP_DEFAULT_ACCEPT_TYPES, 0));
}

bool CLoopbackRequest::Send()
{
    return m_request &&
           WinHttpSendRequest(m_request.get(), WINHTTP_NO_ADDITIONAL_HEADERS, 0, WINHTTP_NO_REQUEST_DATA, 0, 0, 0) &&
           WinHttpReceiveResponse(m_request.get(), nullptr);
}

std::string CLoopbackRequest::ReadBody()
{
    std::string body;
    char buffer[4096];
    DWORD cbRead = 0;
    while (WinHttpReadData(m_request.get(), buffer, sizeof buffer, &cbRead) && cbRead > 0)
        body.append(buffer, cbRead);
    return body;
}
