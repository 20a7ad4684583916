#pragma once

#include <span>
#include <vector>

/// A text that the toolbar shows in its built-in language.
struct ExpectedText
{
    unsigned id;
    const wchar_t* text;
};

/// An entry of a menu: a command with its text, or a separator without one, whose id is 0.
using ExpectedEntry = ExpectedText;

/// A menu with the entries of its one submenu, from top to bottom.
struct ExpectedMenu
{
    unsigned id;
    std::vector<ExpectedEntry> entries;
};

/// The whole string table, in the order of the ids.
std::span<const ExpectedText> ExpectedStrings();

/// All menus, in the order of the ids.
std::span<const ExpectedMenu> ExpectedMenus();
