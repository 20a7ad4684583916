#include "bench/engine/FrameTree.h"

#include <algorithm>
#include <utility>

void CFrameTree::Reset(const std::string& topId, const std::wstring& url)
{
    m_topId = topId;
    m_frames.clear();
    CPageFrame& top = m_frames[topId];
    top.strId = topId;
    top.strUrl = url;
}

CPageFrame* CFrameTree::Find(const std::string& id)
{
    return const_cast<CPageFrame*>(std::as_const(*this).Find(id));
}

const CPageFrame* CFrameTree::Find(const std::string& id) const
{
    const auto found = m_frames.find(id);
    return found == m_frames.end() ? nullptr : &found->second;
}

const CPageFrame* CFrameTree::FindTarget(const std::string& id, const std::wstring& name) const
{
    const CPageFrame* const pFrame = Find(id);
    if (pFrame == nullptr || name.empty() || name == L"_self")
        return pFrame;
    if (name == L"_top")
        return Find(m_topId);
    if (name == L"_parent")
        return Find(pFrame->strParentId.empty() ? id : pFrame->strParentId);
    const auto found =
        std::find_if(m_frames.begin(), m_frames.end(), [&](const auto& frame) { return frame.second.strName == name; });
    return found == m_frames.end() ? nullptr : &found->second;
}

bool CFrameTree::IsLoading() const
{
    return std::any_of(m_frames.begin(), m_frames.end(), [](const auto& frame) { return frame.second.bDownloading; });
}

void CFrameTree::Attach(const std::string& id, const std::string& parentId)
{
    CPageFrame* const pParent = Find(parentId);
    if (pParent == nullptr || Find(id) != nullptr)
        return;
    pParent->children.push_back(id);
    CPageFrame& frame = m_frames[id];
    frame.strId = id;
    frame.strParentId = parentId;
}

std::vector<CPageFrame> CFrameTree::Detach(const std::string& id)
{
    std::vector<CPageFrame> detached;
    CPageFrame* const pFrame = Find(id);
    if (pFrame == nullptr)
        return detached;
    for (const std::string& childId : std::vector(pFrame->children))
    {
        std::vector<CPageFrame> below = Detach(childId);
        detached.insert(detached.end(), below.begin(), below.end());
    }
    if (CPageFrame* const pParent = Find(pFrame->strParentId))
        std::erase(pParent->children, id);
    detached.push_back(std::move(*pFrame));
    m_frames.erase(id);
    return detached;
}
