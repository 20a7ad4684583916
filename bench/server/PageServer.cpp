#include "bench/server/PageServer.h"

#include "bench/server/HttpRequest.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string_view>
#include <utility>

namespace
{
constexpr unsigned AcceptSliceMs = 50;
constexpr unsigned NewsSliceMs = 10;
constexpr unsigned RequestTimeoutMs = 10'000;
constexpr int LongestDelayMs = 30'000;

constexpr char SlowPage[] = "/slow";
constexpr char RedirectPage[] = "/redirect";
constexpr char DownloadPage[] = "/download";
constexpr char SearchPage[] = "/search";
constexpr std::string_view StatusPage = "/status/";

std::string MakeAnswer(const char* pszStatus, const char* pszType, const std::string& body,
                       const std::string& furtherHeaders = {})
{
    return std::string("HTTP/1.1 ") + pszStatus + "\r\nContent-Type: " + pszType +
           "\r\nContent-Length: " + std::to_string(body.size()) +
           "\r\nCache-Control: no-store\r\nConnection: close\r\n" + furtherHeaders + "\r\n" + body;
}

std::string MakePage(const char* pszStatus, const std::string& title, const std::string& text)
{
    return MakeAnswer(pszStatus, "text/html; charset=utf-8",
                      "<!DOCTYPE html><meta charset=utf-8><link rel=stylesheet href=/bench.css><title>" + title +
                          "</title><main><h1>" + title + "</h1><p>" + text + "</p></main>");
}

std::string EscapeHtml(const std::string& text)
{
    std::string escaped;
    for (const char ch : text)
        if (ch == '<')
            escaped += "&lt;";
        else if (ch == '&')
            escaped += "&amp;";
        else
            escaped += ch;
    return escaped;
}

/// The place that the query names, if it is one of this server.
std::string GetTarget(const CHttpRequest& request)
{
    const std::string to = GetQueryValue(request.strQuery, "to");
    const bool bOwn = to.starts_with('/') && !to.starts_with("//") &&
                      std::ranges::none_of(to, [](unsigned char ch) { return ch <= ' '; });
    return bOwn ? to : "/start.html";
}
} // namespace

CPageServer::~CPageServer()
{
    SetEvent(m_stop.get());
    if (m_acceptor.joinable())
        m_acceptor.join();
    m_servants.clear();
}

bool CPageServer::Start(const std::filesystem::path& folder)
{
    m_folder = folder;
    const std::uint16_t wPort = m_listener.Listen();
    if (wPort == 0)
        return false;
    m_strAddress = L"http://127.0.0.1:" + std::to_wstring(wPort) + L"/";
    m_acceptor = std::thread([this] { AcceptAll(); });
    return true;
}

void CPageServer::AcceptAll()
{
    const auto hasEnded = [](const std::future<void>& servant) {
        return servant.wait_for(std::chrono::seconds::zero()) == std::future_status::ready;
    };
    while (WaitForSingleObject(m_stop.get(), 0) == WAIT_TIMEOUT)
    {
        std::erase_if(m_servants, hasEnded);
        if (CLoopbackSocket socket = m_listener.Accept(AcceptSliceMs))
            m_servants.push_back(std::async(std::launch::async, &CPageServer::Serve, this, std::move(socket)));
    }
}

void CPageServer::Serve(CLoopbackSocket socket)
{
    const std::optional<std::string> head = ReadHead(socket);
    if (!head)
        return;
    const std::optional<CHttpRequest> request = ParseHttpRequest(*head);
    if (!request)
        socket.Send(MakePage("400 Bad Request", "Bad request", "This is no request that the server understands."));
    else if (request->strMethod != "GET" && request->strMethod != "POST")
        socket.Send(MakePage("405 Method Not Allowed", "Not allowed", "The server only gives pages."));
    else
        socket.Send(Answer(*request));
    socket.ShutdownSending();
}

std::optional<std::string> CPageServer::ReadHead(CLoopbackSocket& socket) const
{
    // The engine also opens connections that it may or may not use later.
    for (unsigned nWaited = 0; !socket.HasNews(); nWaited += NewsSliceMs)
        if (nWaited > RequestTimeoutMs || WaitForSingleObject(m_stop.get(), NewsSliceMs) == WAIT_OBJECT_0)
            return std::nullopt;
    std::string head;
    while (const std::optional<std::string> line = socket.ReadLine(RequestTimeoutMs))
    {
        if (line->empty() || *line == "\r")
            return head;
        head += *line + "\n";
    }
    return std::nullopt;
}

bool CPageServer::Knows(const std::string& path)
{
    return path == SlowPage || path == RedirectPage || path == DownloadPage || path == SearchPage ||
           path.starts_with(StatusPage) || (path.ends_with(".html") && path.rfind('/') == 0);
}

std::string CPageServer::Answer(const CHttpRequest& request) const
{
    const std::string& path = request.strPath;
    if (path == SlowPage)
        return AnswerSlowly(request);
    if (path == RedirectPage)
        return MakeAnswer("302 Found", "text/plain", "", "Location: " + GetTarget(request) + "\r\n");
    if (path == DownloadPage)
        return MakeAnswer("200 OK", "application/octet-stream", "Saved, not shown.\n",
                          "Content-Disposition: attachment; filename=\"download.bin\"\r\n");
    if (path.starts_with(StatusPage))
    {
        const std::string status = path.substr(StatusPage.size());
        return MakePage((status + " Asked For").c_str(), "Status " + EscapeHtml(status),
                        "The server was asked to say so.");
    }
    if (path == SearchPage)
        return MakePage("200 OK", "Search",
                        "You searched for <b id=asked>" + EscapeHtml(GetQueryValue(request.strQuery, "q")) + "</b>.");
    return AnswerFile(path == "/" ? "/start.html" : path);
}

std::string CPageServer::AnswerSlowly(const CHttpRequest& request) const
{
    const int nMs = std::atoi(GetQueryValue(request.strQuery, "ms").c_str());
    WaitForSingleObject(m_stop.get(), nMs < 0 || nMs > LongestDelayMs ? LongestDelayMs : nMs);
    return AnswerFile(GetTarget(request));
}

std::string CPageServer::AnswerFile(const std::string& path) const
{
    const std::u8string relative(path.begin() + 1, path.end());
    std::ifstream file(m_folder / std::filesystem::path(relative), std::ios::binary);
    if (!file)
        return MakePage("404 Not Found", "Not found", "There is no page " + EscapeHtml(path) + ".");
    const std::string body {std::istreambuf_iterator<char>(file), {}};
    return MakeAnswer("200 OK", GetContentType(path), body);
}
