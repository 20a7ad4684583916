#pragma once

#include "bench/engine/Socket.h"
#include "framework/Handles.h"

#include <windows.h>

#include <filesystem>
#include <future>
#include <optional>
#include <string>
#include <thread>
#include <vector>

struct CHttpRequest;

/// Serves the pages of a folder on loopback. Besides the files it answers some paths of its own, for what a file can't
/// do:
/// - `/slow?ms=N&to=/file`: the file after N milliseconds;
/// - `/redirect?to=/file`: sends on to the file;
/// - `/download`: a file to be saved and not shown;
/// - `/status/N`: an empty-handed page with that status;
/// - `/search?q=TEXT`: a page that shows what it was asked for.
class CPageServer
{
public:
    CPageServer() = default;
    ~CPageServer();
    CPageServer(const CPageServer&) = delete;
    CPageServer& operator=(const CPageServer&) = delete;

    /// Serves the folder from now on. False when there is no port to be had.
    bool Start(const std::filesystem::path& folder);

    /// Whether the path, which begins with a slash and has no query, is one of the server's own or that of a page in
    /// the folder itself.
    static bool Knows(const std::string& path);

    /// "http://127.0.0.1:PORT/"
    const std::wstring& GetAddress() const { return m_strAddress; }

private:
    void AcceptAll();
    void Serve(CLoopbackSocket socket);
    std::optional<std::string> ReadHead(CLoopbackSocket& socket) const;
    std::string Answer(const CHttpRequest& request) const;
    std::string AnswerFile(const std::string& path) const;
    std::string AnswerSlowly(const CHttpRequest& request) const;

    std::filesystem::path m_folder;
    std::wstring m_strAddress;
    CSocketLibrary m_sockets;
    CLoopbackSocket m_listener;
    CUniqueKernelHandle m_stop {CreateEventW(nullptr, TRUE, FALSE, nullptr)};
    std::thread m_acceptor;
    std::vector<std::future<void>> m_servants; ///< the connections that are served; one that goes is waited for
};
