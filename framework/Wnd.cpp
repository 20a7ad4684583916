#include "framework/Wnd.h"

#include "framework/Lock.h"
#include "framework/Module.h"

#include <map>
#include <utility>

namespace
{
constexpr wchar_t PlainClassName[] = L"TrelvixWnd";

/// Registers the framework's plain window class, and takes it back at unload so that the module can be loaded again.
class CPlainWindowClass
{
public:
    CPlainWindowClass()
    {
        WNDCLASSEXW windowClass = {};
        windowClass.cbSize = sizeof windowClass;
        windowClass.lpfnWndProc = DefWindowProcW;
        windowClass.hInstance = AfxGetInstanceHandle();
        windowClass.lpszClassName = PlainClassName;
        RegisterClassExW(&windowClass);
    }

    ~CPlainWindowClass() { UnregisterClassW(PlainClassName, AfxGetInstanceHandle()); }
};

/// The windows of all threads that have an object attached.
class CWindowMap
{
public:
    bool Add(HWND hWnd, CWnd* pWnd)
    {
        CExclusiveLock lock(m_lock);
        return m_windows.emplace(hWnd, pWnd).second;
    }

    void Remove(HWND hWnd)
    {
        CExclusiveLock lock(m_lock);
        m_windows.erase(hWnd);
    }

    CWnd* Find(HWND hWnd)
    {
        CSharedLock lock(m_lock);
        const auto found = m_windows.find(hWnd);
        return found == m_windows.end() ? nullptr : found->second;
    }

    size_t GetCount()
    {
        CSharedLock lock(m_lock);
        return m_windows.size();
    }

private:
    SRWLOCK m_lock = SRWLOCK_INIT;
    std::map<HWND, CWnd*> m_windows;
};

CWindowMap& GetWindowMap()
{
    static CWindowMap map;
    return map;
}
} // namespace

IMPLEMENT_DYNAMIC(CWnd, CObject)

CWnd::~CWnd()
{
    DestroyWindow();
}

bool CWnd::CreateEx(DWORD dwExStyle, LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                    HWND hWndParent, UINT nID)
{
    static const CPlainWindowClass plainClass;
    const HMENU hMenuOrId = reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID));
    const HWND hWnd = CreateWindowExW(dwExStyle, lpszClassName ? lpszClassName : PlainClassName, lpszWindowName,
                                      dwStyle, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                                      hWndParent, hMenuOrId, AfxGetInstanceHandle(), nullptr);
    if (hWnd == nullptr)
        return false;
    if (SubclassWindow(hWnd))
        return true;
    ::DestroyWindow(hWnd);
    return false;
}

bool CWnd::SubclassWindow(HWND hWnd)
{
    if (m_hWnd != nullptr || GetWindowThreadProcessId(hWnd, nullptr) != GetCurrentThreadId())
        return false;
    if (!GetWindowMap().Add(hWnd, this))
        return false;
    m_hWnd = hWnd;
    m_pfnSuper =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&CWnd::AfxWndProc)));
    return true;
}

HWND CWnd::UnsubclassWindow()
{
    const HWND hWnd = m_hWnd;
    if (hWnd == nullptr)
        return nullptr;
    SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
    GetWindowMap().Remove(hWnd);
    m_hWnd = nullptr;
    m_pfnSuper = nullptr;
    m_pCurrentMessage = nullptr;
    return hWnd;
}

bool CWnd::DestroyWindow()
{
    return m_hWnd != nullptr && ::DestroyWindow(m_hWnd);
}

void CWnd::GetWindowText(std::wstring& strText) const
{
    strText.resize(::GetWindowTextLengthW(m_hWnd));
    strText.resize(::GetWindowTextW(m_hWnd, strText.data(), static_cast<int>(strText.size() + 1)));
}

CWnd* CWnd::FromHandlePermanent(HWND hWnd)
{
    return GetWindowMap().Find(hWnd);
}

size_t CWnd::GetAttachedCount()
{
    return GetWindowMap().GetCount();
}

const AFX_MSGMAP* CWnd::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CWnd::GetMessageMap() const
{
    return GetThisMessageMap();
}

namespace
{
bool Matches(const AFX_MSGMAP_ENTRY& entry, const CWndMessage& message)
{
    if (entry.nMessage != message.message)
        return false;
    if (message.message == WM_COMMAND)
    {
        const UINT nID = LOWORD(message.wParam);
        return entry.nCode == HIWORD(message.wParam) && nID >= entry.nID && nID <= entry.nLastID;
    }
    if (message.message == OCM_COMMAND)
        return entry.nCode == HIWORD(message.wParam);
    if (message.message == WM_NOTIFY)
    {
        const auto* pHeader = reinterpret_cast<const NMHDR*>(message.lParam);
        return pHeader != nullptr && pHeader->code == entry.nCode && pHeader->idFrom == entry.nID;
    }
    return true;
}

const AFX_MSGMAP_ENTRY* FindEntry(const AFX_MSGMAP* pMap, const CWndMessage& message)
{
    for (; pMap != nullptr; pMap = pMap->pfnGetBaseMap ? pMap->pfnGetBaseMap() : nullptr)
        for (const AFX_MSGMAP_ENTRY* pEntry = pMap->lpEntries; pEntry->pfnCall != nullptr; ++pEntry)
            if (Matches(*pEntry, message))
                return pEntry;
    return nullptr;
}
} // namespace

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND && ReflectCommand(wParam, lParam))
        return 0;
    CWndMessage current = {message, wParam, lParam, 0};
    return CallHandler(current) ? current.lResult : DefWindowProc(message, wParam, lParam);
}

/// Has a message under way in a window for as long as it lives.
class CWnd::CMessageScope
{
public:
    CMessageScope(CWnd& wnd, CWndMessage& message)
        : m_wnd(wnd), m_hWnd(wnd.m_hWnd), m_pOuterMessage(std::exchange(wnd.m_pCurrentMessage, &message))
    {
    }
    CMessageScope(const CMessageScope&) = delete;
    CMessageScope& operator=(const CMessageScope&) = delete;
    ~CMessageScope()
    {
        // The handler may have destroyed the window, and the object with it.
        if (FromHandlePermanent(m_hWnd) == &m_wnd)
            m_wnd.m_pCurrentMessage = m_pOuterMessage;
    }

private:
    CWnd& m_wnd;
    const HWND m_hWnd;
    CWndMessage* const m_pOuterMessage;
};

bool CWnd::CallHandler(CWndMessage& message)
{
    const AFX_MSGMAP_ENTRY* pEntry = FindEntry(GetMessageMap(), message);
    if (pEntry == nullptr)
        return false;
    const CMessageScope scope(*this, message);
    pEntry->pfnCall(*this, message);
    return true;
}

bool CWnd::ReflectCommand(WPARAM wParam, LPARAM lParam)
{
    const HWND hWndControl = reinterpret_cast<HWND>(lParam);
    CWnd* const pControl = IsChild(m_hWnd, hWndControl) ? FromHandlePermanent(hWndControl) : nullptr;
    CWndMessage reflected = {OCM_COMMAND, wParam, lParam, 0};
    return pControl != nullptr && pControl->CallHandler(reflected);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallWindowProcW(m_pfnSuper, m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    CWndMessage* const pMessage = m_pCurrentMessage;
    if (pMessage == nullptr)
        return 0;
    const LRESULT lResult = DefWindowProc(pMessage->message, pMessage->wParam, pMessage->lParam);
    pMessage->lResult = lResult;
    return lResult;
}

LRESULT CALLBACK CWnd::AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    CWnd* const pWnd = FromHandlePermanent(hWnd);
    if (pWnd == nullptr)
        return ::DefWindowProcW(hWnd, message, wParam, lParam);
    if (message == WM_NCDESTROY)
        return pWnd->OnNcDestroy(wParam, lParam);
    try
    {
        return pWnd->WindowProc(message, wParam, lParam);
    }
    catch (...)
    {
        // Out of memory in a handler must not unwind through the window system.
        return 0;
    }
}

LRESULT CWnd::OnNcDestroy(WPARAM wParam, LPARAM lParam)
{
    const WNDPROC pfnSuper = m_pfnSuper;
    const HWND hWnd = UnsubclassWindow();
    return CallWindowProcW(pfnSuper, hWnd, WM_NCDESTROY, wParam, lParam);
}
