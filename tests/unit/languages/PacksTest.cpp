#include "framework/Menu.h"
#include "settings/LanguagePack.h"
#include "settings/LanguageTable.h"
#include "tests/unit/languages/ExpectedTexts.h"

#include <windows.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace
{
struct ShippedPack
{
    std::uint16_t language;
    const char* label;
    const wchar_t* ownName;
};

const ShippedPack shippedPacks[] = {
    {0x04, "Chinese", L"简体中文"}, {0x404, "TraditionalChinese", L"繁體中文"},
    {0x13, "Dutch", L"Nederlands"}, {0x09, "English", L"English (default)"},
    {0x0C, "French", L"Français"},  {0x07, "German", L"Deutsch"},
    {0x10, "Italian", L"Italiano"}, {0x11, "Japanese", L"日本語"},
    {0x15, "Polish", L"Polski"},    {0x16, "Portuguese", L"Português"},
    {0x19, "Russian", L"Русский"},  {0x0A, "Spanish", L"Español"},
};

void PrintTo(const ShippedPack& pack, std::ostream* out)
{
    *out << pack.label;
}

/// The folder of the built programs, beside which the packs lie as in an installation.
std::wstring InstallationFolder()
{
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    return std::filesystem::path(program).parent_path().parent_path() / L"bin";
}

std::wstring Translated(unsigned id)
{
    std::wstring text;
    EXPECT_NE(LoadTranslatedString(text, id), 0) << "text " << id;
    return text;
}

auto CountOf(const std::wstring& text, wchar_t character)
{
    return std::ranges::count(text, character);
}

/// Has each shipped pack loaded by the toolbar's own reader.
class Packs : public testing::TestWithParam<ShippedPack>
{
protected:
    void SetUp() override { InitLanguage(InstallationFolder(), GetParam().language); }
    void TearDown() override { ReleaseLanguage(); }
};

INSTANTIATE_TEST_SUITE_P(Shipped, Packs, testing::ValuesIn(shippedPacks),
                         [](const auto& info) { return std::string(info.param.label); });
} // namespace

TEST_P(Packs, NameTheirLanguageInTheListOfLanguages)
{
    std::wstring name;
    EXPECT_TRUE(ReadPackString(FindLanguage(GetParam().language)->file, name, 114));
    EXPECT_EQ(name, GetParam().ownName);
}

TEST_P(Packs, HaveATextForEachBuiltInOneWithTheSameLines)
{
    for (const ExpectedText& builtIn : ExpectedStrings())
    {
        const std::wstring text = Translated(builtIn.id);
        EXPECT_EQ(CountOf(text, L'\n'), CountOf(builtIn.text, L'\n')) << "string " << builtIn.id;
        EXPECT_EQ(CountOf(text, L'\\'), 0) << "string " << builtIn.id;
    }
}

TEST_P(Packs, NameTheGroupsOfHotKeysThatHaveNoBuiltInText)
{
    for (const unsigned id : {262, 263, 264})
        EXPECT_FALSE(Translated(id).empty()) << "string " << id;
}

TEST_P(Packs, TranslateEveryMenuCommand)
{
    for (const ExpectedMenu& expected : ExpectedMenus())
    {
        CMenu menu;
        ASSERT_TRUE(LoadTranslatedMenu(menu, expected.id));
        for (const ExpectedEntry& entry : expected.entries)
        {
            if (!entry.text)
                continue;
            wchar_t text[200] = {};
            GetMenuStringW(menu, entry.id, text, static_cast<int>(std::size(text)), MF_BYCOMMAND);
            EXPECT_EQ(text, Translated(entry.id)) << "command " << entry.id;
        }
    }
}
