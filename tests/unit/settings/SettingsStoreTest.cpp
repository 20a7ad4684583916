#include "settings/SettingsStore.h"

#include "settings/Broker.h"
#include "settings/SettingKey.h"
#include "tests/fakes/FakeSettingsBroker.h"
#include "tests/fakes/RefusedClass.h"

#include <windows.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <optional>
#include <string>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace
{
/// A store with a root of its own for each test, since what one test has read the process never forgets.
class SettingsStore : public testing::Test
{
protected:
    SettingsStore()
    {
        OleInitialize(nullptr);
        StartBroker();
    }
    ~SettingsStore() override
    {
        m_broker.reset();
        m_noBroker.reset();
        OleUninitialize();
    }

    std::wstring KeyOf(const std::wstring& strName) const { return BuildSettingKey(m_strRoot, L"Options", strName); }
    void Keep(const std::wstring& strName, const std::wstring& strValue)
    {
        (*m_broker)->m_values[KeyOf(strName)] = strValue;
    }
    void StartBroker()
    {
        m_noBroker.reset();
        m_broker.emplace();
    }
    void StopBroker()
    {
        m_broker.reset();
        m_noBroker.emplace(CLSID_SettingsBroker, CLSCTX_LOCAL_SERVER);
    }
    static size_t CountCalls(const char* pszMethod)
    {
        return CFakeCalls::Get().CountOf(std::string("SettingsBroker.") + pszMethod);
    }

    const std::string m_strTest = testing::UnitTest::GetInstance()->current_test_info()->name();
    const std::wstring m_strRoot = L"Tests\\" + std::wstring(m_strTest.begin(), m_strTest.end());
    CSettingsStore m_store {m_strRoot};
    std::optional<CFakeSettingsBrokerServer> m_broker;
    std::optional<CRefusedClass> m_noBroker; ///< in place of a broker that the machine may have
};

struct FailingCall
{
    const char* pszCall;
    HRESULT hr;
};

/// A broker of which one call fails, or claims success and gives nothing.
class SettingsStoreWithBrokenBroker : public SettingsStore, public testing::WithParamInterface<FailingCall>
{
protected:
    SettingsStoreWithBrokenBroker() { Break(); }

    static void Break() { CFakeCalls::Get().FailAll(GetParam().pszCall, GetParam().hr); }
    static void Repair() { CFakeCalls::Get().Reset(); }
};
} // namespace

TEST(SettingsRoot, IsTheProductsKey)
{
    EXPECT_STREQ(L"Software\\Halmere Works\\Trelvix\\v5", SettingsRoot);
}

TEST_F(SettingsStore, AsksTheBrokerByTheFullKey)
{
    Keep(L"Layout", L"00010002");
    EXPECT_EQ(L"00010002", m_store.ReadString(L"Options", L"Layout"));
    EXPECT_THAT((*m_broker)->m_reads, ElementsAre(m_strRoot + L"\\Options|Layout"));
}

TEST_F(SettingsStore, KeepsTheBackslashOfAnEmptySectionAndLeavesOutTheBarOfAnEmptyName)
{
    m_store.ReadString(L"", L"name");
    m_store.ReadString(L"Options", L"");
    EXPECT_THAT((*m_broker)->m_reads, ElementsAre(m_strRoot + L"\\|name", m_strRoot + L"\\Options"));
}

TEST_F(SettingsStore, HandsTheWrittenTextToTheBroker)
{
    m_store.WriteString(L"Gr\x00FC\x00DF"
                        L"e \x65E5\x672C",
                        L"Options", L"WebSearchTitle");
    EXPECT_THAT((*m_broker)->m_writes, ElementsAre(Pair(KeyOf(L"WebSearchTitle"), L"Gr\x00FC\x00DF"
                                                                                  L"e \x65E5\x672C")));
}

TEST_F(SettingsStore, MakesANewBrokerObjectForEachCall)
{
    m_store.ReadString(L"Options", L"a");
    m_store.ReadString(L"Options", L"b");
    m_store.WriteString(L"1", L"Options", L"c");
    m_store.WriteString(L"2", L"Options", L"c");
    EXPECT_EQ(4u, CountCalls("CreateInstance"));
    EXPECT_EQ(4u, CountCalls("Execute"));
}

TEST_F(SettingsStore, AsksForAValueOnceInALifetime)
{
    Keep(L"a", L"first");
    m_store.ReadString(L"Options", L"a");
    Keep(L"a", L"another process's");
    EXPECT_EQ(L"first", m_store.ReadString(L"Options", L"a"));
    EXPECT_EQ(L"first", CSettingsStore(m_strRoot).ReadString(L"Options", L"a"));
    EXPECT_EQ(1u, CountCalls("CreateInstance"));
}

TEST_F(SettingsStore, RemembersAsWellThatAValueIsAbsent)
{
    EXPECT_EQ(L"", m_store.ReadString(L"Options", L"a"));
    Keep(L"a", L"another process's");
    EXPECT_EQ(L"", m_store.ReadString(L"Options", L"a"));
    EXPECT_EQ(1u, CountCalls("Execute"));
}

TEST_F(SettingsStore, TakesNothingForTheEmptyText)
{
    CFakeCalls::Get().FailAll("SettingsBroker.Execute", S_OK);
    EXPECT_EQ(L"", m_store.ReadString(L"Options", L"a"));
    CFakeCalls::Get().Reset();
    EXPECT_EQ(L"", m_store.ReadString(L"Options", L"a"));
    EXPECT_EQ(0u, CountCalls("Execute")) << "the answer was known";
}

TEST_F(SettingsStore, DoesNotAskForWhatItHasWritten)
{
    m_store.WriteString(L"new", L"Options", L"a");
    EXPECT_EQ(L"new", m_store.ReadString(L"Options", L"a"));
    EXPECT_THAT((*m_broker)->m_reads, IsEmpty());
}

TEST_F(SettingsStore, HandsEveryWriteToTheBrokerEvenOfTheSameText)
{
    m_store.WriteString(L"1", L"Options", L"a");
    m_store.WriteString(L"1", L"Options", L"a");
    EXPECT_EQ(2u, (*m_broker)->m_writes.size());
}

TEST_F(SettingsStore, KeepsAWrittenEmptyTextAsAbsent)
{
    Keep(L"a", L"5");
    m_store.WriteString(L"", L"Options", L"a");
    EXPECT_EQ(-1, m_store.ReadInt(L"Options", L"a"));
    EXPECT_THAT((*m_broker)->m_writes, ElementsAre(Pair(KeyOf(L"a"), L"")));
    EXPECT_THAT((*m_broker)->m_reads, IsEmpty());
}

TEST_F(SettingsStore, TellsKeysOfDifferentCaseApart)
{
    Keep(L"a", L"small");
    Keep(L"A", L"capital");
    EXPECT_EQ(L"small", m_store.ReadString(L"Options", L"a"));
    EXPECT_EQ(L"capital", m_store.ReadString(L"Options", L"A"));
}

TEST_F(SettingsStore, ReadsNumbersFromTheFrontOfTheText)
{
    Keep(L"digits", L"4");
    Keep(L"letters", L"none");
    Keep(L"mixed", L"12abc");
    Keep(L"signed", L" -3");
    EXPECT_EQ(4, m_store.ReadInt(L"Options", L"digits"));
    EXPECT_EQ(0, m_store.ReadInt(L"Options", L"letters"));
    EXPECT_EQ(12, m_store.ReadInt(L"Options", L"mixed"));
    EXPECT_EQ(-3, m_store.ReadInt(L"Options", L"signed"));
    EXPECT_EQ(-1, m_store.ReadInt(L"Options", L"absent"));
}

TEST_F(SettingsStore, WritesNumbersInDecimalDigits)
{
    m_store.WriteInt(INT_MIN, L"Options", L"least");
    m_store.WriteInt(INT_MAX, L"Options", L"most");
    m_store.WriteInt(0, L"Options", L"none");
    EXPECT_THAT((*m_broker)->m_writes, ElementsAre(Pair(KeyOf(L"least"), L"-2147483648"),
                                                   Pair(KeyOf(L"most"), L"2147483647"), Pair(KeyOf(L"none"), L"0")));
    EXPECT_EQ(INT_MIN, m_store.ReadInt(L"Options", L"least"));
}

TEST_F(SettingsStore, TakesATextOfAMegabyte)
{
    const std::wstring strText(1024 * 1024, L'x');
    Keep(L"a", strText);
    EXPECT_EQ(strText, m_store.ReadString(L"Options", L"a"));
}

TEST_F(SettingsStore, ReadsNothingWithoutABrokerAndAsksAgainNextTime)
{
    StopBroker();
    EXPECT_EQ(L"", m_store.ReadString(L"Options", L"a"));
    EXPECT_EQ(-1, m_store.ReadInt(L"Options", L"a"));
    StartBroker();
    Keep(L"a", L"there");
    EXPECT_EQ(L"there", m_store.ReadString(L"Options", L"a"));
}

TEST_F(SettingsStore, KeepsWhatIsWrittenWithoutABroker)
{
    StopBroker();
    m_store.WriteString(L"new", L"Options", L"a");
    EXPECT_EQ(L"new", m_store.ReadString(L"Options", L"a"));
    StartBroker();
    EXPECT_EQ(L"new", m_store.ReadString(L"Options", L"a"));
    EXPECT_THAT((*m_broker)->m_writes, IsEmpty());
}

TEST_P(SettingsStoreWithBrokenBroker, ReadsNothingAndAsksAgainNextTime)
{
    Keep(L"a", L"there");
    EXPECT_EQ(L"", m_store.ReadString(L"Options", L"a"));
    EXPECT_EQ(L"", m_store.ReadString(L"Options", L"a"));
    EXPECT_EQ(2u, CFakeCalls::Get().CountOf(GetParam().pszCall));
    Repair();
    EXPECT_EQ(L"there", m_store.ReadString(L"Options", L"a"));
}

TEST_P(SettingsStoreWithBrokenBroker, KeepsWhatIsWritten)
{
    m_store.WriteString(L"new", L"Options", L"a");
    EXPECT_EQ(L"new", m_store.ReadString(L"Options", L"a"));
    EXPECT_EQ(1u, CFakeCalls::Get().CountOf(GetParam().pszCall));
}

INSTANTIATE_TEST_SUITE_P(, SettingsStoreWithBrokenBroker,
                         testing::Values(FailingCall {"SettingsBroker.CreateInstance", E_ACCESSDENIED},
                                         FailingCall {"SettingsBroker.CreateInstance", S_OK},
                                         FailingCall {"SettingsBroker.Execute", E_FAIL},
                                         FailingCall {"SettingsBroker.Execute", RPC_E_SERVERFAULT},
                                         FailingCall {"SettingsBroker.Execute", S_FALSE}));

TEST(SettingsBrokerProtocol, HasItsOddVerbs)
{
    EXPECT_STREQ(L"GetMetroStyle", ReadVerb);
    EXPECT_STREQ(L"GetAppContainer", WriteVerb);
    EXPECT_STREQ(L"SortDOM", ResizeVerb);
}

TEST(SettingsBrokerProtocol, HasItsIdentifiers)
{
    constexpr GUID clsid = {0xE4F1E3E2, 0x7B75, 0x4AFB, {0xAD, 0x12, 0xA4, 0xD8, 0x21, 0x98, 0x33, 0x77}};
    constexpr GUID iid = {0x76D72D89, 0xD73F, 0x46D9, {0xAB, 0x7F, 0xDD, 0xB0, 0x94, 0xA8, 0xFD, 0xB7}};
    EXPECT_TRUE(IsEqualGUID(clsid, CLSID_SettingsBroker));
    EXPECT_TRUE(IsEqualGUID(iid, __uuidof(ISettingsBroker)));
}
