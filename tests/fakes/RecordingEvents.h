#pragma once

#include "band/TVXEvents.h"

#include <windows.h>

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

/// What the event manager can tell.
enum class ENotification
{
    PageLoadBegin,
    PageLoadComplete,
    FrameLoadBegin,
    FrameLoadComplete,
    PageRefreshBegin,
    PageRefreshComplete,
    FrameRefreshBegin,
    FrameRefreshComplete,
    SpareEvent,
};

/// All notifications that are ever told.
inline constexpr ENotification AllNotifications[] = {
    ENotification::PageLoadBegin,     ENotification::PageLoadComplete,    ENotification::FrameLoadBegin,
    ENotification::FrameLoadComplete, ENotification::PageRefreshBegin,    ENotification::PageRefreshComplete,
    ENotification::FrameRefreshBegin, ENotification::FrameRefreshComplete};

/// The notification's operation, for messages.
const char* GetName(ENotification eNotification);
void PrintTo(ENotification eNotification, std::ostream* pStream);

/// A notification with its arguments; what it doesn't have is empty.
struct CNotification
{
    ENotification eNotification;
    IDispatch* pFrame = nullptr; ///< not owned, for comparison
    std::wstring strUrl;
    std::wstring strPath;
};

/// A sink of the event manager that keeps what it was told, and passes it on to a test, from which the browser may
/// re-enter.
class CRecordingEvents : public ITVXEvents
{
public:
    using Action = std::function<void(const CNotification&)>;

    void OnPageLoadBegin(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnPageLoadComplete(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnFrameLoadBegin(IDispatch* pFrame, LPCWSTR pszUrl, LPCWSTR pszPath) override;
    void OnFrameLoadComplete(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnPageRefreshBegin(IDispatch* pFrame, LPCWSTR pszUrl) override;
    void OnPageRefreshComplete() override;
    void OnFrameRefreshBegin(IDispatch* pFrame, LPCWSTR pszUrl, LPCWSTR pszPath) override;
    void OnFrameRefreshComplete() override;
    void OnSpareEvent() override;

    /// Called within each notification, after it was kept.
    void SetAction(Action action) { m_action = std::move(action); }
    const std::vector<CNotification>& GetTold() const { return m_told; }
    /// What was told, without the arguments.
    std::vector<ENotification> GetNotifications() const;
    void Clear() { m_told.clear(); }

private:
    void Tell(CNotification notification);

    std::vector<CNotification> m_told;
    Action m_action;
};
