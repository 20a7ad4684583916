#pragma once

#include <windows.h>

/// Keys that were down during an input, as the protocol counts them; combined by |.
enum EInputModifiers : int
{
    InputNone = 0,
    InputAlt = 1,
    InputCtrl = 2,
    InputMeta = 4,
    InputShift = 8,
};

/// The modifiers by the state of the keyboard at the message that is being handled.
int GetInputModifiers();

enum class EMouseEvent
{
    Pressed,
    Released,
    Moved,
};

enum class EMouseButton
{
    None,
    Left,
    Middle,
    Right,
};
