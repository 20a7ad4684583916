#pragma once

#include "bench/protocol/Json.h"
#include "bench/protocol/MessageQueue.h"
#include "bench/protocol/WebSocket.h"
#include "framework/Wnd.h"

#include <windows.h>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <thread>

/// What a connection tells its user, always on the user's thread.
class IProtocolEvents
{
public:
    virtual void OnProtocolEvent(const std::string& method, const Json& params) = 0;
    /// Whether the event must be handled even while a call waits for its answer, since the answer waits for it.
    virtual bool IsUrgent(const std::string& method) const = 0;
    /// The last call: the other side has gone.
    virtual void OnProtocolClosed() = 0;

protected:
    ~IProtocolEvents() = default;
};

/// A connection of the DevTools protocol to one target of the engine. A thread of its own reads; everything else
/// happens on the thread that opened the connection, which must dispatch its messages.
class CConnection : public CWnd
{
public:
    /// Takes the result of a call, none when the engine answered an error.
    using Reply = std::function<void(const std::optional<Json>& result)>;

    /// The sink must outlive the connection.
    explicit CConnection(IProtocolEvents& events) : m_events(events) {}
    ~CConnection() override;

    /// Connects to the path of a target on the engine's port.
    bool Open(WORD wPort, const std::wstring& path);

    /// Ends the connection and waits for its thread. Calls under way end without an answer, and nothing more is told.
    /// May be called from inside an event.
    void Close();

    /// Calls a method and waits for its result. Meanwhile sent window messages and urgent events are handled, and
    /// nothing else. None when the engine answers an error, has gone or doesn't answer in time.
    std::optional<Json> Call(const char* pszMethod, Json params = Json::object());

    /// Calls a method without waiting. No reply comes when the engine has gone meanwhile.
    void Post(const char* pszMethod, Json params = Json::object(), Reply reply = nullptr);

    /// Whether the last call waited for its answer in vain.
    bool HasTimedOut() const { return m_bTimedOut; }

    /// Ends all waiting calls: the target will never answer them.
    void Abandon() { m_bAbandoned = true; }

private:
    DECLARE_MESSAGE_MAP()

    LRESULT OnArrival(WPARAM wParam, LPARAM lParam);

    void ReadAll();
    int Send(const char* pszMethod, Json params);
    bool WaitForReply(int nId);
    bool WaitForArrival(ULONGLONG ullEnd);
    /// Whether there was anything urgent.
    bool HandleUrgent();
    std::optional<Json> TakeNext();
    void Handle(const Json& message);
    void HandleReply(const Json& message);

    IProtocolEvents& m_events;
    CWebSocket m_socket;
    CMessageQueue m_queue;
    std::thread m_reader;
    int m_nLastId = 0;
    std::set<int> m_waiting;        ///< calls that wait for their answer
    std::map<int, Json> m_answers;  ///< answers that came while something else was handled
    std::map<int, Reply> m_replies; ///< what to do with answers that nobody waits for
    bool m_bAbandoned = false;
    bool m_bTimedOut = false;
    bool m_bClosedTold = false;
};
