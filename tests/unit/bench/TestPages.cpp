#include "tests/unit/bench/TestPages.h"

#include <cstdlib>
#include <utility>

namespace
{
constexpr unsigned SliceMs = 5;
constexpr unsigned RequestTimeoutMs = 5000;
constexpr char LengthHeader[] = "Content-Length: ";

std::string MakeAnswer(const char* pszStatus, const std::string& body, const std::string& headers)
{
    return std::string("HTTP/1.1 ") + pszStatus + "\r\nContent-Length: " + std::to_string(body.size()) +
           "\r\nCache-Control: no-store\r\nConnection: close\r\n" + headers + "\r\n" + body;
}
} // namespace

CTestPages::CTestPages() : m_wPort(m_listener.Listen()), m_thread([this] { Run(); }) {}

CTestPages::~CTestPages()
{
    m_bStop = true;
    m_thread.join();
}

void CTestPages::Serve(const std::string& path, const std::string& html, const std::string& headers)
{
    const std::lock_guard lock(m_lock);
    m_answers[path] =
        MakeAnswer("200 OK", html, headers.empty() ? "Content-Type: text/html; charset=utf-8\r\n" : headers);
}

void CTestPages::Redirect(const std::string& from, const std::string& to)
{
    const std::lock_guard lock(m_lock);
    m_answers[from] = MakeAnswer("302 Found", "", "Location: " + to + "\r\n");
}

std::vector<std::string> CTestPages::TakeRequests()
{
    const std::lock_guard lock(m_lock);
    return std::exchange(m_requests, {});
}

void CTestPages::Run()
{
    // The engine opens connections before it needs them, so all are watched at once.
    std::vector<CLoopbackSocket> connections;
    while (!m_bStop)
    {
        if (CLoopbackSocket socket = m_listener.Accept(SliceMs))
            connections.push_back(std::move(socket));
        std::erase_if(connections, [this](CLoopbackSocket& socket) {
            if (!socket.HasNews())
                return false;
            Answer(socket);
            return true;
        });
    }
}

void CTestPages::Answer(CLoopbackSocket& socket)
{
    std::string request;
    size_t cbBody = 0;
    for (auto line = socket.ReadLine(RequestTimeoutMs); line && *line != "\r"; line = socket.ReadLine(RequestTimeoutMs))
    {
        if (line->starts_with(LengthHeader))
            cbBody = std::strtoul(line->c_str() + sizeof LengthHeader - 1, nullptr, 10);
        request += *line + "\n";
    }
    if (request.empty())
        return;
    request += "\r\n" + socket.ReadBytes(cbBody, RequestTimeoutMs);
    const size_t nPath = request.find(' ') + 1;
    const std::string path = request.substr(nPath, request.find_first_of(" ?", nPath) - nPath);
    const std::lock_guard lock(m_lock);
    m_requests.push_back(request);
    const auto answer = m_answers.find(path);
    socket.Send(answer == m_answers.end() ? MakeAnswer("404 Not Found", "", "") : answer->second);
    socket.ShutdownSending();
}
