#pragma once

#include "tests/fakes/page/FakeHtmlDocument.h"
#include "tests/unit/band/BandFixture.h"

#include <windows.h>

#include <string>

class CButtonSearchWeb;
class CBrowserEvent;

/// A shown toolbar with all items, and a page in its browser.
class CToolbarTest : public CBandTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Shows another page in the browser, without an event.
    CFakeHtmlDocument& ShowPage(const std::wstring& strSource);

    CButtonSearchWeb& GetItem(int nIndex);
    /// The combo box of an item.
    HWND GetBox(int nIndex);
    std::wstring GetBoxText(int nIndex);
    /// The entries of the box's list, in order.
    std::vector<std::wstring> GetEntries(int nIndex);

    /// Gives the box the focus and puts a text into it.
    void Type(int nIndex, const std::wstring& strText);
    /// A key as the browser offers it to the band while the box has the focus.
    HRESULT PressKey(int nIndex, UINT nKey);
    /// Types a text and presses Enter.
    void Enter(int nIndex, const std::wstring& strText);

    /// Clicks what opens the box's list.
    void ClickArrow(int nIndex);
    /// Clicks an entry of the open list.
    void ClickEntry(int nIndex, int nEntry);
    bool IsDropped(int nIndex);

    Microsoft::WRL::ComPtr<CFakeHtmlDocument> m_spPage;
};

std::wstring GetTextOf(HWND hWnd);
