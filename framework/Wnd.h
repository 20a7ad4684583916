#pragma once

#include "framework/MessageMap.h"
#include "framework/Object.h"

#include <windows.h>

#include <string>

/// A window of the platform with a message map. The object owns its window: destroying the object destroys the window.
/// The window may also go first; `m_hWnd` is then null. All of an object's life belongs to the thread of its window.
class CWnd : public CObject
{
    DECLARE_DYNAMIC(CWnd)

public:
    HWND m_hWnd = nullptr;

    CWnd() = default;
    ~CWnd() override;

    operator HWND() const { return m_hWnd; }

    /// Creates the window and attaches it. A null class name means a plain class of the framework's own.
    /// Messages sent during creation go to the class's own procedure only. False when the platform refuses.
    bool CreateEx(DWORD dwExStyle, LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  HWND hWndParent, UINT nID);

    /// Attaches an existing window of this thread and puts the message map in front of its procedure.
    /// False for no window, a window of another thread, or one that another object holds already.
    bool SubclassWindow(HWND hWnd);

    /// Takes the message map off the window again and returns it, or null when there was none.
    HWND UnsubclassWindow();

    /// Destroys the window; false when there is none.
    bool DestroyWindow();

    /// The window's title, or the text of a control; empty without a window.
    void GetWindowText(std::wstring& strText) const;

    /// The object attached to the window in this module, or null.
    static CWnd* FromHandlePermanent(HWND hWnd);

    /// The number of windows in this process that have an object attached. While it isn't 0 the module must stay
    /// loaded.
    static size_t GetAttachedCount();

protected:
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

    /// Finds the message's handler in the maps, or hands the message to the window's own procedure. A notification of a
    /// child goes to the child's own map first, and no further when that has a handler.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    /// The procedure that the window had before it was attached.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    /// Default handling of the message under way, with its own arguments.
    LRESULT Default();

private:
    class CMessageScope;

    static LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    bool CallHandler(CWndMessage& message);
    bool ReflectCommand(WPARAM wParam, LPARAM lParam);
    LRESULT OnNcDestroy(WPARAM wParam, LPARAM lParam);

    WNDPROC m_pfnSuper = nullptr;
    CWndMessage* m_pCurrentMessage = nullptr; ///< on the stack of the dispatch that runs
};
