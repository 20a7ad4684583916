// Requests over the wire that a client with bad intentions could send, and by the slow road of late binding.

#include "tests/fakes/TestWindow.h"
#include "tests/system/broker/BrokerFixture.h"
#include "tests/system/RegistryDump.h"

#include <windows.h>
#include <comutil.h>
#include <gtest/gtest.h>

#include <string>

namespace
{
constexpr DWORD dwMostMilliseconds = 30000;

/// A client of which each test asserts that the registry of the person is as it was and the broker still serves.
class HostileClient : public CBrokerTest
{
protected:
    void SetUp() override
    {
        m_spBroker = CreateBroker();
        ASSERT_TRUE(m_spBroker);
        m_before = DumpRegistry(HKEY_CURRENT_USER, L"Software");
    }

    void TearDown() override
    {
        EXPECT_EQ(m_before, DumpRegistry(HKEY_CURRENT_USER, L"Software"));
        ASSERT_TRUE(m_spBroker);
        EXPECT_EQ(L"", ReadValue(*m_spBroker.Get(), m_strKey));
    }

    bool IsRefused(const wchar_t* pszVerb, const wchar_t* pszKey, std::wstring strValue)
    {
        return FAILED(Execute(*m_spBroker.Get(), pszVerb, pszKey, strValue));
    }

    const std::wstring m_strKey = GetKey(L"Test", L"a");
    Microsoft::WRL::ComPtr<ISettingsBroker> m_spBroker;
    CRegistryDump m_before;
};

_variant_t ByReference(BSTR* pText)
{
    _variant_t argument;
    V_VT(&argument) = VT_BYREF | VT_BSTR;
    V_BSTRREF(&argument) = pText;
    return argument;
}

/// Waits until the window has the size; messages are handled meanwhile.
bool HasSize(HWND hWnd, int cx, int cy)
{
    RECT rect = {};
    for (const ULONGLONG nEnd = GetTickCount64() + dwMostMilliseconds; GetTickCount64() < nEnd;)
    {
        PumpMessages();
        GetWindowRect(hWnd, &rect);
        if (rect.right - rect.left == cx && rect.bottom - rect.top == cy)
            return true;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    return false;
}
} // namespace

TEST_F(HostileClient, GetsNothingForNullTexts)
{
    EXPECT_TRUE(IsRefused(nullptr, m_strKey.c_str(), L"x"));
    EXPECT_TRUE(IsRefused(WriteVerb, nullptr, L"x"));
    EXPECT_TRUE(IsRefused(ReadVerb, nullptr, L"x"));
    BSTR verb = SysAllocString(WriteVerb);
    BSTR key = SysAllocString(m_strKey.c_str());
    BSTR value = nullptr;
    EXPECT_TRUE(FAILED(m_spBroker->Execute(&verb, &key, &value)));
    SysFreeString(verb);
    SysFreeString(key);
}

TEST_F(HostileClient, GetsNothingForNullPointers)
{
    BSTR text = nullptr;
    EXPECT_TRUE(FAILED(m_spBroker->Execute(nullptr, &text, &text)));
    EXPECT_TRUE(FAILED(m_spBroker->Execute(&text, nullptr, &text)));
    EXPECT_TRUE(FAILED(m_spBroker->Execute(&text, &text, nullptr)));
}

TEST_F(HostileClient, GetsNothingForUnknownVerbs)
{
    for (const wchar_t* pszVerb : {L"", L"getappcontainer", L"Delete", L"GetAppContainer\n"})
        EXPECT_TRUE(IsRefused(pszVerb, m_strKey.c_str(), L"x"));
}

TEST_F(HostileClient, GetsNothingOutsideTheProductsKeys)
{
    for (const wchar_t* pszKey :
         {L"", L"|", L"|x", L"Software|x", L"Software\\Halmere Works\\Trelvix|x",
          L"Software\\Halmere Works\\Trelvix\\v5x|x", L"Software\\Halmere Works\\Trelvix\\v5\\\\a|x",
          L"Software\\Microsoft\\Windows\\CurrentVersion\\Run|x", L"..\\..\\x|x",
          L"Software\\Halmere Works\\Trelvix\\v5/../../x|x"})
    {
        EXPECT_TRUE(IsRefused(WriteVerb, pszKey, L"x")) << testing::PrintToString(pszKey);
        EXPECT_TRUE(IsRefused(ReadVerb, pszKey, L"x")) << testing::PrintToString(pszKey);
    }
}

TEST_F(HostileClient, GetsNothingForOversizedTexts)
{
    const std::wstring strLong(1024 * 1024, L'x');
    EXPECT_TRUE(IsRefused(strLong.c_str(), m_strKey.c_str(), L"x"));
    EXPECT_TRUE(IsRefused(WriteVerb, (m_strKey + strLong).c_str(), L"x"));
    EXPECT_TRUE(IsRefused(WriteVerb, m_strKey.c_str(), strLong));
    EXPECT_TRUE(IsRefused(ReadVerb, m_strKey.c_str(), strLong));
    EXPECT_TRUE(IsRefused(WriteVerb, m_strKey.c_str(), std::wstring(32769, L'x'))) << "one character over the limit";
}

TEST_F(HostileClient, GetsNothingForTextsWithNullsInside)
{
    EXPECT_TRUE(IsRefused(WriteVerb, m_strKey.c_str(), std::wstring(3, L'\0')));
}

TEST_F(HostileClient, ResizesNoWindowButABrowsers)
{
    const CTestWindow window(300, 200);
    const std::wstring strWindow = std::to_wstring(HandleToLong(static_cast<HWND>(window)));
    EXPECT_TRUE(IsRefused(ResizeVerb, strWindow.c_str(), L"800x600"));
    EXPECT_TRUE(IsRefused(ResizeVerb, L"0", L"800x600"));
    EXPECT_TRUE(IsRefused(ResizeVerb, L"-1", L"800x600"));
    EXPECT_TRUE(HasSize(window, 300, 200));
}

TEST_F(HostileClient, CallsByNameAsWell)
{
    wchar_t szName[] = L"Execute";
    wchar_t* pszName = szName;
    DISPID dispid = DISPID_UNKNOWN;
    ASSERT_EQ(S_OK, m_spBroker->GetIDsOfNames(IID_NULL, &pszName, 1, LOCALE_NEUTRAL, &dispid));
    BSTR value = nullptr;
    BSTR key = SysAllocString(m_strKey.c_str());
    BSTR verb = SysAllocString(ReadVerb);
    _variant_t arguments[] = {ByReference(&value), ByReference(&key), ByReference(&verb)};
    DISPPARAMS parameters = {arguments, nullptr, 3, 0};
    EXPECT_EQ(S_OK, m_spBroker->Invoke(dispid, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &parameters, nullptr, nullptr,
                                       nullptr));
    parameters.cArgs = 2;
    EXPECT_TRUE(FAILED(
        m_spBroker->Invoke(dispid, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr)));
    SysFreeString(value);
    SysFreeString(key);
    SysFreeString(verb);
}

TEST_F(CBrokerTest, ResizesABrowsersWindowOfAnotherProcess)
{
    WNDCLASSW wc = {};
    wc.lpfnWndProc = DefWindowProcW;
    wc.lpszClassName = L"IEFrame";
    RegisterClassW(&wc);
    const CUniqueHandle<HWND, DestroyWindow> window(CreateWindowW(L"IEFrame", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10,
                                                                  10, 400, 300, nullptr, nullptr, nullptr, nullptr));
    const auto spBroker = CreateBroker();
    std::wstring strSize = L"800x600";
    EXPECT_EQ(S_OK, Execute(*spBroker.Get(), ResizeVerb, std::to_wstring(HandleToLong(window.get())).c_str(), strSize));
    EXPECT_TRUE(HasSize(window.get(), 800, 600));
}
