#pragma once

#include <windows.h>
#include <olectl.h>

class CWnd;

/// One message as it arrived at a window, and the result that its handler gives back.
struct CWndMessage
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    LRESULT lResult;
};

/// A row of a message map. `nCode` is the notification code of WM_COMMAND, OCM_COMMAND and WM_NOTIFY, `nID` and
/// `nLastID` the range of command or control numbers; they are 0 where a message has none.
struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;
    UINT nCode;
    UINT nID;
    UINT nLastID;
    void (*pfnCall)(CWnd& wnd, CWndMessage& message); ///< null closes the map
};

/// The message map of a class and the one of its base, in which the search goes on.
struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*pfnGetBaseMap)(); ///< null for CWnd
    const AFX_MSGMAP_ENTRY* lpEntries;
};

namespace AfxMessage
{
template <class Class, auto Handler>
void CallMessage(CWnd& wnd, CWndMessage& message)
{
    message.lResult = (static_cast<Class&>(wnd).*Handler)(message.wParam, message.lParam);
}

template <class Class, auto Handler>
void CallPlain(CWnd& wnd, CWndMessage&)
{
    (static_cast<Class&>(wnd).*Handler)();
}

template <class Class, auto Handler>
void CallMouse(CWnd& wnd, CWndMessage& message)
{
    const POINT point = {static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
    (static_cast<Class&>(wnd).*Handler)(static_cast<UINT>(message.wParam), point);
}

template <class Class, auto Handler>
void CallSize(CWnd& wnd, CWndMessage& message)
{
    (static_cast<Class&>(wnd).*Handler)(static_cast<UINT>(message.wParam), LOWORD(message.lParam),
                                        HIWORD(message.lParam));
}

template <class Class, auto Handler>
void CallTimer(CWnd& wnd, CWndMessage& message)
{
    (static_cast<Class&>(wnd).*Handler)(message.wParam);
}

template <class Class, auto Handler>
void CallCommand(CWnd& wnd, CWndMessage& message)
{
    (static_cast<Class&>(wnd).*Handler)(LOWORD(message.wParam));
}

template <class Class, auto Handler>
void CallNotify(CWnd& wnd, CWndMessage& message)
{
    (static_cast<Class&>(wnd).*Handler)(reinterpret_cast<NMHDR*>(message.lParam), &message.lResult);
}
} // namespace AfxMessage

/// In the class: it has a message map.
#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* GetThisMessageMap();                                                                      \
    const AFX_MSGMAP* GetMessageMap() const override;

/// In the source: opens the map of `theClass`.
#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                                  \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    const AFX_MSGMAP* theClass::GetThisMessageMap()                                                                    \
    {                                                                                                                  \
        using ThisClass = theClass;                                                                                    \
        using BaseClass = baseClass;                                                                                   \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                                              \
    {                                                                                                                  \
        0, 0, 0, 0, nullptr                                                                                            \
    }                                                                                                                  \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP map = {[] { return BaseClass::GetThisMessageMap(); }, entries};                            \
    return &map;                                                                                                       \
    }

/// `LRESULT Handler(WPARAM, LPARAM)` for any message.
#define ON_MESSAGE(message, handler) {message, 0, 0, 0, &AfxMessage::CallMessage<ThisClass, &ThisClass::handler>},
/// `void OnDestroy()`
#define ON_WM_DESTROY() {WM_DESTROY, 0, 0, 0, &AfxMessage::CallPlain<ThisClass, &ThisClass::OnDestroy>},
/// `void OnPaint()`
#define ON_WM_PAINT() {WM_PAINT, 0, 0, 0, &AfxMessage::CallPlain<ThisClass, &ThisClass::OnPaint>},
/// `void OnLButtonDown(UINT nFlags, POINT point)`
#define ON_WM_LBUTTONDOWN() {WM_LBUTTONDOWN, 0, 0, 0, &AfxMessage::CallMouse<ThisClass, &ThisClass::OnLButtonDown>},
/// `void OnSize(UINT nType, int cx, int cy)`
#define ON_WM_SIZE() {WM_SIZE, 0, 0, 0, &AfxMessage::CallSize<ThisClass, &ThisClass::OnSize>},
/// `void OnTimer(UINT_PTR nIDEvent)`
#define ON_WM_TIMER() {WM_TIMER, 0, 0, 0, &AfxMessage::CallTimer<ThisClass, &ThisClass::OnTimer>},
/// `void Handler(UINT nID)` for the command numbers from `id` to `lastId`
#define ON_COMMAND_RANGE(id, lastId, handler)                                                                          \
    {WM_COMMAND, 0, id, lastId, &AfxMessage::CallCommand<ThisClass, &ThisClass::handler>},
/// `void Handler()` in a control, for one of its own notifications to its parent
#define ON_CONTROL_REFLECT(code, handler)                                                                              \
    {OCM_COMMAND, code, 0, 0, &AfxMessage::CallPlain<ThisClass, &ThisClass::handler>},
/// `void Handler(NMHDR* pNMHDR, LRESULT* pResult)` for one notification of one control
#define ON_NOTIFY(code, id, handler)                                                                                   \
    {WM_NOTIFY, static_cast<UINT>(code), id, id, &AfxMessage::CallNotify<ThisClass, &ThisClass::handler>},
