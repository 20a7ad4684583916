#include "settings/SettingKey.h"

#include "settings/SettingsStore.h"

#include <gtest/gtest.h>

TEST(BuildSettingKey, JoinsRootSectionAndName)
{
    EXPECT_EQ(L"Software\\Halmere Works\\Trelvix\\v5\\Options|CheckUpdateFrequency",
              BuildSettingKey(SettingsRoot, L"Options", L"CheckUpdateFrequency"));
}

TEST(BuildSettingKey, KeepsTheBackslashOfAnEmptySection)
{
    EXPECT_EQ(L"Software\\Halmere Works\\Trelvix\\v5\\|name", BuildSettingKey(SettingsRoot, L"", L"name"));
}

TEST(BuildSettingKey, LeavesOutTheBarOfAnEmptyName)
{
    EXPECT_EQ(L"Software\\Halmere Works\\Trelvix\\v5\\Options", BuildSettingKey(SettingsRoot, L"Options", L""));
    EXPECT_EQ(L"root\\", BuildSettingKey(L"root", L"", L""));
}

TEST(BuildSettingKey, KeepsCaseAndBarsAsTheyStand)
{
    EXPECT_EQ(L"RooT\\a|B|nAmE", BuildSettingKey(L"RooT", L"a|B", L"nAmE"));
}
