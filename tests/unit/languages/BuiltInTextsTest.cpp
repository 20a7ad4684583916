#include "tests/unit/languages/ExpectedTexts.h"

#include <windows.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <memory>
#include <string>

namespace
{
using testing::ElementsAreArray;
using testing::IsEmpty;

HMODULE ThisModule()
{
    return GetModuleHandleW(nullptr);
}

std::wstring BuiltInString(unsigned id)
{
    const wchar_t* text = nullptr;
    const int length = LoadStringW(ThisModule(), id, reinterpret_cast<wchar_t*>(&text), 0);
    return length > 0 ? std::wstring(text, length) : std::wstring();
}

/// The numbers of all resources of a type.
std::vector<unsigned> ResourcesOf(const wchar_t* type)
{
    std::vector<unsigned> numbers;
    const auto take = [](HMODULE, LPCWSTR, LPWSTR name, LONG_PTR result) -> BOOL {
        reinterpret_cast<std::vector<unsigned>*>(result)->push_back(LOWORD(name));
        return TRUE;
    };
    EnumResourceNamesW(ThisModule(), type, take, reinterpret_cast<LONG_PTR>(&numbers));
    std::ranges::sort(numbers);
    return numbers;
}

/// The numbers of all strings that have a text. A resource of strings is a block of sixteen, and counts from 1.
std::vector<unsigned> StringsWithText()
{
    std::vector<unsigned> ids;
    for (const unsigned block : ResourcesOf(RT_STRING))
        for (unsigned id = (block - 1) * 16; id < block * 16; ++id)
            if (!BuiltInString(id).empty())
                ids.push_back(id);
    return ids;
}

std::vector<unsigned> CommandsOfAllMenus()
{
    std::vector<unsigned> commands;
    for (const ExpectedMenu& menu : ExpectedMenus())
        for (const ExpectedEntry& entry : menu.entries)
            if (entry.text)
                commands.push_back(entry.id);
    return commands;
}

using OwnedMenu = std::unique_ptr<std::remove_pointer_t<HMENU>, decltype(&DestroyMenu)>;

OwnedMenu BuiltInMenu(unsigned id)
{
    return OwnedMenu(LoadMenuW(ThisModule(), MAKEINTRESOURCEW(id)), DestroyMenu);
}

std::wstring TextAt(HMENU menu, int position)
{
    wchar_t text[200] = {};
    GetMenuStringW(menu, position, text, static_cast<int>(std::size(text)), MF_BYPOSITION);
    return text;
}

void ExpectEntries(HMENU menu, const std::vector<ExpectedEntry>& entries)
{
    ASSERT_EQ(GetMenuItemCount(menu), static_cast<int>(entries.size()));
    for (int position = 0; position < GetMenuItemCount(menu); ++position)
    {
        const ExpectedEntry& expected = entries[position];
        const bool isSeparator = GetMenuState(menu, position, MF_BYPOSITION) & MF_SEPARATOR;
        EXPECT_EQ(GetMenuItemID(menu, position), expected.id);
        EXPECT_EQ(isSeparator, expected.text == nullptr) << "entry " << position;
        EXPECT_EQ(TextAt(menu, position), expected.text ? expected.text : L"");
    }
}
} // namespace

TEST(StringTable, HoldsEveryTextAsPromised)
{
    for (const ExpectedText& expected : ExpectedStrings())
        EXPECT_EQ(BuiltInString(expected.id), expected.text) << "string " << expected.id;
}

TEST(StringTable, HoldsNoOtherText)
{
    std::vector<unsigned> expected;
    for (const ExpectedText& text : ExpectedStrings())
        expected.push_back(text.id);
    EXPECT_THAT(StringsWithText(), ElementsAreArray(expected));
}

TEST(StringTable, LeavesTheGroupsOfHotKeysToLanguagePacks)
{
    for (const unsigned id : {262, 263, 264})
        EXPECT_THAT(BuiltInString(id), IsEmpty()) << "string " << id;
}

TEST(StringTable, HasNoTextWithTheNumberOfAMenuCommand)
{
    for (const unsigned command : CommandsOfAllMenus())
        EXPECT_THAT(BuiltInString(command), IsEmpty()) << "command " << command;
}

TEST(Menus, AreAllThereAndNoOthers)
{
    std::vector<unsigned> expected;
    for (const ExpectedMenu& menu : ExpectedMenus())
        expected.push_back(menu.id);
    EXPECT_THAT(ResourcesOf(RT_MENU), ElementsAreArray(expected));
}

TEST(Menus, HaveTheirEntriesInOneSubmenuWithoutTitle)
{
    for (const ExpectedMenu& expected : ExpectedMenus())
    {
        SCOPED_TRACE(testing::Message() << "menu " << expected.id);
        const OwnedMenu menu = BuiltInMenu(expected.id);
        ASSERT_TRUE(menu);
        EXPECT_EQ(GetMenuItemCount(menu.get()), 1);
        EXPECT_THAT(TextAt(menu.get(), 0), IsEmpty());
        ExpectEntries(GetSubMenu(menu.get(), 0), expected.entries);
    }
}

TEST(Menus, ShareNoCommandWithEachOther)
{
    std::vector<unsigned> commands = CommandsOfAllMenus();
    std::ranges::sort(commands);
    EXPECT_EQ(std::ranges::adjacent_find(commands), commands.end());
}
