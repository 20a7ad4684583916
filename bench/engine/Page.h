#pragma once

#include "bench/engine/FrameTree.h"
#include "bench/engine/Input.h"
#include "bench/engine/LoadTracker.h"
#include "bench/engine/ScriptError.h"
#include "bench/protocol/Connection.h"

#include <windows.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

class CEngine;
class IPageView;

/// What a page tells the objects over it, beside its loads.
class IPageEvents : public ILoadEvents
{
public:
    virtual void OnTitleChanged(const std::wstring& title) = 0;
    /// A navigation of the frame turned into a file, which isn't fetched.
    virtual void OnFileDownload(const std::string& frameId) = 0;
    /// Where the page can go back and forward to may have changed.
    virtual void OnHistoryChanged() = 0;
    virtual void OnScriptError(const CScriptError& error) = 0;

protected:
    ~IPageEvents() = default;
};

/// A page of the engine with all of its frames. It belongs to the thread that opens it, which must dispatch messages;
/// all calls to and from it are made there. A call to a page that has gone does nothing and gives an empty answer.
/// CWebBrowser owns it; the window reaches it through CWebBrowser::GetPage for pictures and input.
class CPage : private IProtocolEvents
{
public:
    /// `events` hears of loads, `view` of what is to be shown. Both must outlive the page.
    CPage(IPageEvents& events, IPageView& view);
    ~CPage();

    /// Opens an empty page in the engine. False with one line for a person when that fails.
    bool Open(CEngine& engine, std::wstring& error);
    /// Nothing is told afterwards. May be called from inside an event.
    void Close();
    /// Whether the page can still be spoken to.
    bool IsOpen() const { return m_bOpen; }

    /// Begins a navigation. What becomes of it is told by events; false when a listener cancelled it at once.
    bool Navigate(const CNavigation& navigation);
    /// Begins a navigation of the top frame.
    bool Navigate(const std::wstring& url);
    void Reload();
    void ReloadFrame(const std::string& frameId);
    void Stop();
    /// The scripts of the page run no further; those of the next page do again.
    void StopScripts();

    /// The history of the page. Nothing happens when there is no such entry.
    void GoBack() { GoInHistory(-1); }
    void GoForward() { GoInHistory(1); }
    bool CanGoBack() const { return m_nHistoryIndex > 0; }
    bool CanGoForward() const { return m_nHistoryIndex + 1 < m_nHistoryLength; }

    /// Size of the page's viewport in pixels; pictures come in this size.
    void SetSize(int cx, int cy);
    /// Whether pictures are wanted. From then on one comes whenever the page has changed.
    void ShowPictures(bool bShow);
    /// A picture of the viewport (PNG) as it is now; empty when there is none to be had.
    std::string Capture();

    /// Input in pixels of the viewport. Nothing is waited for.
    void MouseEvent(EMouseEvent eEvent, POINT point, EMouseButton eButton, int nClickCount, int nModifiers);
    /// `nDelta` in the units of WM_MOUSEWHEEL, 120 for a notch away from the user.
    void Wheel(POINT point, int nDelta, int nModifiers);
    void KeyDown(UINT nVirtualKey, UINT nScanCode, int nModifiers);
    void KeyUp(UINT nVirtualKey, UINT nScanCode, int nModifiers);
    /// The character of WM_CHAR.
    void Char(wchar_t ch, int nModifiers);
    /// Tells the page whether it has the keyboard.
    void SetFocus(bool bFocus);

    const CFrameTree& GetFrames() const { return m_frames; }
    const std::string& GetTopFrameId() const { return m_frames.GetTopId(); }

    /// The value of a script expression in the frame's document; null when it failed or the frame has gone. While the
    /// next document of the top frame is fetched, the engine answers no questions about the one on show; they are not
    /// asked then and count as failed.
    Json Evaluate(const std::string& frameId, const std::wstring& expression);

    /// Asks the frame's document by a function of page.js; none when the frame has gone or the function failed.
    /// What is said above of the next document holds here as well.
    std::optional<Json> Ask(const std::string& frameId, const char* pszFunction, Json arguments = Json::array());
    /// The same without waiting for the answer.
    void Tell(const std::string& frameId, const char* pszFunction, Json arguments);

    /// The frame that an element shows, an element by page.js of the frame's document; empty when it shows none.
    std::string GetFrameOfElement(const std::string& frameId, int nElement);

    /// The protocol itself, for what is built over the page; none when the page has gone or the call failed.
    std::optional<Json> Call(const char* pszMethod, Json params = Json::object());
    void Post(const char* pszMethod, Json params = Json::object(), CConnection::Reply reply = nullptr);

private:
    void OnProtocolEvent(const std::string& method, const Json& params) override;
    bool IsUrgent(const std::string& method) const override;
    void OnProtocolClosed() override;

    static constexpr char WorldName[] = "bench"; ///< of page.js in each document, which calls the two by their names
    static constexpr char NavigateBinding[] = "benchNavigate";
    static constexpr char TitleBinding[] = "benchTitle";
    static constexpr int HistoryTries = 1000; ///< each is one round trip

    using Handler = void (CPage::*)(const Json& params);
    static const std::map<std::string, Handler>& GetHandlers();

    void OnFrameAttached(const Json& params);
    void OnFrameDetached(const Json& params);
    void OnFrameNavigated(const Json& params);
    void OnFrameStartedNavigating(const Json& params);
    void OnFrameStoppedLoading(const Json& params);
    void OnNavigatedWithinDocument(const Json& params);
    void OnRequestPaused(const Json& params);
    void OnDownloadWillBegin(const Json& params);
    void OnContextCreated(const Json& params);
    void OnContextDestroyed(const Json& params);
    void OnContextsCleared(const Json& params);
    void OnExceptionThrown(const Json& params);
    void OnBindingCalled(const Json& params);
    void OnDomContentEvent(const Json& params);
    void OnDialogOpening(const Json& params);
    void OnWindowOpen(const Json& params);
    void OnAttachedToTarget(const Json& params);
    void OnScreencastFrame(const Json& params);
    void OnTargetCrashed(const Json& params);

    bool Prepare();
    Json MakeCall(const std::string& frameId, const char* pszFunction, Json arguments, bool bByValue) const;
    std::optional<Json> CallScript(Json call);
    void Go(const CNavigation& navigation);
    void OnNavigateReply(const CNavigation& navigation, const std::optional<Json>& result);
    CNavigation MakeNavigation(const Json& pausedRequest);
    void LetRequestGo(const Json& pausedRequest, const CNavigation& navigation);
    void CancelRequest(const Json& pausedRequest);
    void LetScriptsRun();
    void RunScript(const std::string& frameId, const std::string& script);
    void GoInHistory(int nSteps);
    void OnTopShown(const std::wstring& url);
    void AskForHistory(const std::function<void(const Json&)>& take, int nTries = HistoryTries);
    void UpdateTitle();
    void SetTitle(const std::wstring& title);
    void OnScriptLink(const std::string& frameId, const std::wstring& url);
    void UpdateLoading();
    void StartPictures();
    void End(const std::wstring& reason);

    IPageEvents& m_events;
    IPageView& m_view;
    CEngine* m_pEngine = nullptr; ///< outlives the page
    std::string m_targetId;
    std::unique_ptr<CConnection> m_connection; ///< stays until the page goes, since it may be in a call of its own
    bool m_bOpen = false;

    CFrameTree m_frames;
    CLoadTracker m_tracker;
    std::map<std::string, int> m_contexts; ///< the scripts' context of each frame's document
    std::map<std::string, int> m_worlds;   ///< the context of page.js
    CNavigation m_ownNavigation;           ///< the last one that was asked for with headers or post data
    std::wstring m_strTitle;
    int m_nHistoryIndex = 0;
    int m_nHistoryLength = 0;
    bool m_bLoading = false;
    bool m_bFirstAddress = true;
    bool m_bScriptsStopped = false;
    bool m_bNextAwaited = false; ///< a request for the next document of the top frame stands or is on its way

    SIZE m_size = {};
    bool m_bPictures = false;
    int m_nButtons = 0; ///< mouse buttons that are down, as the protocol counts them
};
