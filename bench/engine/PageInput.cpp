#include "bench/engine/Page.h"

#include <iterator>

namespace
{
struct CButtonName
{
    const char* pszName;
    int nBit;
};

const char* GetTypeName(EMouseEvent eEvent)
{
    switch (eEvent)
    {
    case EMouseEvent::Pressed:
        return "mousePressed";
    case EMouseEvent::Released:
        return "mouseReleased";
    default:
        return "mouseMoved";
    }
}

CButtonName GetButtonName(EMouseButton eButton)
{
    switch (eButton)
    {
    case EMouseButton::Left:
        return {"left", 1};
    case EMouseButton::Right:
        return {"right", 2};
    case EMouseButton::Middle:
        return {"middle", 4};
    default:
        return {"none", 0};
    }
}

struct CKeyName
{
    UINT nVirtualKey;
    const char* pszName;
};

/// The names by which pages know keys that give no character.
const char* GetKeyName(UINT nVirtualKey)
{
    static constexpr CKeyName names[] = {
        {VK_BACK, "Backspace"},  {VK_TAB, "Tab"},          {VK_RETURN, "Enter"},   {VK_SHIFT, "Shift"},
        {VK_CONTROL, "Control"}, {VK_MENU, "Alt"},         {VK_ESCAPE, "Escape"},  {VK_PRIOR, "PageUp"},
        {VK_NEXT, "PageDown"},   {VK_END, "End"},          {VK_HOME, "Home"},      {VK_LEFT, "ArrowLeft"},
        {VK_UP, "ArrowUp"},      {VK_RIGHT, "ArrowRight"}, {VK_DOWN, "ArrowDown"}, {VK_INSERT, "Insert"},
        {VK_DELETE, "Delete"},
    };
    for (const CKeyName& name : names)
        if (name.nVirtualKey == nVirtualKey)
            return name.pszName;
    return "";
}

Json MakeKeyEvent(const char* pszType, UINT nVirtualKey, UINT nScanCode, int nModifiers)
{
    Json event = {{"type", pszType},
                  {"windowsVirtualKeyCode", nVirtualKey},
                  {"nativeVirtualKeyCode", nScanCode},
                  {"modifiers", nModifiers}};
    if (*GetKeyName(nVirtualKey) != '\0')
        event["key"] = GetKeyName(nVirtualKey);
    return event;
}
} // namespace

void CPage::MouseEvent(EMouseEvent eEvent, POINT point, EMouseButton eButton, int nClickCount, int nModifiers)
{
    const CButtonName button = GetButtonName(eButton);
    if (eEvent == EMouseEvent::Pressed)
        m_nButtons |= button.nBit;
    else if (eEvent == EMouseEvent::Released)
        m_nButtons &= ~button.nBit;
    Post("Input.dispatchMouseEvent", {{"type", GetTypeName(eEvent)},
                                      {"x", point.x},
                                      {"y", point.y},
                                      {"button", button.pszName},
                                      {"buttons", m_nButtons},
                                      {"clickCount", nClickCount},
                                      {"modifiers", nModifiers}});
}

void CPage::Wheel(POINT point, int nDelta, int nModifiers)
{
    // The page counts downwards.
    Post("Input.dispatchMouseEvent", {{"type", "mouseWheel"},
                                      {"x", point.x},
                                      {"y", point.y},
                                      {"deltaX", 0},
                                      {"deltaY", -nDelta},
                                      {"modifiers", nModifiers}});
}

void CPage::KeyDown(UINT nVirtualKey, UINT nScanCode, int nModifiers)
{
    Post("Input.dispatchKeyEvent", MakeKeyEvent("rawKeyDown", nVirtualKey, nScanCode, nModifiers));
}

void CPage::KeyUp(UINT nVirtualKey, UINT nScanCode, int nModifiers)
{
    Post("Input.dispatchKeyEvent", MakeKeyEvent("keyUp", nVirtualKey, nScanCode, nModifiers));
}

void CPage::Char(wchar_t ch, int nModifiers)
{
    // Of the characters that control keys give, Enter alone is text.
    if (ch < L' ' && ch != L'\r')
        return;
    const std::string text = ToUtf8(std::wstring(1, ch));
    Post("Input.dispatchKeyEvent",
         {{"type", "char"}, {"text", text}, {"unmodifiedText", text}, {"key", text}, {"modifiers", nModifiers}});
}

void CPage::SetFocus(bool bFocus)
{
    Post("Emulation.setFocusEmulationEnabled", {{"enabled", bFocus}});
}
