#include "bench/engine/LoadTracker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <random>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
/// Writes down what it is told, and may answer and act as a listener does.
class CRecordingLoadEvents : public ILoadEvents
{
public:
    bool OnBeforeNavigate(const CNavigation& navigation) override
    {
        const bool bAllowed = !m_bCancel;
        Note("before", navigation.strFrameId);
        return bAllowed;
    }
    void OnDownloadBegin(const std::string& frameId) override
    {
        ++m_nBegun;
        Note("begin", frameId);
    }
    void OnNavigateComplete(const std::string& frameId) override { Note("navigated", frameId); }
    void OnDownloadComplete(const std::string& frameId) override
    {
        --m_nBegun;
        Note("end", frameId);
    }
    void OnDocumentComplete(const std::string& frameId) override { Note("complete", frameId); }
    void OnNavigateError(const std::string& frameId, const std::wstring&) override { Note("error", frameId); }
    void OnFrameGone(const std::string& frameId) override { Note("gone", frameId); }

    bool m_bCancel = false;
    int m_nBegun = 0;
    std::vector<std::string> m_told;
    std::function<void(const std::string& line)> m_action;

private:
    void Note(const std::string& name, const std::string& frameId)
    {
        m_told.push_back(name + " " + frameId);
        if (m_action)
            m_action(m_told.back());
    }
};

constexpr wchar_t Url[] = L"http://host/page";
} // namespace

class LoadTracker : public testing::Test
{
protected:
    LoadTracker() { m_frames.Reset("top", L"about:blank"); }

    void Start(const std::string& frameId, const std::wstring& url = Url, const std::string& type = "differentDocument")
    {
        m_tracker.OnStartedNavigating(frameId, url, type);
    }

    bool Request(const std::string& frameId)
    {
        const bool bAllowed = m_tracker.OnRequest({.strFrameId = frameId, .strUrl = Url});
        if (bAllowed)
            m_tracker.OnRequestAllowed(frameId);
        return bAllowed;
    }

    void Load(const std::string& frameId)
    {
        Start(frameId);
        Request(frameId);
        m_tracker.OnCommitted(frameId, Url, L"", L"");
        m_tracker.OnStoppedLoading(frameId);
    }

    std::vector<std::string> Take() { return std::exchange(m_events.m_told, {}); }

    CRecordingLoadEvents m_events;
    CFrameTree m_frames;
    CLoadTracker m_tracker {m_frames, m_events};
};

TEST_F(LoadTracker, TellsALoadInTheBrowsersOrder)
{
    Load("top");
    EXPECT_THAT(Take(), ElementsAre("before top", "begin top", "navigated top", "end top", "complete top"));
    EXPECT_FALSE(m_frames.IsLoading());
}

TEST_F(LoadTracker, TellsHowFarALoadIs)
{
    Start("top");
    Request("top");
    EXPECT_EQ(m_frames.Find("top")->eState, ELoadState::Loading);
    m_tracker.OnCommitted("top", Url, L"name", L"");
    EXPECT_EQ(m_frames.Find("top")->eState, ELoadState::Interactive);
    EXPECT_EQ(m_frames.Find("top")->strUrl, Url);
    EXPECT_EQ(m_frames.Find("top")->strName, L"name");
    m_tracker.OnStoppedLoading("top");
    EXPECT_EQ(m_frames.Find("top")->eState, ELoadState::Complete);
}

TEST_F(LoadTracker, TellsNothingBehindACancelledRequest)
{
    m_events.m_bCancel = true;
    Start("top");
    EXPECT_FALSE(Request("top"));
    m_tracker.OnStoppedLoading("top");
    EXPECT_THAT(Take(), ElementsAre("before top"));
}

TEST_F(LoadTracker, KeepsTheLoadUnderWayWhenANavigationIsCancelled)
{
    for (const std::wstring& cancelled : {std::wstring(L"trelvix:x"), std::wstring(Url)})
    {
        Start("top");
        Request("top");
        m_tracker.OnCommitted("top", Url, L"", L"");
        Take();
        m_events.m_bCancel = true;
        Start("top", cancelled);
        EXPECT_FALSE(cancelled == Url && Request("top"));
        m_events.m_bCancel = false;
        m_tracker.OnStoppedLoading("top");
        EXPECT_THAT(Take(), ElementsAre("before top", "end top", "complete top"));
    }
}

TEST_F(LoadTracker, TellsAReloadByItsDownloadsAlone)
{
    Start("top", Url, "reload");
    Request("top");
    m_tracker.OnCommitted("top", Url, L"", L"");
    m_tracker.OnStoppedLoading("top");
    EXPECT_THAT(Take(), ElementsAre("begin top", "end top"));
    EXPECT_EQ(m_frames.Find("top")->nDocument, 1);
}

TEST_F(LoadTracker, AsksForAddressesThatAreNotFetchedWhenTheyStart)
{
    Start("top", L"about:blank");
    m_tracker.OnCommitted("top", L"about:blank", L"", L"");
    m_tracker.OnStoppedLoading("top");
    EXPECT_THAT(Take(), ElementsAre("before top", "begin top", "navigated top", "end top", "complete top"));
    m_events.m_bCancel = true;
    EXPECT_FALSE(m_tracker.OnStartedNavigating("top", L"trelvix:x", "differentDocument"));
    EXPECT_THAT(Take(), ElementsAre("before top"));
}

TEST_F(LoadTracker, AsksForTheBrowsersOwnNavigationOnce)
{
    EXPECT_TRUE(m_tracker.BeginOwnNavigation({.strFrameId = "top", .strUrl = L"data:text/html,x"}));
    Start("top", L"data:text/html,x");
    EXPECT_THAT(Take(), ElementsAre("before top", "begin top"));
    EXPECT_TRUE(m_tracker.BeginOwnNavigation({.strFrameId = "top", .strUrl = Url}));
    EXPECT_THAT(Take(), IsEmpty());
    m_events.m_bCancel = true;
    EXPECT_FALSE(m_tracker.BeginOwnNavigation({.strFrameId = "top", .strUrl = L"trelvix:x"}));
}

TEST_F(LoadTracker, TellsAnErrorAndTheAddressThatFailed)
{
    Start("top");
    Request("top");
    m_tracker.OnCommitted("top", L"chrome-error://x", L"", Url);
    m_tracker.OnStoppedLoading("top");
    EXPECT_THAT(Take(),
                ElementsAre("before top", "begin top", "error top", "navigated top", "end top", "complete top"));
    EXPECT_EQ(m_frames.Find("top")->strUrl, Url);
}

TEST_F(LoadTracker, TellsAnAnchorButNoAddressThatAScriptGives)
{
    m_tracker.OnMovedWithinDocument("top", L"http://host/page#a", true);
    EXPECT_THAT(Take(), ElementsAre("before top", "navigated top", "complete top"));
    m_tracker.OnMovedWithinDocument("top", L"http://host/other", false);
    EXPECT_THAT(Take(), IsEmpty());
    EXPECT_EQ(m_frames.Find("top")->strUrl, L"http://host/other");
}

TEST_F(LoadTracker, AnnouncesTheFirstDocumentOfAnEmptyFrame)
{
    m_frames.Attach("child", "top");
    m_tracker.OnCommitted("child", L"about:blank", L"", L"");
    EXPECT_THAT(Take(), ElementsAre("before child", "begin child", "navigated child", "end child", "complete child"));
}

TEST_F(LoadTracker, EndsTheLoadsOfFramesThatGo)
{
    m_frames.Attach("child", "top");
    m_frames.Attach("inner", "child");
    Start("inner");
    Request("inner");
    Take();
    m_tracker.OnCommitted("top", Url, L"", L"");
    const auto told = Take();
    EXPECT_THAT(std::vector(told.begin(), told.begin() + 3), ElementsAre("end inner", "gone inner", "gone child"));
    EXPECT_EQ(m_frames.Find("inner"), nullptr);
}

TEST_F(LoadTracker, LetsALoadTakeTheOthersPlace)
{
    Start("top");
    Request("top");
    Take();
    Load("top");
    EXPECT_THAT(Take(), ElementsAre("before top", "end top", "begin top", "navigated top", "end top", "complete top"));
}

TEST_F(LoadTracker, TellsNoDocumentThatAnotherLoadReplacesMeanwhile)
{
    Start("top");
    Request("top");
    m_tracker.OnCommitted("top", Url, L"", L"");
    Take();
    m_events.m_action = [this](const std::string& line) {
        if (line != "end top")
            return;
        m_events.m_action = nullptr;
        Start("top");
        Request("top");
    };
    m_tracker.OnStoppedLoading("top");
    EXPECT_THAT(Take(), ElementsAre("end top", "before top", "begin top"));
}

TEST_F(LoadTracker, TellsARefusedAddress)
{
    m_tracker.BeginOwnNavigation({.strFrameId = "top", .strUrl = L"trelvix:x"});
    Start("top", L"trelvix:x");
    Take();
    m_tracker.OnRefused("top", L"trelvix:x");
    EXPECT_THAT(Take(), ElementsAre("error top", "end top"));
}

TEST_F(LoadTracker, PairsBeginsAndEndsWhateverTheEngineTells)
{
    std::mt19937 random(20240611);
    const auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int nStep = 0; nStep < 20000; ++nStep)
    {
        const std::string id = pick(4) == 0 ? "top" : "f" + std::to_string(pick(6));
        switch (pick(7))
        {
        case 0:
            m_frames.Attach(id, pick(2) == 0 ? "top" : "f" + std::to_string(pick(6)));
            break;
        case 1:
            Start(id, pick(2) == 0 ? Url : L"about:blank", pick(3) == 0 ? "reload" : "differentDocument");
            break;
        case 2:
            Request(id);
            break;
        case 3:
            m_tracker.OnCommitted(id, Url, L"", L"");
            break;
        case 4:
            m_tracker.OnStoppedLoading(id);
            break;
        case 5:
            if (id != "top")
                m_tracker.OnDetached(id);
            break;
        default:
            m_events.m_bCancel = pick(3) == 0;
        }
        int nDownloading = 0;
        for (const auto& [frameId, frame] : m_frames.GetAll())
            nDownloading += frame.bDownloading ? 1 : 0;
        ASSERT_EQ(m_events.m_nBegun, nDownloading) << "after step " << nStep;
        m_events.m_told.clear();
    }
}

TEST(FrameTree, FindsTheFrameThatANavigationIsAimedAt)
{
    CFrameTree frames;
    frames.Reset("top", L"about:blank");
    frames.Attach("child", "top");
    frames.Find("child")->strName = L"menu";
    EXPECT_EQ(frames.FindTarget("top", L"")->strId, "top");
    EXPECT_EQ(frames.FindTarget("child", L"_self")->strId, "child");
    EXPECT_EQ(frames.FindTarget("child", L"_top")->strId, "top");
    EXPECT_EQ(frames.FindTarget("child", L"_parent")->strId, "top");
    EXPECT_EQ(frames.FindTarget("top", L"_parent")->strId, "top");
    EXPECT_EQ(frames.FindTarget("top", L"menu")->strId, "child");
    EXPECT_EQ(frames.FindTarget("top", L"_blank"), nullptr);
    EXPECT_EQ(frames.FindTarget("none", L"menu"), nullptr);
}

TEST(FrameTree, DetachesTheInnermostFirst)
{
    CFrameTree frames;
    frames.Reset("top", L"about:blank");
    frames.Attach("child", "top");
    frames.Attach("inner", "child");
    frames.Attach("lost", "unknown");
    EXPECT_EQ(frames.Find("lost"), nullptr);
    const auto detached = frames.Detach("child");
    ASSERT_EQ(detached.size(), 2u);
    EXPECT_EQ(detached[0].strId, "inner");
    EXPECT_EQ(detached[1].strId, "child");
    EXPECT_THAT(frames.Find("top")->children, IsEmpty());
    EXPECT_THAT(frames.Detach("child"), IsEmpty());
}
