#include "broker/BrokerObject.h"

#include "broker/UserSettings.h"
#include "framework/ComModule.h"
#include "framework/ComObject.h"
#include "framework/Handles.h"
#include "settings/SettingKey.h"
#include "settings/SettingsStore.h"

#include <windows.h>
#include <comutil.h>
#include <gtest/gtest.h>
#include <wrl/client.h>

#include <string>

namespace
{
constexpr wchar_t OwnRoot[] = L"Software\\TrelvixBrokerObjectTest";

/// An object in this process, over an empty key in the place of the user's registry.
class BrokerObject : public testing::Test
{
protected:
    BrokerObject()
    {
        HKEY hRoot = nullptr;
        RegCreateKeyExW(HKEY_CURRENT_USER, OwnRoot, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &hRoot, nullptr);
        const CUniqueRegistryKey root(hRoot);
        EXPECT_EQ(ERROR_SUCCESS, RegOverridePredefKey(HKEY_CURRENT_USER, root.get()));
        EXPECT_EQ(S_OK, CComObject<CBrokerObject>::CreateInstance(IID_PPV_ARGS(&m_spBroker)));
    }

    ~BrokerObject() override
    {
        m_spBroker.Reset();
        EXPECT_EQ(0, m_module.GetLockCount());
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegDeleteTreeW(HKEY_CURRENT_USER, OwnRoot);
    }

    HRESULT Execute(_bstr_t verb, _bstr_t key, _bstr_t& value)
    {
        return m_spBroker->Execute(&verb.GetBSTR(), &key.GetBSTR(), &value.GetBSTR());
    }
    HRESULT Write(const std::wstring& strKey, _bstr_t value) { return Execute(WriteVerb, strKey.c_str(), value); }
    HRESULT Read(const std::wstring& strKey, _bstr_t& value) { return Execute(ReadVerb, strKey.c_str(), value); }

    std::wstring TextOf(const std::wstring& strKey)
    {
        _bstr_t value;
        EXPECT_EQ(S_OK, Read(strKey, value));
        return value.length() == 0 ? L"" : static_cast<const wchar_t*>(value);
    }

    /// Whether anything at all has been written.
    static bool IsRegistryEmpty()
    {
        DWORD nKeys = 1;
        RegQueryInfoKeyW(HKEY_CURRENT_USER, nullptr, nullptr, nullptr, &nKeys, nullptr, nullptr, nullptr, nullptr,
                         nullptr, nullptr, nullptr);
        return nKeys == 0;
    }

    static void Store(DWORD dwType, const void* pData, DWORD nBytes)
    {
        RegSetKeyValueW(HKEY_CURRENT_USER, (std::wstring(SettingsRoot) + L"\\Options").c_str(), L"a", dwType, pData,
                        nBytes);
    }

    const std::wstring m_strKey = BuildSettingKey(SettingsRoot, L"Options", L"a");
    CComModule m_module;
    Microsoft::WRL::ComPtr<ISettingsBroker> m_spBroker;
};

_bstr_t TextOfBytes(UINT nBytes)
{
    return {SysAllocStringByteLen(std::string(nBytes, 'x').c_str(), nBytes), false};
}
} // namespace

TEST_F(BrokerObject, GivesBackWhatWasWritten)
{
    EXPECT_EQ(S_OK, Write(m_strKey, L"Gr\xFC\xDF"
                                    L"e \x65E5\x672C\xD83D\xDE00"));
    EXPECT_EQ(L"Gr\xFC\xDF"
              L"e \x65E5\x672C\xD83D\xDE00",
              TextOf(m_strKey));
    EXPECT_EQ(S_OK, Write(m_strKey, L"other"));
    EXPECT_EQ(L"other", TextOf(m_strKey));
}

TEST_F(BrokerObject, KeepsTheValueUnderTheUsersKey)
{
    ASSERT_EQ(S_OK, Write(m_strKey, L"text"));
    wchar_t szText[10] = {};
    DWORD nBytes = sizeof(szText);
    EXPECT_EQ(ERROR_SUCCESS, RegGetValueW(HKEY_CURRENT_USER, L"Software\\Halmere Works\\Trelvix\\v5\\Options", L"a",
                                          RRF_RT_REG_SZ, nullptr, szText, &nBytes));
    EXPECT_STREQ(L"text", szText);
}

TEST_F(BrokerObject, GivesNothingForAnAbsentValue)
{
    _bstr_t value(L"before");
    EXPECT_EQ(S_OK, Read(m_strKey, value));
    EXPECT_EQ(nullptr, value.GetBSTR());
    ASSERT_EQ(S_OK, Write(m_strKey, L"text"));
    EXPECT_EQ(L"", TextOf(BuildSettingKey(SettingsRoot, L"Options", L"b")));
    EXPECT_TRUE(TextOf(BuildSettingKey(SettingsRoot, L"Other", L"a")).empty());
}

TEST_F(BrokerObject, MakesNoKeyToReadFrom)
{
    TextOf(m_strKey);
    EXPECT_TRUE(IsRegistryEmpty());
}

TEST_F(BrokerObject, StoresTheEmptyText)
{
    ASSERT_EQ(S_OK, Write(m_strKey, L"text"));
    EXPECT_EQ(S_OK, Write(m_strKey, L""));
    EXPECT_EQ(L"", TextOf(m_strKey));
}

TEST_F(BrokerObject, TakesTextsUpToItsLimit)
{
    EXPECT_EQ(S_OK, Write(m_strKey, TextOfBytes(MaxSettingBytes)));
    EXPECT_EQ(MaxSettingBytes / sizeof(wchar_t), TextOf(m_strKey).size());
    EXPECT_EQ(E_INVALIDARG, Write(m_strKey, TextOfBytes(MaxSettingBytes + 2)));
    EXPECT_EQ(MaxSettingBytes / sizeof(wchar_t), TextOf(m_strKey).size());
}

TEST_F(BrokerObject, RefusesNullPointers)
{
    BSTR bstr = nullptr;
    EXPECT_EQ(E_POINTER, m_spBroker->Execute(nullptr, &bstr, &bstr));
    EXPECT_EQ(E_POINTER, m_spBroker->Execute(&bstr, nullptr, &bstr));
    EXPECT_EQ(E_POINTER, m_spBroker->Execute(&bstr, &bstr, nullptr));
}

TEST_F(BrokerObject, RefusesNullTexts)
{
    _bstr_t value(L"text");
    EXPECT_EQ(E_INVALIDARG, Execute(_bstr_t(), m_strKey.c_str(), value));
    EXPECT_EQ(E_INVALIDARG, Execute(WriteVerb, _bstr_t(), value));
    EXPECT_EQ(E_INVALIDARG, Execute(ReadVerb, _bstr_t(), value));
    EXPECT_EQ(E_INVALIDARG, Write(m_strKey, _bstr_t()));
    _bstr_t none;
    EXPECT_EQ(E_INVALIDARG, Execute(ResizeVerb, L"65552", none));
    EXPECT_TRUE(IsRegistryEmpty());
    EXPECT_STREQ(L"text", value);
}

TEST_F(BrokerObject, RefusesUnknownVerbs)
{
    for (const wchar_t* pszVerb : {L"", L"getmetrostyle", L"GetMetroStyle ", L"Read", L"GetAppContainer2"})
    {
        _bstr_t value(L"text");
        EXPECT_EQ(E_INVALIDARG, Execute(pszVerb, m_strKey.c_str(), value));
        EXPECT_STREQ(L"text", value);
    }
    EXPECT_TRUE(IsRegistryEmpty());
}

TEST_F(BrokerObject, RefusesKeysOutsideTheProduct)
{
    for (const wchar_t* pszKey : {L"", L"|a", L"Software|a", L"Software\\Halmere Works\\Trelvix|Install_Dir",
                                  L"Software\\Microsoft\\Windows\\CurrentVersion\\Run|a"})
    {
        _bstr_t value(L"text");
        EXPECT_EQ(E_ACCESSDENIED, Write(pszKey, value));
        EXPECT_EQ(E_ACCESSDENIED, Read(pszKey, value));
        EXPECT_STREQ(L"text", value);
    }
    EXPECT_TRUE(IsRegistryEmpty());
}

TEST_F(BrokerObject, RefusesTextsWithNullsInside)
{
    const _bstr_t nulled(SysAllocStringLen(L"a\0b", 3), false);
    EXPECT_EQ(E_INVALIDARG, Write(m_strKey, nulled));
    _bstr_t value(L"text");
    EXPECT_EQ(E_INVALIDARG, Execute(nulled, m_strKey.c_str(), value));
    EXPECT_EQ(E_INVALIDARG, Execute(WriteVerb, nulled, value));
    EXPECT_TRUE(IsRegistryEmpty());
}

TEST_F(BrokerObject, RefusesHalfCharacters)
{
    _bstr_t value(L"text");
    EXPECT_EQ(E_INVALIDARG, Write(m_strKey, TextOfBytes(3)));
    EXPECT_EQ(E_INVALIDARG, Execute(TextOfBytes(3), m_strKey.c_str(), value));
    EXPECT_EQ(E_INVALIDARG, Execute(ReadVerb, TextOfBytes(1), value));
    EXPECT_TRUE(IsRegistryEmpty());
}

TEST_F(BrokerObject, RefusesOversizedVerbsAndKeys)
{
    _bstr_t value(L"text");
    EXPECT_EQ(E_INVALIDARG, Execute(TextOfBytes(MaxSettingBytes + 2), m_strKey.c_str(), value));
    EXPECT_EQ(E_INVALIDARG, Execute(WriteVerb, TextOfBytes(1 << 20), value));
    EXPECT_EQ(E_ACCESSDENIED, Write(m_strKey + std::wstring(20000, L'x'), value)) << "no value has such a name";
    EXPECT_TRUE(IsRegistryEmpty());
}

TEST_F(BrokerObject, RefusesToReadIntoAnUnsoundText)
{
    ASSERT_EQ(S_OK, Write(m_strKey, L"text"));
    for (const UINT nBytes : {MaxSettingBytes + 2, 3u})
    {
        _bstr_t value = TextOfBytes(nBytes);
        EXPECT_EQ(E_INVALIDARG, Read(m_strKey, value));
        EXPECT_EQ(nBytes, SysStringByteLen(value.GetBSTR())) << "changed all the same";
    }
}

TEST_F(BrokerObject, FailsForAStoredValueThatIsNoText)
{
    const DWORD dwNumber = 7;
    Store(REG_DWORD, &dwNumber, sizeof(dwNumber));
    _bstr_t value;
    EXPECT_TRUE(FAILED(Read(m_strKey, value)));
}

TEST_F(BrokerObject, FailsForAStoredTextThatIsTooLong)
{
    const std::wstring strText(MaxSettingBytes, L'x');
    Store(REG_SZ, strText.c_str(), static_cast<DWORD>(strText.size() * sizeof(wchar_t)));
    _bstr_t value;
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_MORE_DATA), Read(m_strKey, value));
}

TEST_F(BrokerObject, ReadsAStoredTextWithoutATerminatingNull)
{
    Store(REG_SZ, L"text", 4 * sizeof(wchar_t));
    EXPECT_EQ(L"text", TextOf(m_strKey));
}

TEST_F(BrokerObject, RefusesToResizeWhatIsNoBrowserWindow)
{
    for (const wchar_t* pszWindow : {L"", L"0", L"-1", L"12345678", L"window", L"99999999999"})
    {
        _bstr_t size(L"800x600");
        EXPECT_EQ(E_INVALIDARG, Execute(ResizeVerb, pszWindow, size)) << testing::PrintToString(pszWindow);
    }
}
