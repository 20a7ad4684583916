#include "tests/fakes/RecordingEvents.h"

#include <ostream>

const char* GetName(ENotification eNotification)
{
    static constexpr const char* names[] = {"OnPageLoadBegin",     "OnPageLoadComplete",     "OnFrameLoadBegin",
                                            "OnFrameLoadComplete", "OnPageRefreshBegin",     "OnPageRefreshComplete",
                                            "OnFrameRefreshBegin", "OnFrameRefreshComplete", "OnSpareEvent"};
    return names[static_cast<int>(eNotification)];
}

void PrintTo(ENotification eNotification, std::ostream* pStream)
{
    *pStream << GetName(eNotification);
}

std::vector<ENotification> CRecordingEvents::GetNotifications() const
{
    std::vector<ENotification> notifications;
    for (const CNotification& told : m_told)
        notifications.push_back(told.eNotification);
    return notifications;
}

void CRecordingEvents::Tell(CNotification notification)
{
    m_told.push_back(notification);
    if (const Action action = m_action) // which may set another
        action(notification);
}

void CRecordingEvents::OnPageLoadBegin(IDispatch* pFrame, LPCWSTR pszUrl)
{
    Tell({ENotification::PageLoadBegin, pFrame, pszUrl, {}});
}

void CRecordingEvents::OnPageLoadComplete(IDispatch* pFrame, LPCWSTR pszUrl)
{
    Tell({ENotification::PageLoadComplete, pFrame, pszUrl, {}});
}

void CRecordingEvents::OnFrameLoadBegin(IDispatch* pFrame, LPCWSTR pszUrl, LPCWSTR pszPath)
{
    Tell({ENotification::FrameLoadBegin, pFrame, pszUrl, pszPath});
}

void CRecordingEvents::OnFrameLoadComplete(IDispatch* pFrame, LPCWSTR pszUrl)
{
    Tell({ENotification::FrameLoadComplete, pFrame, pszUrl, {}});
}

void CRecordingEvents::OnPageRefreshBegin(IDispatch* pFrame, LPCWSTR pszUrl)
{
    Tell({ENotification::PageRefreshBegin, pFrame, pszUrl, {}});
}

void CRecordingEvents::OnPageRefreshComplete()
{
    Tell({ENotification::PageRefreshComplete, nullptr, {}, {}});
}

void CRecordingEvents::OnFrameRefreshBegin(IDispatch* pFrame, LPCWSTR pszUrl, LPCWSTR pszPath)
{
    Tell({ENotification::FrameRefreshBegin, pFrame, pszUrl, pszPath});
}

void CRecordingEvents::OnFrameRefreshComplete()
{
    Tell({ENotification::FrameRefreshComplete, nullptr, {}, {}});
}

void CRecordingEvents::OnSpareEvent()
{
    Tell({ENotification::SpareEvent, nullptr, {}, {}});
}
