#include "bench/engine/Input.h"

namespace
{
bool IsDown(int nVirtualKey)
{
    return GetKeyState(nVirtualKey) < 0;
}
} // namespace

int GetInputModifiers()
{
    return (IsDown(VK_MENU) ? InputAlt : InputNone) | (IsDown(VK_CONTROL) ? InputCtrl : InputNone) |
           (IsDown(VK_SHIFT) ? InputShift : InputNone);
}
