#pragma once

#include "band/TrelvixWindow.h"
#include "tests/fakes/FakeButton.h"
#include "tests/unit/band/BandFixture.h"

#include <string>
#include <vector>

/// A band whose window has fake items.
class CWindowTest : public CBandTest
{
protected:
    using Calls = std::vector<std::string>;

    void SetUp() override { CFakeButtons::Get().Reset(); }

    void TearDown() override
    {
        CFakeButtons::Get().m_onCall = nullptr;
        CBandTest::TearDown();
        EXPECT_EQ(0, CFakeButtons::Get().m_nLiving) << "items are left";
        CFakeButtons::Get().Reset();
    }

    static CFakeButtons& GetItems() { return CFakeButtons::Get(); }

    /// Connects the band with the items on its toolbar, behind the root menu. Forgets what the items were told.
    void ConnectWith(const std::vector<int>& items)
    {
        StoreItems(items);
        Connect();
        GetItems().TakeCalls();
    }

    /// Stores a layout of the items.
    static void StoreItems(const std::vector<int>& items)
    {
        std::wstring strLayout;
        for (const int nIndex : items)
        {
            wchar_t szRecord[16] = {};
            wsprintfW(szRecord, L"0001%04X", nIndex);
            strLayout += szRecord;
        }
        // An empty value would stand for the default.
        StoreSetting(L"Toolbar", L"Layout", items.empty() ? L"00000002" : strLayout);
    }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return SendMessageW(GetBandWindow(), message, wParam, lParam);
    }

    /// The window that receives the control's commands and notifications.
    HWND GetReflexionWindow() { return GetWindow(GetBandWindow(), GW_CHILD); }

    void ShowFrame()
    {
        m_frame.Show();
        m_spBand->ShowDW(TRUE);
        PumpMessages();
        GetItems().TakeCalls();
    }

    RECT GetItemRect(int nPosition)
    {
        RECT rect = {};
        Send(TB_GETITEMRECT, nPosition, reinterpret_cast<LPARAM>(&rect));
        return rect;
    }
};
