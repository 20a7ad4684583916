#pragma once

#include "bench/engine/FrameTree.h"

#include <string>

/// A navigation as its begin is told.
struct CNavigation
{
    std::string strFrameId = {};
    std::wstring strUrl = {};
    std::string strPostData = {}; ///< as sent, empty for none
    std::wstring strHeaders = {}; ///< the lines that were added for it, each with its line end
};

/// The loads of a page and its frames in the browser's terms. Each call may navigate, close or change the page.
class ILoadEvents
{
public:
    /// Before anything is fetched; false cancels.
    virtual bool OnBeforeNavigate(const CNavigation& navigation) = 0;
    virtual void OnDownloadBegin(const std::string& frameId) = 0;
    /// The frame has a new document; not told for a reload.
    virtual void OnNavigateComplete(const std::string& frameId) = 0;
    virtual void OnDownloadComplete(const std::string& frameId) = 0;
    /// The document with all that it holds is there; not told for a reload.
    virtual void OnDocumentComplete(const std::string& frameId) = 0;
    /// The address could not be loaded and a page that says so takes its place.
    virtual void OnNavigateError(const std::string& frameId, const std::wstring& url) = 0;
    virtual void OnFrameGone(const std::string& frameId) = 0;

protected:
    ~ILoadEvents() = default;
};

/// Turns what the engine tells of its frames into the browser's sequence of events.
class CLoadTracker
{
public:
    CLoadTracker(CFrameTree& frames, ILoadEvents& events) : m_frames(frames), m_events(events) {}

    /// The browser itself navigates to an address that the engine won't ask for. False when that was cancelled.
    bool BeginOwnNavigation(const CNavigation& navigation);

    /// `type` is the protocol's NavigationType. False when the navigation was cancelled and must be stopped.
    bool OnStartedNavigating(const std::string& frameId, const std::wstring& url, const std::string& type);

    /// A request for a document stands ready. False when it must not go out. When it may, and has been sent on its way,
    /// OnRequestAllowed follows.
    bool OnRequest(const CNavigation& navigation);
    void OnRequestAllowed(const std::string& frameId);

    /// The frame shows another document. `unreachableUrl` is set when it is the engine's page for a failed load.
    void OnCommitted(const std::string& frameId, const std::wstring& url, const std::wstring& name,
                     const std::wstring& unreachableUrl);

    /// The frame's document went to another place in itself, or a script gave it another address.
    void OnMovedWithinDocument(const std::string& frameId, const std::wstring& url, bool bByAnchor);

    /// The engine knows no way to load the address of the browser's own navigation.
    void OnRefused(const std::string& frameId, const std::wstring& url);

    void OnStoppedLoading(const std::string& frameId);
    void OnDetached(const std::string& frameId);

private:
    /// The empty document that a new frame begins with comes without a begin.
    void Announce(const std::string& frameId, const std::wstring& url);
    /// The navigation that was asked for becomes the load under way.
    void BeginAsked(const std::string& frameId);
    void Begin(const std::string& frameId);
    void End(const std::string& frameId);

    CFrameTree& m_frames;
    ILoadEvents& m_events;
    std::string m_ownFrameId; ///< frame of the last own navigation that the engine hasn't told yet
};
