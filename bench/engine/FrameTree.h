#pragma once

#include <map>
#include <string>
#include <vector>

enum class ELoadState
{
    Complete,
    Loading,     ///< a document is awaited
    Interactive, ///< the new document is there, its parts are awaited
};

/// A frame of a page, the top one included, and how far its load is.
struct CPageFrame
{
    std::string strId;
    std::string strParentId; ///< empty for the top frame
    std::wstring strName;
    std::wstring strUrl;
    std::vector<std::string> children; ///< in the order in which they were attached

    ELoadState eState = ELoadState::Complete;
    int nDocument = 0; ///< counts the documents that the frame has shown

    bool bReloadAsked = false; ///< the last navigation asked for the same document again; it may yet be cancelled
    bool bReload = false;      ///< the load under way fetches the same document again
    bool bDownloading = false; ///< a begin was told that has no end yet
    bool bCommitted = false;   ///< the load under way has brought its document
};

/// The frames of a page by the engine's identifiers.
class CFrameTree
{
public:
    /// Begins anew with the top frame alone.
    void Reset(const std::string& topId, const std::wstring& url);

    const std::string& GetTopId() const { return m_topId; }
    bool IsTop(const std::string& id) const { return id == m_topId; }

    /// Null when there is no such frame. Valid until the frame is detached.
    CPageFrame* Find(const std::string& id);
    const CPageFrame* Find(const std::string& id) const;

    /// The frame that a navigation in `id` is aimed at by name, or by one of the names that every page knows; null when
    /// it is a new window.
    const CPageFrame* FindTarget(const std::string& id, const std::wstring& name) const;

    /// Whether any frame has a load under way.
    bool IsLoading() const;

    const std::map<std::string, CPageFrame>& GetAll() const { return m_frames; }

    void Attach(const std::string& id, const std::string& parentId);

    /// Takes the frame and all below it out of the tree and gives them back, the innermost first.
    std::vector<CPageFrame> Detach(const std::string& id);

private:
    std::string m_topId;
    std::map<std::string, CPageFrame> m_frames;
};
