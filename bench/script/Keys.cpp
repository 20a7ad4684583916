#include "bench/script/Keys.h"

#include <windows.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace
{
struct CKeyRow
{
    const wchar_t* pszName;
    WORD vk;
};

constexpr CKeyRow keyTable[] = {
    {L"Alt", VK_MENU},      {L"Ctrl", VK_CONTROL},  {L"Shift", VK_SHIFT}, {L"Tab", VK_TAB},
    {L"Enter", VK_RETURN},  {L"Escape", VK_ESCAPE}, {L"Space", VK_SPACE}, {L"Backspace", VK_BACK},
    {L"Delete", VK_DELETE}, {L"Left", VK_LEFT},     {L"Right", VK_RIGHT}, {L"Up", VK_UP},
    {L"Down", VK_DOWN},     {L"Home", VK_HOME},     {L"End", VK_END},     {L"PageUp", VK_PRIOR},
    {L"PageDown", VK_NEXT}, {L"F1", VK_F1},         {L"F4", VK_F4},       {L"F5", VK_F5},
    {L"F6", VK_F6},         {L"F10", VK_F10},
};

WORD GetVirtualKey(const std::wstring& name)
{
    const auto* pRow = std::ranges::find_if(keyTable, [&](const CKeyRow& row) { return name == row.pszName; });
    if (pRow != std::end(keyTable))
        return pRow->vk;
    const bool bPlain =
        name.size() == 1 && ((name[0] >= L'A' && name[0] <= L'Z') || (name[0] >= L'0' && name[0] <= L'9'));
    return bPlain ? name[0] : 0;
}

INPUT MakeKey(WORD vk, DWORD dwFlags)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = vk;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(vk, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = dwFlags;
    return input;
}

void Send(std::vector<INPUT>& inputs)
{
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}
} // namespace

void SendText(const std::wstring& text)
{
    std::vector<INPUT> inputs;
    for (const wchar_t ch : text)
        for (const DWORD dwUp : {DWORD(0), DWORD(KEYEVENTF_KEYUP)})
        {
            inputs.push_back(MakeKey(0, KEYEVENTF_UNICODE | dwUp));
            inputs.back().ki.wScan = ch;
        }
    Send(inputs);
}

bool SendKeys(const std::wstring& keys)
{
    std::vector<WORD> pressed;
    for (size_t nBegin = 0; nBegin <= keys.size();)
    {
        const size_t nEnd = std::min(keys.find(L'+', nBegin), keys.size());
        pressed.push_back(GetVirtualKey(keys.substr(nBegin, nEnd - nBegin)));
        if (pressed.back() == 0)
            return false;
        nBegin = nEnd + 1;
    }
    std::vector<INPUT> inputs;
    for (const WORD vk : pressed)
        inputs.push_back(MakeKey(vk, 0));
    std::ranges::reverse(pressed);
    for (const WORD vk : pressed)
        inputs.push_back(MakeKey(vk, KEYEVENTF_KEYUP));
    Send(inputs);
    return true;
}
