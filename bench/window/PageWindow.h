#pragma once

#include "framework/Handles.h"
#include "framework/Wnd.h"

#include <windows.h>

#include <string>

class CWebBrowser;

/// The window of class "Internet Explorer_Server" in which a page is seen: shows the engine's pictures, passes mouse
/// and keys on to the page and answers "WM_HTML_GETOBJECT".
class CPageWindow : public CWnd
{
public:
    /// The browser must outlive the window.
    bool Create(HWND hWndParent, CWebBrowser& browser);

    /// Shows another picture (an image file) from now on.
    void SetPicture(const std::string& image);
    /// Shows a line of text in place of a page.
    void SetMessage(const std::wstring& text);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    DECLARE_MESSAGE_MAP()

    void OnPaint();
    void OnSize(UINT nType, int cx, int cy);
    LRESULT OnEraseBackground(WPARAM wParam, LPARAM lParam);
    LRESULT OnKeyDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnKeyUp(WPARAM wParam, LPARAM lParam);
    LRESULT OnChar(WPARAM wParam, LPARAM lParam);
    LRESULT OnSysChar(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetFocus(WPARAM wParam, LPARAM lParam);
    LRESULT OnKillFocus(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetDialogCode(WPARAM wParam, LPARAM lParam);

    /// True when the message is one of the mouse and has been passed on.
    bool PassMouse(UINT message, WPARAM wParam, LPARAM lParam);
    void PassButton(UINT message, POINT point);

    CWebBrowser* m_pBrowser = nullptr; ///< not owned
    CUniqueBitmap m_picture;
    std::wstring m_strMessage;
};
