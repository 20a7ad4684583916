#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

class CMenu;

/// Takes a hold on the process's language state; the first hold loads the pack of the language. A pack that is missing
/// or can't be read leaves the built-in texts, quietly. \param folder the installation folder, in which the packs lie;
/// empty when it isn't known \param language a language id, 0 for the user's own
void InitLanguage(const std::wstring& folder, std::uint16_t language);

/// Drops one hold; the last one drops the loaded texts.
void ReleaseLanguage();

/// The language that the first hold chose.
std::uint16_t GetRequestedLanguage();

/// Sets `out` to the pack's text, or else to the built-in one. Without either it returns 0 and `out` keeps what it
/// held. A pack's text may be empty, so a result other than 0 doesn't mean that there is something to show.
int LoadTranslatedString(std::wstring& out, unsigned id);

/// Loads a menu resource and puts the pack's texts into it. False when there is no such menu.
bool LoadTranslatedMenu(CMenu& menu, unsigned id);

/// Puts the texts of LoadTranslatedString into the commands of a menu and its submenus. Items whose id is less than the
/// number of items in their menu keep theirs. False when a submenu failed, which ends the walk.
bool TranslateMenu(HMENU hMenu);

/// Reads one text of a pack that need not be the loaded one; touches no shared state.
/// \param file relative to the current folder or, failing that, to the installation folder
/// \param out keeps what it held when the pack doesn't have the text
bool ReadPackString(const std::wstring& file, std::wstring& out, unsigned id);
