#include "bench/protocol/MessageQueue.h"

#include <algorithm>
#include <utility>

CMessageQueue::CMessageQueue() : m_arrival(CreateEventW(nullptr, FALSE, FALSE, nullptr)) {}

void CMessageQueue::Add(Json message)
{
    {
        const std::lock_guard lock(m_lock);
        m_messages.push_back(std::move(message));
    }
    SetEvent(m_arrival.get());
}

void CMessageQueue::End()
{
    {
        const std::lock_guard lock(m_lock);
        m_bEnded = true;
    }
    SetEvent(m_arrival.get());
}

std::optional<Json> CMessageQueue::Take(const std::function<bool(const Json&)>& accepts)
{
    const std::lock_guard lock(m_lock);
    const auto found = std::find_if(m_messages.begin(), m_messages.end(), accepts);
    if (found == m_messages.end())
        return std::nullopt;
    Json message = std::move(*found);
    m_messages.erase(found);
    return message;
}

bool CMessageQueue::Holds(const std::function<bool(const Json&)>& accepts) const
{
    const std::lock_guard lock(m_lock);
    return std::any_of(m_messages.begin(), m_messages.end(), accepts);
}

bool CMessageQueue::HasEnded() const
{
    const std::lock_guard lock(m_lock);
    return m_bEnded;
}

bool CMessageQueue::WaitForEnd(DWORD dwTimeoutMs) const
{
    const ULONGLONG ullEnd = GetTickCount64() + dwTimeoutMs;
    for (ULONGLONG ullNow = GetTickCount64(); !HasEnded() && ullNow < ullEnd; ullNow = GetTickCount64())
        WaitForSingleObject(m_arrival.get(), static_cast<DWORD>(ullEnd - ullNow));
    return HasEnded();
}
