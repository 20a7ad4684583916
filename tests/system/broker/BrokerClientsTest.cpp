// The settings store against the real broker, in one process and in several.

#include "settings/SettingsStore.h"
#include "tests/system/broker/BrokerFixture.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <thread>
#include <vector>

namespace
{
/// The broker serves all tests of the program and would stay for minutes behind the last.
class CEndOfBroker : public testing::Environment
{
    void TearDown() override { KillBroker(); }
};

testing::Environment* const pEndOfBroker = testing::AddGlobalTestEnvironment(new CEndOfBroker);

class BrokerClients : public CBrokerTest
{
protected:
    CSettingsStore m_store {SettingsRoot};
};

struct CSetting
{
    const wchar_t* pszSection;
    const wchar_t* pszName;
    const wchar_t* pszText;
};

/// Every setting of the product that has a fixed name.
const CSetting Settings[] = {
    {L"Options", L"CheckUpdateFrequency", L"4"},
    {L"Options", L"DisableHTTPSniffer", L"1"},
    {L"Options", L"ToolbarFirstTime", L"1"},
    {L"Options", L"InfoBarFirstTime", L"1"},
    {L"Options", L"ImageFormat", L"2"},
    {L"Options", L"HideScriptErrorDlg", L"0"},
    {L"Options", L"HotKeySearch", L"CF"},
    {L"Options", L"HotKeySourceCode", L"AU"},
    {L"Options", L"HotKeyDevBar", L"SD"},
    {L"Options", L"HideWebSearch", L"0"},
    {L"Options", L"ScreenShotEmail", L"Hi,\r\n\r\n%%URL%%\r\n\x65E5\x672C %%SCRIPTERROR%%\r\n"},
    {L"Options", L"langID", L"1041"},
    {L"Options", L"WebSearchTitle", L""},
    {L"Options", L"WebSearchURL", L""},
    {L"Toolbar", L"Layout", L"0001000100020001"},
    {L"Button3", L"WebSearchTitle", L"Suche f\xFCr \"alle\""},
    {L"Button3", L"WebSearchURL", L"https://www.search.example/?q=%%WORD%%&a|b"},
};

std::wstring HistoryName(int n)
{
    return L"history" + std::to_wstring(n);
}
} // namespace

TEST_F(BrokerClients, KeepsEverySetting)
{
    for (const CSetting& setting : Settings)
        m_store.WriteString(setting.pszText, setting.pszSection, setting.pszName);
    for (int n = 0; n <= 20; ++n)
        for (const wchar_t* pszSection : {L"Button3", L"Button7"})
            m_store.WriteString(L"search " + std::to_wstring(n), pszSection, HistoryName(n));
    const auto spBroker = CreateBroker();
    ASSERT_TRUE(spBroker);
    for (const CSetting& setting : Settings)
        EXPECT_EQ(setting.pszText, ReadValue(*spBroker.Get(), GetKey(setting.pszSection, setting.pszName)));
    for (int n = 0; n <= 20; ++n)
        for (const wchar_t* pszSection : {L"Button3", L"Button7"})
            EXPECT_EQ(L"search " + std::to_wstring(n), ReadValue(*spBroker.Get(), GetKey(pszSection, HistoryName(n))));
}

TEST_F(BrokerClients, KeepsSettingsInTheUsersRegistry)
{
    m_store.WriteInt(1041, L"Options", L"langID");
    wchar_t szText[10] = {};
    DWORD nBytes = sizeof(szText);
    EXPECT_EQ(ERROR_SUCCESS, RegGetValueW(HKEY_CURRENT_USER, L"Software\\Halmere Works\\Trelvix\\v5\\Options",
                                          L"langID", RRF_RT_REG_SZ, nullptr, szText, &nBytes));
    EXPECT_STREQ(L"1041", szText);
}

TEST_F(BrokerClients, HandsSettingsFromOneProcessToTheNext)
{
    EXPECT_EQ(0u, RunSettingsClient(L"WRITE Options langID 1041 WRITE \"\" name direct"));
    EXPECT_EQ(0u, RunSettingsClient(L"READ Options langID 1041 READ \"\" name direct READ Options Layout \"\""));
}

TEST_F(BrokerClients, ShowsAnothersWriteOnlyWhereTheValueWasNotKnown)
{
    m_store.WriteString(L"written before", L"Test", L"written");
    EXPECT_EQ(L"", m_store.ReadString(L"Test", L"read"));
    EXPECT_EQ(0u, RunSettingsClient(L"WRITE Test written new WRITE Test read new WRITE Test unknown new"));
    EXPECT_EQ(L"written before", m_store.ReadString(L"Test", L"written"));
    EXPECT_EQ(L"", m_store.ReadString(L"Test", L"read"));
    EXPECT_EQ(L"new", m_store.ReadString(L"Test", L"unknown"));
    EXPECT_EQ(0u, RunSettingsClient(L"READ Test written new READ Test read new READ Test unknown new"));
}

TEST_F(BrokerClients, RefusesAMegabyteThatTheWritersProcessKeeps)
{
    const std::wstring strText(1024 * 1024, L'x');
    m_store.WriteString(strText, L"Test", L"long");
    EXPECT_EQ(strText, m_store.ReadString(L"Test", L"long"));
    EXPECT_EQ(0u, RunSettingsClient(L"READ Test long \"\""));
}

TEST_F(BrokerClients, ServesSeveralClientsAtOnce)
{
    std::vector<std::thread> threads;
    for (int nClient = 0; nClient < 6; ++nClient)
        threads.emplace_back([nClient] {
            std::wstring strSteps;
            const std::wstring strSection = L"Client" + std::to_wstring(nClient);
            for (int n = 0; n < 20; ++n)
                strSteps += L"WRITE " + strSection + L" shared" + std::to_wstring(n) + L" text READ All value" +
                            std::to_wstring(n) + L" \"\" ";
            EXPECT_EQ(0u, RunSettingsClient(strSteps));
        });
    for (std::thread& thread : threads)
        thread.join();
    const auto spBroker = CreateBroker();
    for (int nClient = 0; nClient < 6; ++nClient)
        for (int n = 0; n < 20; ++n)
            EXPECT_EQ(L"text", ReadValue(*spBroker.Get(),
                                         GetKey(L"Client" + std::to_wstring(nClient), L"shared" + std::to_wstring(n))));
}
