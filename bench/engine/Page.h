#pragma once

#include "bench/engine/FrameTree.h"
#include "bench/engine/Input.h"
#include "bench/engine/LoadTracker.h"
#include "bench/protocol/Connection.h"

#include <windows.h>

#include <functional>
#include <map>
#include <memory>
#include <string>

class CEngine;
class IPageView;

/// A page of the engine with all of its frames. It belongs to the thread that opens it, which must dispatch messages;
/// all calls to and from it are made there. A call to a page that has gone does nothing and gives an empty answer.
/// CWebBrowser owns it; the page view reaches it through CWebBrowser::GetPage for pictures and input.
class CPage : private IProtocolEvents
{
public:
    /// `events` hears of loads, `view` of what is to be shown. Both must outlive the page.
    CPage(ILoadEvents& events, IPageView& view);
    ~CPage();

    /// Opens an empty page in the engine. False with one line for a person when that fails.
    bool Open(CEngine& engine, std::wstring& error);
    void Close();
    /// Whether the page can still be spoken to.
    bool IsOpen() const { return m_connection != nullptr && !m_bGone; }

    /// Begins a navigation of the page; headers are lines with a line end each, both may be empty. What becomes of it
    /// is told by events. False when a listener cancelled it.
    bool Navigate(const std::wstring& url, const std::wstring& headers = {}, const std::string& post = {});
    /// The same for one frame of the page.
    bool NavigateFrame(const std::string& frameId, const std::wstring& url);
    void Reload();
    void ReloadFrame(const std::string& frameId);
    void Stop();

    /// The history of the page. Go does nothing when there is no such entry.
    void GoBack() { GoInHistory(-1); }
    void GoForward() { GoInHistory(1); }
    bool CanGoBack() const { return m_nHistoryIndex > 0; }
    bool CanGoForward() const { return m_nHistoryIndex + 1 < m_nHistoryLength; }

    /// Size of the page's viewport in pixels; pictures come in this size.
    void SetSize(int cx, int cy);
    /// Whether pictures are wanted. They come whenever the page has changed, from then on until they aren't.
    void ShowPictures(bool bShow);
    /// A picture of the viewport (PNG) as it is now; empty when there is none to be had.
    std::string Capture();

    /// Input in pixels of the viewport. Nothing is waited for.
    void MouseEvent(EMouseEvent eEvent, POINT point, EMouseButton eButton, int nClickCount, int nModifiers);
    /// `delta` in the units of WM_MOUSEWHEEL, 120 for a notch away from the user.
    void Wheel(POINT point, int nDelta, int nModifiers);
    void KeyDown(UINT vk, UINT nScanCode, int nModifiers);
    void KeyUp(UINT vk, UINT nScanCode, int nModifiers);
    void Char(wchar_t ch, int nModifiers);
    /// Gives the page the keyboard or takes it away.
    void SetFocus(bool bFocus);

    const CFrameTree& GetFrames() const { return m_frames; }
    const std::string& GetTopFrameId() const { return m_frames.GetTopId(); }
    /// The title of the top document.
    const std::wstring& GetTitle() const { return m_strTitle; }

    /// The value of a script expression in the frame's document; null when it failed or the frame has gone.
    Json Evaluate(const std::string& frameId, const std::wstring& expression);

    /// The protocol itself, for what is built over the page; none when the page has gone or the call failed.
    std::optional<Json> Call(const char* pszMethod, Json params = Json::object());

private:
    using Handler = void (CPage::*)(const Json& params);

    void OnProtocolEvent(const std::string& method, const Json& params) override;
    bool IsUrgent(const std::string& method) const override;
    void OnProtocolClosed() override;

    void OnFrameAttached(const Json& params);
    void OnFrameDetached(const Json& params);
    void OnFrameNavigated(const Json& params);
    void OnFrameStartedNavigating(const Json& params);
    void OnFrameStoppedLoading(const Json& params);
    void OnNavigatedWithinDocument(const Json& params);
    void OnRequestPaused(const Json& params);
    void OnContextCreated(const Json& params);
    void OnContextDestroyed(const Json& params);
    void OnContextsCleared(const Json& params);
    void OnDialogOpening(const Json& params);
    void OnWindowOpen(const Json& params);
    void OnScreencastFrame(const Json& params);
    void OnTargetInfoChanged(const Json& params);
    void OnTargetCrashed(const Json& params);

    bool BeginEvents(std::wstring& error);
    void GoInHistory(int nSteps);
    void UpdateHistory();
    void UpdateTitle();
    void UpdateLoading();
    void End(const std::wstring& reason);

    ILoadEvents& m_events;
    IPageView& m_view;
    CEngine* m_pEngine = nullptr; ///< outlives the page
    std::string m_targetId;
    std::unique_ptr<CConnection> m_connection;
    CFrameTree m_frames;
    CLoadTracker m_tracker;
    std::map<std::string, int> m_contexts; ///< the scripts' context of each frame's document
    std::wstring m_strTitle;
    int m_nHistoryIndex = 0;
    int m_nHistoryLength = 0;
    SIZE m_size = {};
    bool m_bPictures = false;
    bool m_bLoading = false;
    bool m_bGone = false;
};
