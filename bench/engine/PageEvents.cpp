#include "bench/engine/Engine.h"
#include "bench/engine/Page.h"
#include "bench/engine/PageView.h"
#include "bench/engine/Url.h"
#include "bench/protocol/Base64.h"

#include <utility>

const std::map<std::string, CPage::Handler>& CPage::GetHandlers()
{
    static const std::map<std::string, Handler> handlers = {
        {"Fetch.requestPaused", &CPage::OnRequestPaused},
        {"Inspector.targetCrashed", &CPage::OnTargetCrashed},
        {"Page.domContentEventFired", &CPage::OnDomContentEvent},
        {"Page.downloadWillBegin", &CPage::OnDownloadWillBegin},
        {"Page.frameAttached", &CPage::OnFrameAttached},
        {"Page.frameDetached", &CPage::OnFrameDetached},
        {"Page.frameNavigated", &CPage::OnFrameNavigated},
        {"Page.frameStartedNavigating", &CPage::OnFrameStartedNavigating},
        {"Page.frameStoppedLoading", &CPage::OnFrameStoppedLoading},
        {"Page.javascriptDialogOpening", &CPage::OnDialogOpening},
        {"Page.navigatedWithinDocument", &CPage::OnNavigatedWithinDocument},
        {"Page.screencastFrame", &CPage::OnScreencastFrame},
        {"Page.windowOpen", &CPage::OnWindowOpen},
        {"Runtime.bindingCalled", &CPage::OnBindingCalled},
        {"Runtime.exceptionThrown", &CPage::OnExceptionThrown},
        {"Runtime.executionContextCreated", &CPage::OnContextCreated},
        {"Runtime.executionContextDestroyed", &CPage::OnContextDestroyed},
        {"Runtime.executionContextsCleared", &CPage::OnContextsCleared},
        {"Target.attachedToTarget", &CPage::OnAttachedToTarget},
    };
    return handlers;
}

void CPage::OnProtocolEvent(const std::string& method, const Json& params)
{
    const auto handler = GetHandlers().find(method);
    if (handler == GetHandlers().end() || !m_bOpen)
        return;
    (this->*handler->second)(params);
    UpdateLoading();
}

bool CPage::IsUrgent(const std::string& method) const
{
    return method == "Fetch.requestPaused" || method == "Page.javascriptDialogOpening" ||
           method == "Inspector.targetCrashed";
}

void CPage::OnProtocolClosed()
{
    End(L"The engine has ended.");
}

void CPage::OnTargetCrashed(const Json&)
{
    End(L"The page's process in the engine has ended.");
}

void CPage::OnFrameAttached(const Json& params)
{
    m_frames.Attach(GetNarrowText(params, "frameId"), GetNarrowText(params, "parentFrameId"));
}

void CPage::OnFrameDetached(const Json& params)
{
    m_tracker.OnDetached(GetNarrowText(params, "frameId"));
}

void CPage::OnFrameNavigated(const Json& params)
{
    const Json& frame = GetObjectMember(params, "frame");
    const std::string id = GetNarrowText(frame, "id");
    if (m_frames.IsTop(id))
        m_bNextAwaited = false;
    m_tracker.OnCommitted(id, GetText(frame, "url") + GetText(frame, "urlFragment"), GetText(frame, "name"),
                          GetText(frame, "unreachableUrl"));
    if (m_frames.IsTop(id))
        OnTopShown(m_frames.Find(id)->strUrl);
}

void CPage::OnFrameStartedNavigating(const Json& params)
{
    const std::string frameId = GetNarrowText(params, "frameId");
    if (m_frames.IsTop(frameId))
        LetScriptsRun();
    const std::wstring url = GetText(params, "url");
    const bool bAllowed = m_tracker.OnStartedNavigating(frameId, url, GetNarrowText(params, "navigationType"));
    // The engine drops what it can't load; stopping it would stop the document on show as well.
    if (!bAllowed && IsUrlWithoutRequest(url))
        RunScript(frameId, "stop()");
}

void CPage::OnFrameStoppedLoading(const Json& params)
{
    const std::string frameId = GetNarrowText(params, "frameId");
    if (m_frames.IsTop(frameId))
        m_bNextAwaited = false;
    m_tracker.OnStoppedLoading(frameId);
    if (m_frames.IsTop(frameId))
        UpdateTitle();
}

void CPage::OnNavigatedWithinDocument(const Json& params)
{
    const std::string frameId = GetNarrowText(params, "frameId");
    const std::wstring url = GetText(params, "url");
    m_tracker.OnMovedWithinDocument(frameId, url, GetNarrowText(params, "navigationType") == "fragment");
    if (m_frames.IsTop(frameId))
        OnTopShown(url);
}

void CPage::OnRequestPaused(const Json& params)
{
    // Where a server sends a request on to is no navigation of its own.
    if (params.contains("redirectedRequestId"))
        return LetRequestGo(params, {});
    const CNavigation navigation = MakeNavigation(params);
    if (m_frames.IsTop(navigation.strFrameId))
        m_bNextAwaited = true;
    if (!m_tracker.OnRequest(navigation))
        return CancelRequest(params);
    LetRequestGo(params, navigation);
    m_tracker.OnRequestAllowed(navigation.strFrameId);
}

void CPage::CancelRequest(const Json& pausedRequest)
{
    Post("Fetch.failRequest", {{"requestId", GetNarrowText(pausedRequest, "requestId")}, {"errorReason", "Aborted"}});
    if (m_frames.IsTop(GetNarrowText(pausedRequest, "frameId")))
        m_bNextAwaited = false;
}

void CPage::OnDownloadWillBegin(const Json& params)
{
    m_events.OnFileDownload(GetNarrowText(params, "frameId"));
}

void CPage::OnContextCreated(const Json& params)
{
    const Json& context = GetObjectMember(params, "context");
    const Json& about = GetObjectMember(context, "auxData");
    const int nId = GetNumber(context, "id", 0);
    if (GetFlag(about, "isDefault"))
        m_contexts[GetNarrowText(about, "frameId")] = nId;
    else if (GetNarrowText(context, "name") == WorldName)
        m_worlds[GetNarrowText(about, "frameId")] = nId;
}

void CPage::OnContextDestroyed(const Json& params)
{
    const auto isIt = [nId = GetNumber(params, "executionContextId", 0)](const auto& context) {
        return context.second == nId;
    };
    std::erase_if(m_contexts, isIt);
    std::erase_if(m_worlds, isIt);
}

void CPage::OnContextsCleared(const Json&)
{
    m_contexts.clear();
    m_worlds.clear();
}

void CPage::OnDomContentEvent(const Json&)
{
    UpdateTitle();
}

void CPage::UpdateTitle()
{
    const Json title = Evaluate(GetTopFrameId(), L"document.title");
    if (title.is_string())
        SetTitle(FromUtf8(title.get<std::string>()));
}

void CPage::SetTitle(const std::wstring& title)
{
    if (std::exchange(m_strTitle, title) == title)
        return;
    m_view.OnTitleChanged(title);
    m_events.OnTitleChanged(title);
}

void CPage::UpdateLoading()
{
    const bool bLoading = m_frames.IsLoading();
    if (std::exchange(m_bLoading, bLoading) != bLoading)
        m_view.OnLoadingChanged(bLoading);
}

void CPage::OnDialogOpening(const Json& params)
{
    const std::string type = GetNarrowText(params, "type");
    Post("Page.handleJavaScriptDialog", {{"accept", type == "alert" || type == "beforeunload"}});
    if (type != "beforeunload")
        m_view.OnScriptDialog(GetText(params, "message"));
}

void CPage::OnWindowOpen(const Json& params)
{
    m_view.OnNewWindow(GetText(params, "url"));
}

void CPage::OnAttachedToTarget(const Json& params)
{
    // The view opens a window of its own for the address.
    m_pEngine->CloseTarget(GetNarrowText(GetObjectMember(params, "targetInfo"), "targetId"));
}

void CPage::OnScreencastFrame(const Json& params)
{
    Post("Page.screencastFrameAck", {{"sessionId", GetNumber(params, "sessionId", 0)}});
    m_view.OnPicture(FromBase64(GetNarrowText(params, "data")));
}
