#pragma once

#include "framework/Handles.h"

#include <windows.h>

/// Owner of a menu. Calls of the platform take the object as the handle.
class CMenu
{
public:
    /// Takes a menu from the module's resources in the place of the one it held. False when there is none.
    bool LoadMenu(UINT nIDResource);

    /// Null when no menu is loaded.
    HMENU GetSafeHmenu() const { return m_menu.get(); }
    operator HMENU() const { return GetSafeHmenu(); }

private:
    CUniqueHandle<HMENU, DestroyMenu> m_menu;
};
