// Whatever the browser fires, what is told keeps its order: a million events in no order, each run from its own seed.

#include "tests/fakes/RecordingEvents.h"
#include "tests/unit/events/ObservedManager.h"
#include "tests/unit/events/RandomEventSource.h"

#include <windows.h>
#include <exdispid.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>

namespace
{
using EState = CTVXEventManager::EState;
constexpr int EventsPerSeed = 100'000;

/// How a state may follow on another.
struct CTransition
{
    DISPID dispid;
    EState eBefore;
    std::optional<ENotification> told;
    EState eAfter;

    bool operator==(const CTransition&) const = default;
};

constexpr EState Idle = CTVXEventManager::StateIdle;
constexpr EState PageLoad = CTVXEventManager::StatePageLoad;
constexpr EState FrameLoad = CTVXEventManager::StateFrameLoad;
constexpr EState PageRefresh = CTVXEventManager::StatePageRefresh;
constexpr EState FrameRefresh = CTVXEventManager::StateFrameRefresh;

const CTransition transitions[] = {
    {DISPID_BEFORENAVIGATE2, Idle, ENotification::PageLoadBegin, PageLoad},
    {DISPID_BEFORENAVIGATE2, Idle, ENotification::FrameLoadBegin, FrameLoad},
    {DISPID_DOWNLOADBEGIN, Idle, ENotification::PageLoadBegin, PageLoad},
    {DISPID_DOWNLOADBEGIN, Idle, ENotification::FrameLoadBegin, FrameLoad},
    {DISPID_DOWNLOADBEGIN, Idle, ENotification::PageRefreshBegin, PageRefresh},
    {DISPID_DOWNLOADBEGIN, Idle, ENotification::FrameRefreshBegin, FrameRefresh},
    {DISPID_DOCUMENTCOMPLETE, PageLoad, ENotification::PageLoadComplete, Idle},
    {DISPID_DOCUMENTCOMPLETE, FrameLoad, ENotification::FrameLoadComplete, Idle},
    {DISPID_DOCUMENTCOMPLETE, PageRefresh, std::nullopt, Idle},
    {DISPID_DOCUMENTCOMPLETE, FrameRefresh, std::nullopt, Idle},
    {DISPID_DOWNLOADCOMPLETE, PageRefresh, ENotification::PageRefreshComplete, Idle},
    {DISPID_DOWNLOADCOMPLETE, FrameRefresh, ENotification::FrameRefreshComplete, Idle},
    {DISPID_FILEDOWNLOAD, PageLoad, ENotification::PageLoadComplete, Idle},
    {DISPID_FILEDOWNLOAD, FrameLoad, ENotification::FrameLoadComplete, Idle},
    {DISPID_FILEDOWNLOAD, PageRefresh, ENotification::PageRefreshComplete, Idle},
    {DISPID_FILEDOWNLOAD, FrameRefresh, ENotification::FrameRefreshComplete, Idle},
};

/// The state in which a notification is told: it changes only afterwards.
EState GetStateOf(ENotification eNotification)
{
    switch (eNotification)
    {
    case ENotification::PageLoadComplete:
        return PageLoad;
    case ENotification::FrameLoadComplete:
        return FrameLoad;
    case ENotification::PageRefreshComplete:
        return PageRefresh;
    case ENotification::FrameRefreshComplete:
        return FrameRefresh;
    default:
        return Idle;
    }
}

class RandomEvents : public testing::TestWithParam<unsigned>
{
protected:
    RandomEvents() { m_manager.SetWebBrowser(&m_source.GetPage().GetTop()); }
    ~RandomEvents() override { m_manager.SetWebBrowser(nullptr); }

    /// Sends one event and checks what must hold after any.
    CBrowserEvent Send()
    {
        CFakeCalls::Get().ClearLog();
        CBrowserEvent event = m_source.MakeEvent();
        event.SendTo(m_manager);
        EXPECT_GE(m_manager.m_nNavigations, 0);
        EXPECT_GE(m_manager.m_nDownloads, 0);
        EXPECT_TRUE(m_manager.GetState() != Idle || m_manager.m_spActiveFrame == nullptr);
        return event;
    }

    CRandomEventSource m_source {GetParam()};
    CRecordingEvents m_events;
    CObservedManager m_manager {&m_events};
};

TEST_P(RandomEvents, ChangeTheStateAsTheTableSaysOrNotAtAll)
{
    std::vector<CTransition> seen;
    for (int n = 0; n < EventsPerSeed && !HasFailure(); ++n)
    {
        m_events.Clear();
        const EState eBefore = m_manager.GetState();
        const DISPID dispid = Send().GetDispid();
        ASSERT_LE(m_events.GetTold().size(), 1u);
        CTransition transition {dispid, eBefore, std::nullopt, m_manager.GetState()};
        if (!m_events.GetTold().empty())
            transition.told = m_events.GetTold().front().eNotification;
        if (!transition.told && eBefore == transition.eAfter)
            continue;
        ASSERT_EQ(1, std::count(std::begin(transitions), std::end(transitions), transition)) << "event " << n;
        if (std::find(seen.begin(), seen.end(), transition) == seen.end())
            seen.push_back(transition);
    }
    EXPECT_EQ(std::size(transitions), seen.size()) << "every row is reached";
}

TEST_P(RandomEvents, TellInTheRightStateWhenTheBrowserReEnters)
{
    int nDepth = 0;
    int nDeepest = 0;
    m_events.SetAction([&](const CNotification& told) {
        EXPECT_EQ(GetStateOf(told.eNotification), m_manager.GetState()) << GetName(told.eNotification);
        nDeepest = std::max(nDeepest, ++nDepth);
        while (nDepth < 5 && m_source.OneIn(2))
            Send();
        --nDepth;
    });
    for (int n = 0; n < EventsPerSeed && !HasFailure(); ++n)
    {
        m_events.Clear();
        Send();
    }
    EXPECT_GE(nDeepest, 3) << "the browser did re-enter, several times over";
}

TEST_P(RandomEvents, LeaveNoReferenceToTheFrames)
{
    const ULONG nReferences = m_source.GetPage().GetTop().GetReferences();
    for (int n = 0; n < EventsPerSeed / 10; ++n)
        Send();
    CBrowserEvent::DocumentComplete(m_source.GetPage().GetTop().AsFrame(), L"").SendTo(m_manager);
    EXPECT_EQ(nReferences, m_source.GetPage().GetTop().GetReferences());
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEvents, testing::Range(1u, 6u));
} // namespace
