#pragma once

#include "bench/engine/Socket.h"

#include <atomic>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

/// A server of pages that a test makes up, on loopback, which remembers what it was asked for.
class CTestPages
{
public:
    CTestPages();
    ~CTestPages();

    std::uint16_t GetPort() const { return m_wPort; }

    /// Answers requests for the path with the page from now on. Further headers end with line ends.
    void Serve(const std::string& path, const std::string& html, const std::string& headers = {});
    /// Sends on to another path from now on.
    void Redirect(const std::string& from, const std::string& to);
    /// The requests since the last call, head and body as they came.
    std::vector<std::string> TakeRequests();

private:
    void Run();
    void Answer(CLoopbackSocket& socket);

    CSocketLibrary m_sockets;
    CLoopbackSocket m_listener;
    std::uint16_t m_wPort;
    std::mutex m_lock;
    std::map<std::string, std::string> m_answers; ///< by path
    std::vector<std::string> m_requests;
    std::atomic<bool> m_bStop = false;
    std::thread m_thread;
};
