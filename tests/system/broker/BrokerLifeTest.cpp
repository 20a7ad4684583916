// How the broker starts, stays and leaves, and what the settings store makes of a broker that doesn't start or dies.

#include "settings/SettingsStore.h"
#include "tests/system/broker/BrokerFixture.h"
#include "tests/system/BuiltFile.h"
#include "tests/system/ChildProcess.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <string>

namespace
{
constexpr DWORD dwMostMilliseconds = 30000;
constexpr wchar_t MissingFile[] = L"\"C:\\none\\TrelvixBroker.exe\"";

/// Each of these tests has the broker's process for itself.
class BrokerLife : public CBrokerTest
{
protected:
    ~BrokerLife() override { KillBroker(); }

    CSettingsStore m_store {SettingsRoot};
};
} // namespace

TEST_F(BrokerLife, IsStartedOnceForAllClients)
{
    const auto spFirst = CreateBroker();
    const auto spSecond = CreateBroker();
    const CUniqueKernelHandle process = OpenBrokerProcess();
    ASSERT_TRUE(process);
    TerminateProcess(process.get(), 1);
    ASSERT_TRUE(IsEnded(process, dwMostMilliseconds));
    EXPECT_FALSE(OpenBrokerProcess());
}

TEST_F(BrokerLife, LeavesWhenItHasHadNoClientForAWhile)
{
    SetLinger(1);
    auto spBroker = CreateBroker(); // or it might be gone before its process is opened
    m_store.WriteString(L"text", L"Test", L"a");
    const CUniqueKernelHandle process = OpenBrokerProcess();
    ASSERT_TRUE(process);
    spBroker.Reset();
    EXPECT_TRUE(IsEnded(process, dwMostMilliseconds));
    EXPECT_EQ(0u, RunSettingsClient(L"READ Test a text")) << "and is started again";
}

TEST_F(BrokerLife, LeavesWhenNoClientEverCame)
{
    const std::wstring strCommand = L"/Linger:1";
    EXPECT_EQ(0u, RunProgram(GetShippedFile(L"TrelvixBroker.exe"), strCommand));
}

TEST_F(BrokerLife, StaysWhileAClientHoldsIt)
{
    SetLinger(1);
    auto spBroker = CreateBroker();
    const CUniqueKernelHandle process = OpenBrokerProcess();
    ASSERT_TRUE(process);
    EXPECT_FALSE(IsEnded(process, 2500));
    EXPECT_EQ(L"", ReadValue(*spBroker.Get(), GetKey(L"Test", L"a")));
    spBroker.Reset();
    EXPECT_TRUE(IsEnded(process, dwMostMilliseconds));
}

TEST_F(BrokerLife, StaysForAWhileBehindEachClient)
{
    SetLinger(2);
    CreateBroker();
    const CUniqueKernelHandle process = OpenBrokerProcess();
    ASSERT_TRUE(process);
    for (int n = 0; n < 3; ++n)
    {
        EXPECT_FALSE(IsEnded(process, 1000));
        CreateBroker();
    }
    EXPECT_TRUE(IsEnded(process, dwMostMilliseconds));
}

TEST_F(BrokerLife, MayBeKilledBetweenCalls)
{
    m_store.WriteString(L"known", L"Test", L"a");
    KillBroker();
    EXPECT_EQ(L"known", m_store.ReadString(L"Test", L"a"));
    const std::wstring strUnknown = m_store.ReadString(L"Test", L"b");
    EXPECT_EQ(L"", strUnknown);
    m_store.WriteString(L"new", L"Test", L"b");
    EXPECT_EQ(L"new", m_store.ReadString(L"Test", L"b"));
}

TEST_F(BrokerLife, MayBeKilledWhileAClientHoldsIt)
{
    const auto spBroker = CreateBroker();
    KillBroker();
    std::wstring strValue;
    EXPECT_TRUE(FAILED(Execute(*spBroker.Get(), ReadVerb, GetKey(L"Test", L"a").c_str(), strValue)));
}

TEST_F(BrokerLife, IsQuietlyDoneWithoutWhenItsFileIsMissing)
{
    SetServerCommand(MissingFile);
    EXPECT_EQ(L"", m_store.ReadString(L"Test", L"a"));
    m_store.WriteString(L"new", L"Test", L"a");
    EXPECT_EQ(L"new", m_store.ReadString(L"Test", L"a"));
    EXPECT_EQ(0u, RunSettingsClient(L"READ Test a \"\""));
}

TEST_F(BrokerLife, HoldsBackFromOthersWhatWasWrittenWithoutIt)
{
    SetLinger(1);
    auto spBroker = CreateBroker();
    ASSERT_EQ(0u, RunSettingsClient(L"WRITE Test a old"));
    const CUniqueKernelHandle process = OpenBrokerProcess();
    ASSERT_TRUE(process);
    spBroker.Reset();
    ASSERT_TRUE(IsEnded(process, dwMostMilliseconds));
    SetServerCommand(MissingFile);
    m_store.WriteString(L"new", L"Test", L"a");
    EXPECT_EQ(L"new", m_store.ReadString(L"Test", L"a"));
    SetLinger(300);
    EXPECT_EQ(0u, RunSettingsClient(L"READ Test a old"));
    EXPECT_EQ(L"new", m_store.ReadString(L"Test", L"a"));
}

TEST_F(BrokerLife, IsQuietlyDoneWithoutWhenItIsNotRegistered)
{
    ASSERT_EQ(0u, RunProgram(GetShippedFile(L"TrelvixBroker.exe"), L"/UnregServer"));
    IUnknown* pBroker = nullptr;
    EXPECT_EQ(REGDB_E_CLASSNOTREG,
              CoCreateInstance(CLSID_SettingsBroker, nullptr, CLSCTX_LOCAL_SERVER, IID_PPV_ARGS(&pBroker)));
    EXPECT_EQ(L"", m_store.ReadString(L"Test", L"a"));
    m_store.WriteString(L"new", L"Test", L"a");
    EXPECT_EQ(L"new", m_store.ReadString(L"Test", L"a"));
    ASSERT_EQ(0u, RunProgram(GetShippedFile(L"TrelvixBroker.exe"), L"/RegServer"));
    EXPECT_EQ(0u, RunSettingsClient(L"READ Test a \"\""));
}

TEST_F(BrokerLife, IsQuietlyDoneWithoutWhenItLeavesBeforeItServes)
{
    SetServerCommand(L"\"" + GetShippedFile(L"TrelvixBroker.exe").wstring() + L"\" /Unknown");
    EXPECT_EQ(L"", m_store.ReadString(L"Test", L"a"));
}

TEST_F(BrokerLife, IsAskedAgainOnceItCanBeStarted)
{
    SetServerCommand(MissingFile);
    EXPECT_EQ(L"", m_store.ReadString(L"Test", L"a"));
    SetLinger(300);
    EXPECT_EQ(0u, RunSettingsClient(L"WRITE Test a new"));
    EXPECT_EQ(L"new", m_store.ReadString(L"Test", L"a"));
}
