#pragma once

#include "band/TrelvixWindow.h"
#include "settings/SettingsStore.h"
#include "tests/fakes/BrowserEvent.h"
#include "tests/fakes/FakeButton.h"
#include "tests/fakes/FakePage.h"
#include "tests/fakes/FakeSettingsBroker.h"
#include "tests/fakes/ProductModule.h"
#include "tests/fakes/TestWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

/// A real toolbar window with fake items, on a fake page.
class CToolbarOnPageTest : public testing::Test
{
protected:
    CToolbarOnPageTest();
    ~CToolbarOnPageTest() override;

    CFakeWebBrowser2& GetTop() { return m_page.GetTop(); }

    /// Sends the event to the window as the band does.
    void Send(CBrowserEvent& event) { event.SendTo(*m_pWindow); }
    void Send(CBrowserEvent&& event) { event.SendTo(*m_pWindow); }
    /// Sends a navigation of the top-level page, and tells whether it was cancelled.
    bool Navigate(const std::wstring& strUrl);

    /// A setting of the product, by the broker's whole key.
    static std::wstring GetKey(const std::wstring& strSection, const std::wstring& strName);

    CProductModule m_module;
    CFakeSettingsBrokerServer m_broker;
    CTestWindow m_parent;
    CFakePage m_page;
    std::unique_ptr<CTrelvixWindow> m_pWindow = std::make_unique<CTrelvixWindow>();
};
