#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

/// Keeps the platform's sockets usable as long as it lives.
class CSocketLibrary
{
public:
    CSocketLibrary();
    ~CSocketLibrary();
    CSocketLibrary(const CSocketLibrary&) = delete;
    CSocketLibrary& operator=(const CSocketLibrary&) = delete;
};

/// Owner of a stream socket of this machine's loopback address.
class CLoopbackSocket
{
public:
    /// Takes the socket over; without one the object is empty.
    explicit CLoopbackSocket(std::uintptr_t socket = None) : m_socket(socket) {}
    CLoopbackSocket(CLoopbackSocket&& other) noexcept : m_socket(std::exchange(other.m_socket, None)) {}
    CLoopbackSocket& operator=(CLoopbackSocket&& other) noexcept;
    ~CLoopbackSocket() { Close(); }

    /// Listens on a port that the platform chooses; 0 when that fails.
    std::uint16_t Listen();
    /// The next that connects to it; none when nobody does in time.
    CLoopbackSocket Accept(unsigned nTimeoutMs) const;

    explicit operator bool() const { return m_socket != None; }
    void Close();
    /// Tells the other side that nothing more will be sent.
    void ShutdownSending();

    /// Text up to the next line end, without it; none at the end of the connection or when none comes in time.
    std::optional<std::string> ReadLine(unsigned nTimeoutMs);
    /// So many bytes; fewer at the end of the connection or when they don't come in time.
    std::string ReadBytes(size_t cbBytes, unsigned nTimeoutMs);
    /// Sends all of it; false when the other side has gone.
    bool Send(const std::string& bytes);
    /// Whether the other side has sent something or gone.
    bool HasNews() const { return CanRead(0); }

private:
    /// INVALID_SOCKET; the header that names it can't be included after others, so this one leaves it out.
    static constexpr std::uintptr_t None = ~std::uintptr_t(0);

    bool CanRead(unsigned nTimeoutMs) const;

    std::uintptr_t m_socket;
};
