#pragma once

#include "broker/SettingsBroker.h"
#include "framework/Handles.h"

#include <windows.h>
#include <gtest/gtest.h>
#include <wrl/client.h>

#include <string>

/// The real broker, registered for the machine while a test runs. The person's settings are gone before and afterwards.
/// These tests run in a Wine prefix of their own.
class CBrokerTest : public testing::Test
{
protected:
    CBrokerTest();
    ~CBrokerTest() override;

    /// From now on a broker that the system starts stays so long after its last client.
    static void SetLinger(unsigned nSeconds);
    /// From now on the system starts this instead of the broker.
    static void SetServerCommand(const std::wstring& strCommand);

    static Microsoft::WRL::ComPtr<ISettingsBroker> CreateBroker();
    /// Null texts are null pointers.
    static HRESULT Execute(ISettingsBroker& broker, const wchar_t* pszVerb, const wchar_t* pszKey,
                           std::wstring& strValue);
    static std::wstring ReadValue(ISettingsBroker& broker, const std::wstring& strKey);
};

/// The one broker process, or null when none runs.
CUniqueKernelHandle OpenBrokerProcess();
/// Waits so long for the end of a process.
bool IsEnded(const CUniqueKernelHandle& process, DWORD dwMilliseconds);

/// Ends all broker processes and waits until they are gone.
void KillBroker();

/// The full key of a setting of the product.
std::wstring GetKey(const std::wstring& strSection, const std::wstring& strName);

/// Does steps in a process of its own: "READ section name text" reads and compares, "WRITE section name text" writes.
/// 0, or the number of the first step that read another text.
DWORD RunSettingsClient(const std::wstring& strSteps);
