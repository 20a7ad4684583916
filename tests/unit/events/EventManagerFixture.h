#pragma once

#include "tests/fakes/BrowserEvent.h"
#include "tests/fakes/FakePage.h"
#include "tests/fakes/MockEvents.h"
#include "tests/unit/events/ObservedManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// A manager between the browser of a fake page and a sink with expectations.
class CEventManagerTest : public testing::Test
{
protected:
    CEventManagerTest() { m_manager.SetWebBrowser(&m_page.GetTop()); }

    CFakeWebBrowser2& GetTop() { return m_page.GetTop(); }
    CFakeWebBrowser2& AddFrame(const std::wstring& strUrl) { return m_page.AddFrame(GetTop(), strUrl); }

    void Send(CBrowserEvent event) { event.SendTo(m_manager); }
    void BeforeNavigate(CFakeWebBrowser2& frame, const std::wstring& strUrl)
    {
        Send(CBrowserEvent::BeforeNavigate2(frame.AsFrame(), strUrl));
    }
    void DocumentComplete(CFakeWebBrowser2& frame, const std::wstring& strUrl)
    {
        Send(CBrowserEvent::DocumentComplete(frame.AsFrame(), strUrl));
    }

    CFakePage m_page;
    testing::StrictMock<CMockEvents> m_events;
    CObservedManager m_manager {&m_events};
};
