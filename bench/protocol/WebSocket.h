#pragma once

#include "bench/protocol/Http.h"

#include <windows.h>

#include <string>

/// A WebSocket to a port of this machine's loopback address. One thread may receive while another sends.
class CWebSocket
{
public:
    /// Connects to the path, which begins with a slash. False when nobody answers or the answer is no WebSocket.
    bool Connect(WORD wPort, const std::wstring& path);

    /// Sends one text message, as UTF-8.
    bool Send(const std::string& message);

    /// Waits for a whole message. False at the end of the connection.
    bool Receive(std::string& message);

    /// Says that nothing more will be sent; the other side then ends the connection, and with it a Receive under way.
    void Shutdown();
    /// Ends the connection at once, for another side that doesn't answer.
    void Abort() { m_socket.reset(); }

private:
    CUniqueInternetHandle m_socket;
};
