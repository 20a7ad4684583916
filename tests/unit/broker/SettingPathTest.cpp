#include "broker/SettingPath.h"

#include "settings/SettingKey.h"
#include "settings/SettingsStore.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
const std::wstring Root = SettingsRoot;

testing::AssertionResult LeadsTo(const std::wstring& fullKey, const std::wstring& key, const std::wstring& value)
{
    const auto path = ParseSettingPath(fullKey);
    if (!path)
        return testing::AssertionFailure() << "refused";
    if (path->key != key || path->value != value)
        return testing::AssertionFailure() << testing::PrintToString(path->key + L" and " + path->value);
    return testing::AssertionSuccess();
}

std::wstring Repeat(const std::wstring& text, int times)
{
    std::wstring repeated;
    while (times-- > 0)
        repeated += text;
    return repeated;
}
} // namespace

TEST(ParseSettingPath, TakesTheStoresKeysApart)
{
    EXPECT_TRUE(LeadsTo(BuildSettingKey(SettingsRoot, L"Options", L"langID"), Root + L"\\Options", L"langID"));
    EXPECT_TRUE(LeadsTo(BuildSettingKey(SettingsRoot, L"", L"name"), Root, L"name"));
    EXPECT_TRUE(LeadsTo(BuildSettingKey(SettingsRoot, L"Options", L""), Root + L"\\Options", L""));
    EXPECT_TRUE(LeadsTo(BuildSettingKey(SettingsRoot, L"", L""), Root, L""));
}

TEST(ParseSettingPath, ParsesAtTheLastBar)
{
    EXPECT_TRUE(LeadsTo(Root + L"\\a|b|c", Root + L"\\a|b", L"c"));
    EXPECT_TRUE(LeadsTo(Root + L"\\a|", Root + L"\\a", L""));
    EXPECT_TRUE(LeadsTo(Root + L"\\a|x\\y", Root + L"\\a", L"x\\y")) << "a value's name may hold a backslash";
}

TEST(ParseSettingPath, ServesTheRootAndWhatLiesBelow)
{
    EXPECT_TRUE(LeadsTo(Root + L"|name", Root, L"name"));
    EXPECT_TRUE(LeadsTo(Root + L"\\a\\b\\c|name", Root + L"\\a\\b\\c", L"name"));
}

TEST(ParseSettingPath, ComparesTheRootWithoutRegardToCase)
{
    EXPECT_TRUE(
        LeadsTo(L"SOFTWARE\\halmere works\\TRELVIX\\V5\\a|b", L"SOFTWARE\\halmere works\\TRELVIX\\V5\\a", L"b"));
}

TEST(ParseSettingPath, RefusesEveryOtherPath)
{
    const std::wstring refused[] = {L"",
                                    L"|",
                                    L"|name",
                                    L"\\" + Root + L"|name",
                                    L"Software|name",
                                    L"Software\\Halmere Works\\Trelvix|name",
                                    L"Software\\Halmere Works\\Trelvix\\v4\\a|name",
                                    Root + L"0\\a|name",
                                    Root + L" |name",
                                    L"Software\\Microsoft\\Windows\\CurrentVersion\\Run|name",
                                    L"HKEY_CURRENT_USER\\" + Root + L"\\a|name",
                                    L"x|" + Root + L"\\a"};
    for (const std::wstring& fullKey : refused)
        EXPECT_FALSE(ParseSettingPath(fullKey)) << testing::PrintToString(fullKey);
}

TEST(ParseSettingPath, RefusesEmptyLevels)
{
    EXPECT_FALSE(ParseSettingPath(Root + L"\\\\a|name"));
    EXPECT_FALSE(ParseSettingPath(Root + L"\\a\\\\b|name"));
    EXPECT_FALSE(ParseSettingPath(Root + L"\\\\|name"));
}

TEST(ParseSettingPath, RefusesNulls)
{
    EXPECT_FALSE(ParseSettingPath(Root + L"\\a" + std::wstring(1, L'\0') + L"|name"));
    EXPECT_FALSE(ParseSettingPath(Root + L"\\a|na" + std::wstring(1, L'\0') + L"me"));
}

TEST(ParseSettingPath, RefusesWhatTheRegistryCannotHold)
{
    EXPECT_TRUE(ParseSettingPath(Root + L"\\" + std::wstring(255, L'x') + L"|name"));
    EXPECT_FALSE(ParseSettingPath(Root + L"\\" + std::wstring(256, L'x') + L"|name"));
    EXPECT_TRUE(ParseSettingPath(Root + L"\\a|" + std::wstring(16383, L'x')));
    EXPECT_FALSE(ParseSettingPath(Root + L"\\a|" + std::wstring(16384, L'x')));
    EXPECT_TRUE(ParseSettingPath(Root + Repeat(L"\\a", 28) + L"|name"));
    EXPECT_FALSE(ParseSettingPath(Root + Repeat(L"\\a", 29) + L"|name"));
}
