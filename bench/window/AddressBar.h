#pragma once

#include "framework/Handles.h"
#include "framework/ImageList.h"
#include "framework/ToolBarCtrl.h"
#include "framework/Wnd.h"

#include <windows.h>

#include <string>

/// The row with Back, Forward, the address, Reload and Go. Its commands go to the frame as WM_COMMAND.
class CAddressBar : public CWnd
{
public:
    static constexpr int Height = 30;

    bool Create(HWND hWndParent);

    /// Shows the address, unless a person is typing one.
    void SetAddress(const std::wstring& url);
    /// What stands in the box, blanks at both ends taken off.
    std::wstring GetAddress() const;
    /// Gives the keyboard to the box and selects what stands in it.
    void TakeFocus();
    bool HasFocus() const { return GetFocus() == m_edit; }
    /// The person is done with typing: the next SetAddress shows.
    void EndTyping();

    void SetState(bool bCanGoBack, bool bCanGoForward, bool bLoading);

private:
    DECLARE_MESSAGE_MAP()

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnPaint();
    void OnSize(UINT nType, int cx, int cy);
    LRESULT OnEraseBackground(WPARAM wParam, LPARAM lParam);

    bool CreateButtons(CToolBarCtrl& toolbar, int nFirstImage, UINT nFirstCommand, UINT nSecondCommand);
    void LoadImages();

    CImageList m_images;
    CToolBarCtrl m_history;
    CToolBarCtrl m_actions;
    CWnd m_edit;
    CUniqueHandle<HFONT, DeleteObject> m_font;
    bool m_bTyping = false;
};
