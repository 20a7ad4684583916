#pragma once

#include "bench/protocol/Json.h"
#include "framework/Handles.h"

#include <windows.h>

#include <deque>
#include <functional>
#include <mutex>
#include <optional>

/// Messages on their way from the reader thread of a connection to the thread that uses it.
class CMessageQueue
{
public:
    CMessageQueue();

    /// Adds a message, or the end after which none comes. For the reader thread.
    void Add(Json message);
    void End();

    /// Takes the first message that the test accepts; none when there is none.
    std::optional<Json> Take(const std::function<bool(const Json&)>& accepts);

    bool Holds(const std::function<bool(const Json&)>& accepts) const;

    bool HasEnded() const;
    /// Waits for the end; false when it doesn't come in time.
    bool WaitForEnd(DWORD dwTimeoutMs) const;

    /// Signalled by each message and by the end; resets itself when waited for.
    HANDLE GetArrivalEvent() const { return m_arrival.get(); }

private:
    CUniqueKernelHandle m_arrival;
    mutable std::mutex m_lock;
    std::deque<Json> m_messages;
    bool m_bEnded = false;
};
