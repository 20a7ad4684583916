#include "bench/engine/Page.h"
#include "bench/engine/PageView.h"
#include "bench/engine/Url.h"
#include "bench/protocol/Base64.h"

#include <utility>

bool CPage::Navigate(const std::wstring& url)
{
    return Navigate({.strFrameId = GetTopFrameId(), .strUrl = url});
}

bool CPage::Navigate(const CNavigation& navigation)
{
    if (!m_bOpen)
        return false;
    CNavigation complete = navigation;
    complete.strUrl = CompleteUrl(navigation.strUrl);
    if (!m_tracker.BeginOwnNavigation(complete))
        return false;
    if (IsScriptUrl(complete.strUrl))
        RunScript(complete.strFrameId, ToUtf8(GetScriptOfUrl(complete.strUrl)));
    else
        Go(complete);
    return true;
}

void CPage::Go(const CNavigation& navigation)
{
    m_ownNavigation = navigation;
    m_view.OnStatusText({});
    Json params = {{"url", ToUtf8(navigation.strUrl)}};
    if (!m_frames.IsTop(navigation.strFrameId))
        params["frameId"] = navigation.strFrameId;
    Post("Page.navigate", std::move(params),
         [this, navigation](const std::optional<Json>& result) { OnNavigateReply(navigation, result); });
}

void CPage::OnNavigateReply(const CNavigation& navigation, const std::optional<Json>& result)
{
    const std::string error = result ? GetNarrowText(*result, "errorText") : "net::ERR_INVALID_URL";
    const bool bAborted = error == "net::ERR_ABORTED";
    if (error.empty() || (bAborted && IsFetchedUrl(navigation.strUrl)))
        return;
    // An address that the engine doesn't know how to load is told by nothing else.
    if (bAborted || error == "net::ERR_INVALID_URL")
        m_tracker.OnRefused(navigation.strFrameId, navigation.strUrl);
    std::wstring status = L"Can't reach " + navigation.strUrl;
    if (!bAborted)
        status.append(L" (").append(FromUtf8(error)).append(L")");
    m_view.OnStatusText(status);
}

void CPage::RunScript(const std::string& frameId, const std::string& script)
{
    const auto context = m_contexts.find(frameId);
    if (context != m_contexts.end())
        Post("Runtime.evaluate", {{"expression", script}, {"contextId", context->second}, {"userGesture", true}});
}

CNavigation CPage::MakeNavigation(const Json& pausedRequest)
{
    const Json& request = GetObjectMember(pausedRequest, "request");
    CNavigation navigation = {.strFrameId = GetNarrowText(pausedRequest, "frameId"),
                              .strUrl = GetText(request, "url") + GetText(request, "urlFragment"),
                              .strPostData = GetNarrowText(request, "postData")};
    const CNavigation own = std::exchange(m_ownNavigation, {});
    if (own.strFrameId == navigation.strFrameId)
    {
        navigation.strHeaders = own.strHeaders;
        navigation.strPostData += own.strPostData;
    }
    return navigation;
}

void CPage::LetRequestGo(const Json& pausedRequest, const CNavigation& navigation)
{
    const Json& request = GetObjectMember(pausedRequest, "request");
    Json params = {{"requestId", GetNarrowText(pausedRequest, "requestId")}};
    if (!navigation.strHeaders.empty())
        params["headers"] = JoinHeaders(GetObjectMember(request, "headers"), navigation.strHeaders);
    if (!navigation.strPostData.empty() && GetNarrowText(request, "method") == "GET")
    {
        params["method"] = "POST";
        params["postData"] = ToBase64(navigation.strPostData);
    }
    Post("Fetch.continueRequest", std::move(params));
}

void CPage::Reload()
{
    Post("Page.reload");
}

void CPage::ReloadFrame(const std::string& frameId)
{
    if (m_frames.IsTop(frameId))
        return Reload();
    RunScript(frameId, "location.reload()");
}

void CPage::Stop()
{
    Post("Page.stopLoading");
}

void CPage::GoInHistory(int nSteps)
{
    AskForHistory([this, nSteps](const Json& history) {
        const int nIndex = GetNumber(history, "currentIndex", 0) + nSteps;
        const Json& entries = history["entries"];
        if (nIndex >= 0 && nIndex < static_cast<int>(entries.size()))
            Post("Page.navigateToHistoryEntry", {{"entryId", entries[nIndex]["id"]}});
    });
}

void CPage::AskForHistory(const std::function<void(const Json&)>& take, int nTries)
{
    Post("Page.getNavigationHistory", Json::object(), [this, take, nTries](const std::optional<Json>& history) {
        if (history)
            take(*history);
        // While a page of another process takes the place of the last one, the engine refuses to answer.
        else if (nTries > 1)
            AskForHistory(take, nTries - 1);
    });
}

void CPage::OnTopShown(const std::wstring& url)
{
    m_view.OnAddressChanged(url);
    AskForHistory([this](const Json& history) {
        m_nHistoryIndex = GetNumber(history, "currentIndex", 0);
        m_nHistoryLength = static_cast<int>(history["entries"].size());
        // The empty page that every window begins with is no place to go back to.
        if (std::exchange(m_bFirstAddress, false))
        {
            Post("Page.resetNavigationHistory");
            m_nHistoryIndex = 0;
            m_nHistoryLength = 1;
        }
        m_events.OnHistoryChanged();
        m_view.OnHistoryChanged();
    });
}
