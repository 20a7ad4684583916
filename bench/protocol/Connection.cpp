#include "bench/protocol/Connection.h"

#include <utility>

namespace
{
constexpr UINT WM_ARRIVAL = WM_APP;
constexpr DWORD CallTimeoutMs = 30000;
constexpr DWORD CloseTimeoutMs = 2000;

bool IsEvent(const Json& message)
{
    return message.contains("method");
}

std::optional<Json> GetResult(const Json& answer)
{
    const auto result = answer.find("result");
    return result == answer.end() ? std::nullopt : std::optional(*result);
}

bool IsAny(const Json&)
{
    return true;
}
} // namespace

BEGIN_MESSAGE_MAP(CConnection, CWnd)
    ON_MESSAGE(WM_ARRIVAL, OnArrival)
END_MESSAGE_MAP()

CConnection::~CConnection()
{
    Close();
}

bool CConnection::Open(WORD wPort, const std::wstring& path)
{
    if (!CreateEx(0, nullptr, L"", 0, RECT {}, HWND_MESSAGE, 0) || !m_socket.Connect(wPort, path))
        return false;
    m_reader = std::thread(&CConnection::ReadAll, this);
    return true;
}

void CConnection::Close()
{
    m_bClosedTold = true;
    Abandon();
    if (!m_reader.joinable())
        return;
    m_socket.Shutdown();
    if (!m_queue.WaitForEnd(CloseTimeoutMs))
        m_socket.Abort();
    m_reader.join();
    DestroyWindow();
}

void CConnection::ReadAll()
{
    std::string text;
    while (m_socket.Receive(text))
    {
        Json message = Json::parse(text, nullptr, false);
        if (!message.is_object())
            continue;
        m_queue.Add(std::move(message));
        PostMessageW(m_hWnd, WM_ARRIVAL, 0, 0);
    }
    m_queue.End();
    PostMessageW(m_hWnd, WM_ARRIVAL, 0, 0);
}

int CConnection::Send(const char* pszMethod, Json params)
{
    const int nId = ++m_nLastId;
    const Json message = {{"id", nId}, {"method", pszMethod}, {"params", std::move(params)}};
    m_socket.Send(message.dump(-1, ' ', false, Json::error_handler_t::replace));
    return nId;
}

void CConnection::Post(const char* pszMethod, Json params, Reply reply)
{
    if (m_bAbandoned)
        return;
    const int nId = Send(pszMethod, std::move(params));
    if (reply)
        m_replies[nId] = std::move(reply);
}

std::optional<Json> CConnection::Call(const char* pszMethod, Json params)
{
    if (m_bAbandoned)
        return std::nullopt;
    const int nId = Send(pszMethod, std::move(params));
    m_bTimedOut = false;
    m_waiting.insert(nId);
    const bool bAnswered = WaitForReply(nId);
    m_waiting.erase(nId);
    if (!bAnswered)
        return std::nullopt;
    return GetResult(m_answers.extract(nId).mapped());
}

bool CConnection::WaitForReply(int nId)
{
    const ULONGLONG ullEnd = GetTickCount64() + CallTimeoutMs;
    for (;;)
    {
        // The answer may also have been taken by a message loop inside an urgent event.
        if (!m_answers.contains(nId))
            if (auto answer = m_queue.Take([=](const Json& message) { return GetNumber(message, "id", 0) == nId; }))
                m_answers[nId] = std::move(*answer);
        if (m_answers.contains(nId))
            return true;
        // What was handled may have waited as well, and taken the signal of the answer that is wanted here.
        if (HandleUrgent())
            continue;
        if (m_bAbandoned || m_queue.HasEnded() || !WaitForArrival(ullEnd))
            return false;
    }
}

bool CConnection::WaitForArrival(ULONGLONG ullEnd)
{
    const ULONGLONG ullNow = GetTickCount64();
    m_bTimedOut = ullNow >= ullEnd;
    if (m_bTimedOut)
        return false;
    const HANDLE hArrival = m_queue.GetArrivalEvent();
    MsgWaitForMultipleObjects(1, &hArrival, FALSE, static_cast<DWORD>(ullEnd - ullNow), QS_SENDMESSAGE);
    MSG msg;
    PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    return true;
}

bool CConnection::HandleUrgent()
{
    const auto isUrgent = [this](const Json& message) {
        return IsEvent(message) && m_events.IsUrgent(GetNarrowText(message, "method"));
    };
    // What came before an urgent event is handled before it, so that no event overtakes another.
    bool bHandled = false;
    while (!m_bClosedTold && m_queue.Holds(isUrgent))
        if (const auto message = TakeNext())
        {
            Handle(*message);
            bHandled = true;
        }
    return bHandled;
}

std::optional<Json> CConnection::TakeNext()
{
    return m_bClosedTold ? std::nullopt : m_queue.Take(IsAny);
}

LRESULT CConnection::OnArrival(WPARAM, LPARAM)
{
    while (const auto message = TakeNext())
        Handle(*message);
    if (m_queue.HasEnded() && !std::exchange(m_bClosedTold, true))
    {
        Abandon();
        m_events.OnProtocolClosed();
    }
    return 0;
}

void CConnection::Handle(const Json& message)
{
    if (IsEvent(message))
        m_events.OnProtocolEvent(GetNarrowText(message, "method"), GetObjectMember(message, "params"));
    else
        HandleReply(message);
}

void CConnection::HandleReply(const Json& message)
{
    const int nId = GetNumber(message, "id", 0);
    if (m_waiting.contains(nId))
    {
        m_answers[nId] = message;
        return;
    }
    if (const auto waiting = m_replies.extract(nId))
        waiting.mapped()(GetResult(message));
}
