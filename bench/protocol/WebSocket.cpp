#include "bench/protocol/WebSocket.h"

bool CWebSocket::Connect(WORD wPort, const std::wstring& path)
{
    CLoopbackRequest request(wPort, L"GET", path);
    if (!WinHttpSetOption(request.Get(), WINHTTP_OPTION_UPGRADE_TO_WEB_SOCKET, nullptr, 0) || !request.Send())
        return false;
    m_socket.reset(WinHttpWebSocketCompleteUpgrade(request.Get(), 0));
    return m_socket != nullptr;
}

bool CWebSocket::Send(const std::string& message)
{
    return WinHttpWebSocketSend(m_socket.get(), WINHTTP_WEB_SOCKET_UTF8_MESSAGE_BUFFER_TYPE,
                                const_cast<char*>(message.data()), static_cast<DWORD>(message.size())) == NO_ERROR;
}

bool CWebSocket::Receive(std::string& message)
{
    constexpr size_t ChunkBytes = 256 * 1024;
    size_t cbFilled = 0;
    for (;;)
    {
        message.resize(cbFilled + ChunkBytes);
        DWORD cbRead = 0;
        WINHTTP_WEB_SOCKET_BUFFER_TYPE eType = {};
        if (WinHttpWebSocketReceive(m_socket.get(), message.data() + cbFilled, ChunkBytes, &cbRead, &eType) != NO_ERROR)
            return false;
        if (eType == WINHTTP_WEB_SOCKET_CLOSE_BUFFER_TYPE)
            return false;
        cbFilled += cbRead;
        if (eType == WINHTTP_WEB_SOCKET_UTF8_MESSAGE_BUFFER_TYPE)
            break;
    }
    message.resize(cbFilled);
    return true;
}

void CWebSocket::Shutdown()
{
    WinHttpWebSocketShutdown(m_socket.get(), WINHTTP_WEB_SOCKET_SUCCESS_CLOSE_STATUS, nullptr, 0);
}
