#include "framework/Menu.h"

#include "framework/Module.h"

bool CMenu::LoadMenu(UINT nIDResource)
{
    m_menu.reset(::LoadMenuW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(nIDResource)));
    return m_menu != nullptr;
}
