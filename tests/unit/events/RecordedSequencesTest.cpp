// What the bench browser fired on real pages, with what is to be told for it.

#include "tests/fakes/BrowserEvent.h"
#include "tests/fakes/FakePage.h"
#include "tests/fakes/RecordingEvents.h"
#include "tests/unit/events/ObservedManager.h"
#include "tests/unit/events/RecordedSequence.h"

#include <gtest/gtest.h>

#include <algorithm>

using Microsoft::WRL::ComPtr;

namespace
{
std::filesystem::path GetFolder()
{
    wchar_t szProgram[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, szProgram, MAX_PATH);
    return std::filesystem::path(szProgram).parent_path() / "sequences";
}

std::wstring GetParentPath(const std::wstring& strPath)
{
    return strPath.substr(0, strPath.find_last_of(L'.', strPath.size() - 2) + 1);
}

/// The page of a recording: its frames come, go and complete as they did then.
class CReplayedPage
{
public:
    CReplayedPage()
    {
        m_frames[L"1."] = &m_page.GetTop();
        GetTop().m_strUrl.clear();
    }

    CFakeWebBrowser2& GetTop() { return m_page.GetTop(); }

    void Follow(const std::map<std::wstring, int>& readyStates)
    {
        for (auto frame = m_frames.rbegin(); frame != m_frames.rend();)
            frame = readyStates.contains(frame->first) ? std::next(frame) : Remove(frame);
        for (const auto& [strPath, nState] : readyStates)
        {
            if (!m_frames.contains(strPath))
                m_frames[strPath] = &m_page.AddFrame(*m_frames.at(GetParentPath(strPath)), L"");
            m_frames[strPath]->m_eReadyState = static_cast<READYSTATE>(nState);
        }
    }

    /// Gives the page or frame of a navigation its new address.
    void Complete(const CRecordedEvent& event)
    {
        if (event.strName == L"NavigateComplete2" && !event.strFramePath.empty())
            m_frames.at(event.strFramePath)->m_strUrl = event.strUrl;
    }

    /// The frame's browser; that of a frame which has gone is another object than all others.
    IDispatch* GetFrame(const std::wstring& strPath)
    {
        return strPath.empty() ? m_spGone->AsFrame() : m_frames.at(strPath)->AsFrame();
    }

    std::wstring GetPath(IDispatch* pFrame) const
    {
        for (const auto& [strPath, pBrowser] : m_frames)
            if (pBrowser->AsFrame() == pFrame)
                return strPath;
        return L"-";
    }

private:
    using Frames = std::map<std::wstring, CFakeWebBrowser2*>;

    Frames::reverse_iterator Remove(Frames::reverse_iterator frame)
    {
        auto& objects = CFakePage::GetDocument(*m_frames.at(GetParentPath(frame->first))).m_objects;
        std::erase_if(objects,
                      [&](const ComPtr<IUnknown>& spObject) { return spObject.Get() == frame->second->AsFrame(); });
        return Frames::reverse_iterator(m_frames.erase(std::prev(frame.base())));
    }

    CFakePage m_page;
    Frames m_frames; ///< by path, owned by the page; a frame stands behind its parent
    ComPtr<CFakeWebBrowser2> m_spGone = MakeFake<CFakeWebBrowser2>();
};

CBrowserEvent MakeEvent(const CRecordedEvent& recorded, CReplayedPage& page)
{
    IDispatch* const pFrame = recorded.bHasFrame ? page.GetFrame(recorded.strFramePath) : nullptr;
    if (recorded.strName == L"BeforeNavigate2")
        return CBrowserEvent::BeforeNavigate2(pFrame, recorded.strUrl);
    if (recorded.strName == L"NavigateComplete2")
        return CBrowserEvent::NavigateComplete2(pFrame, recorded.strUrl);
    if (recorded.strName == L"DocumentComplete")
        return CBrowserEvent::DocumentComplete(pFrame, recorded.strUrl);
    if (recorded.strName == L"DownloadBegin")
        return CBrowserEvent::DownloadBegin();
    if (recorded.strName == L"DownloadComplete")
        return CBrowserEvent::DownloadComplete();
    if (recorded.strName == L"FileDownload")
        return CBrowserEvent::FileDownload();
    return CBrowserEvent::StatusTextChange(recorded.strName);
}

std::wstring Describe(const CNotification& told, const CReplayedPage& page)
{
    const std::string strName = GetName(told.eNotification);
    std::wstring strText(strName.begin(), strName.end());
    if (told.eNotification != ENotification::PageRefreshComplete &&
        told.eNotification != ENotification::FrameRefreshComplete)
        strText += L" " + (told.strPath.empty() ? page.GetPath(told.pFrame) : told.strPath);
    return told.strUrl.empty() ? strText : strText + L" " + told.strUrl;
}

class RecordedSequence : public testing::TestWithParam<std::string>
{
};

TEST_P(RecordedSequence, IsToldAsWrittenBesideIt)
{
    const std::vector<CRecordedEvent> events = ReadSequence(GetFolder() / (GetParam() + ".txt"));
    ASSERT_FALSE(events.empty());
    CReplayedPage page;
    CRecordingEvents sink;
    CObservedManager manager(&sink);
    manager.SetWebBrowser(&page.GetTop());
    for (size_t n = 0; n < events.size(); ++n)
    {
        page.Follow(events[n].readyStates);
        sink.Clear();
        MakeEvent(events[n], page).SendTo(manager);
        page.Complete(events[n]);
        std::vector<std::wstring> told;
        for (const CNotification& notification : sink.GetTold())
            told.push_back(Describe(notification, page));
        EXPECT_EQ(events[n].notifications, told) << "event " << n + 1;
        EXPECT_GE(manager.m_nNavigations, 0);
        EXPECT_GE(manager.m_nDownloads, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(BenchBrowser, RecordedSequence,
                         testing::Values("anchor-and-script", "back-and-forward", "error-page", "file-download",
                                         "frame-navigation", "frame-reload", "frameset", "interrupted-loads",
                                         "page-with-frames", "pseudo-urls", "redirection", "reload"),
                         [](const auto& info) {
                             std::string strName = info.param;
                             std::replace(strName.begin(), strName.end(), '-', '_');
                             return strName;
                         });
} // namespace
