#include "bench/engine/Socket.h"

#include <winsock2.h>

CSocketLibrary::CSocketLibrary()
{
    WSADATA data;
    WSAStartup(MAKEWORD(2, 2), &data);
}

CSocketLibrary::~CSocketLibrary()
{
    WSACleanup();
}

CLoopbackSocket& CLoopbackSocket::operator=(CLoopbackSocket&& other) noexcept
{
    std::swap(m_socket, other.m_socket);
    return *this;
}

std::uint16_t CLoopbackSocket::Listen()
{
    Close();
    // Not inherited: a program that is started meanwhile must not hold it open.
    m_socket =
        WSASocketW(AF_INET, SOCK_STREAM, IPPROTO_TCP, nullptr, 0, WSA_FLAG_OVERLAPPED | WSA_FLAG_NO_HANDLE_INHERIT);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    int cbAddress = sizeof address;
    if (bind(m_socket, reinterpret_cast<sockaddr*>(&address), cbAddress) != 0 || listen(m_socket, SOMAXCONN) != 0 ||
        getsockname(m_socket, reinterpret_cast<sockaddr*>(&address), &cbAddress) != 0)
        return 0;
    return ntohs(address.sin_port);
}

CLoopbackSocket CLoopbackSocket::Accept(unsigned nTimeoutMs) const
{
    return CLoopbackSocket(CanRead(nTimeoutMs) ? accept(m_socket, nullptr, nullptr) : None);
}

void CLoopbackSocket::Close()
{
    if (m_socket != None)
        closesocket(std::exchange(m_socket, None));
}

void CLoopbackSocket::ShutdownSending()
{
    shutdown(m_socket, SD_SEND);
}

bool CLoopbackSocket::Send(const std::string& bytes)
{
    size_t nSent = 0;
    while (nSent < bytes.size())
    {
        const int nChunk = send(m_socket, bytes.data() + nSent, static_cast<int>(bytes.size() - nSent), 0);
        if (nChunk <= 0)
            return false;
        nSent += nChunk;
    }
    return true;
}

std::optional<std::string> CLoopbackSocket::ReadLine(unsigned nTimeoutMs)
{
    std::string line;
    for (;;)
    {
        const std::string next = ReadBytes(1, nTimeoutMs);
        if (next.empty())
            return std::nullopt;
        if (next == "\n")
            return line;
        line += next;
    }
}

std::string CLoopbackSocket::ReadBytes(size_t cbBytes, unsigned nTimeoutMs)
{
    std::string bytes(cbBytes, '\0');
    size_t cbRead = 0;
    while (cbRead < cbBytes && CanRead(nTimeoutMs))
    {
        const int nRead = recv(m_socket, bytes.data() + cbRead, static_cast<int>(cbBytes - cbRead), 0);
        if (nRead <= 0)
            break;
        cbRead += static_cast<size_t>(nRead);
    }
    bytes.resize(cbRead);
    return bytes;
}

bool CLoopbackSocket::CanRead(unsigned nTimeoutMs) const
{
    fd_set readable = {};
    FD_SET(m_socket, &readable);
    timeval timeout = {static_cast<long>(nTimeoutMs / 1000), static_cast<long>(nTimeoutMs % 1000 * 1000)};
    return m_socket != None && select(0, &readable, nullptr, nullptr, &timeout) == 1;
}
