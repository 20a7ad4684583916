#include "bench/engine/LoadTracker.h"

#include "bench/engine/Url.h"

#include <utility>

namespace
{
bool IsWithinDocument(const std::string& type)
{
    return type == "sameDocument" || type == "historySameDocument";
}

bool IsReload(const std::string& type)
{
    return type == "reload" || type == "reloadBypassingCache";
}
} // namespace

bool CLoadTracker::BeginOwnNavigation(const CNavigation& navigation)
{
    if (IsFetchedUrl(navigation.strUrl))
        return true;
    if (!m_events.OnBeforeNavigate(navigation))
        return false;
    if (!IsScriptUrl(navigation.strUrl))
        m_ownFrameId = navigation.strFrameId;
    return true;
}

bool CLoadTracker::OnStartedNavigating(const std::string& frameId, const std::wstring& url, const std::string& type)
{
    CPageFrame* const pFrame = m_frames.Find(frameId);
    if (pFrame == nullptr || IsWithinDocument(type))
        return true;
    const bool bOwn = std::exchange(m_ownFrameId, {}) == frameId;
    // Until nobody can cancel it any more, the load under way goes on.
    pFrame->bReloadAsked = IsReload(type);
    if (!pFrame->bReloadAsked && IsFetchedUrl(url))
        return true;
    if (!pFrame->bReloadAsked && !bOwn && !m_events.OnBeforeNavigate({.strFrameId = frameId, .strUrl = url}))
        return false;
    BeginAsked(frameId);
    return true;
}

bool CLoadTracker::OnRequest(const CNavigation& navigation)
{
    const CPageFrame* const pFrame = m_frames.Find(navigation.strFrameId);
    return pFrame == nullptr || pFrame->bReloadAsked || m_events.OnBeforeNavigate(navigation);
}

void CLoadTracker::OnRequestAllowed(const std::string& frameId)
{
    const CPageFrame* const pFrame = m_frames.Find(frameId);
    if (pFrame != nullptr && !pFrame->bReloadAsked)
        BeginAsked(frameId);
}

void CLoadTracker::OnCommitted(const std::string& frameId, const std::wstring& url, const std::wstring& name,
                               const std::wstring& unreachableUrl)
{
    if (const CPageFrame* const pFrame = m_frames.Find(frameId))
        for (const std::string& childId : std::vector(pFrame->children))
            OnDetached(childId);
    CPageFrame* const pFrame = m_frames.Find(frameId);
    if (pFrame == nullptr)
        return;
    ++pFrame->nDocument;
    pFrame->strUrl = unreachableUrl.empty() ? url : unreachableUrl;
    pFrame->strName = name;
    pFrame->bCommitted = true;
    const bool bUnannounced = !pFrame->bDownloading;
    if (bUnannounced)
        pFrame->bReload = false;
    const bool bReload = pFrame->bReload;
    if (bUnannounced)
        Announce(frameId, url);
    else
        pFrame->eState = ELoadState::Interactive;
    if (!unreachableUrl.empty())
        m_events.OnNavigateError(frameId, unreachableUrl);
    if (!bReload)
        m_events.OnNavigateComplete(frameId);
    if (bUnannounced)
        OnStoppedLoading(frameId);
}

void CLoadTracker::Announce(const std::string& frameId, const std::wstring& url)
{
    m_events.OnBeforeNavigate({.strFrameId = frameId, .strUrl = url});
    Begin(frameId);
}

void CLoadTracker::OnMovedWithinDocument(const std::string& frameId, const std::wstring& url, bool bByAnchor)
{
    if (bByAnchor && m_frames.Find(frameId) != nullptr)
        m_events.OnBeforeNavigate({.strFrameId = frameId, .strUrl = url});
    CPageFrame* const pFrame = m_frames.Find(frameId);
    if (pFrame == nullptr)
        return;
    pFrame->strUrl = url;
    if (!bByAnchor)
        return;
    m_events.OnNavigateComplete(frameId);
    m_events.OnDocumentComplete(frameId);
}

void CLoadTracker::OnRefused(const std::string& frameId, const std::wstring& url)
{
    m_ownFrameId.clear();
    m_events.OnNavigateError(frameId, url);
    End(frameId);
}

void CLoadTracker::OnStoppedLoading(const std::string& frameId)
{
    const CPageFrame* const pFrame = m_frames.Find(frameId);
    if (pFrame == nullptr || !pFrame->bDownloading)
        return;
    const bool bNewDocument = pFrame->bCommitted && !pFrame->bReload;
    End(frameId);
    // A listener may have begun another load, whose end is then the next to be told.
    const CPageFrame* const pStillThere = m_frames.Find(frameId);
    if (bNewDocument && pStillThere && !pStillThere->bDownloading)
        m_events.OnDocumentComplete(frameId);
}

void CLoadTracker::OnDetached(const std::string& frameId)
{
    for (const CPageFrame& frame : m_frames.Detach(frameId))
    {
        if (frame.bDownloading)
            m_events.OnDownloadComplete(frame.strId);
        m_events.OnFrameGone(frame.strId);
    }
}

void CLoadTracker::BeginAsked(const std::string& frameId)
{
    if (CPageFrame* const pFrame = m_frames.Find(frameId))
    {
        pFrame->bReload = pFrame->bReloadAsked;
        pFrame->bCommitted = false;
    }
    Begin(frameId);
}

void CLoadTracker::Begin(const std::string& frameId)
{
    // A load that takes another's place ends it.
    End(frameId);
    CPageFrame* const pFrame = m_frames.Find(frameId);
    if (pFrame == nullptr)
        return;
    pFrame->bDownloading = true;
    pFrame->eState = ELoadState::Loading;
    m_events.OnDownloadBegin(frameId);
}

void CLoadTracker::End(const std::string& frameId)
{
    CPageFrame* const pFrame = m_frames.Find(frameId);
    if (pFrame == nullptr || !pFrame->bDownloading)
        return;
    pFrame->bDownloading = false;
    pFrame->eState = ELoadState::Complete;
    m_events.OnDownloadComplete(frameId);
}
