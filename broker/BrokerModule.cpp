#include "broker/BrokerModule.h"

#include "broker/BrokerObject.h"
#include "broker/resource.h"

#include <wrl/client.h>

namespace
{
const CComClassEntry s_classes[] = {{&CLSID_SettingsBroker, IDR_BROKER, &CreateComObject<CBrokerObject>, nullptr}};
}

CBrokerModule::CBrokerModule()
{
    Init(s_classes, LIBID_TrelvixBrokerLib);
}

HRESULT CBrokerModule::Run(UINT nLinger)
{
    m_nLinger = nLinger;
    Microsoft::WRL::ComPtr<IUnknown> spClassObject;
    HRESULT hr = GetClassObject(CLSID_SettingsBroker, IID_PPV_ARGS(&spClassObject));
    DWORD dwRegistration = 0;
    if (SUCCEEDED(hr))
        hr = CoRegisterClassObject(CLSID_SettingsBroker, spClassObject.Get(), CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE,
                                   &dwRegistration);
    if (FAILED(hr))
        return hr;
    StartWaiting();
    ServeUntilIdle();
    CoRevokeClassObject(dwRegistration); // before anything else, so that no client is led to a server that leaves
    ServeRemainingClients();
    return S_OK;
}

void CBrokerModule::Lock()
{
    CComModule::Lock();
    StopWaiting();
}

void CBrokerModule::Unlock()
{
    CComModule::Unlock();
    if (!HasClients())
        StartWaiting();
}

void CBrokerModule::StartWaiting()
{
    m_nTimer = SetTimer(nullptr, m_nTimer, m_nLinger, nullptr);
}

void CBrokerModule::StopWaiting()
{
    if (m_nTimer != 0)
        KillTimer(nullptr, m_nTimer);
    m_nTimer = 0;
}

void CBrokerModule::ServeUntilIdle()
{
    MSG msg;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0)
    {
        // A timer's message may stand in the queue when the timer is already stopped.
        if (msg.hwnd == nullptr && msg.message == WM_TIMER && msg.wParam == m_nTimer && !HasClients())
            return;
        DispatchMessageW(&msg);
    }
}

void CBrokerModule::ServeRemainingClients()
{
    MSG msg;
    while (HasClients() && GetMessageW(&msg, nullptr, 0, 0) > 0)
        DispatchMessageW(&msg);
}
