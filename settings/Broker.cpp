#include "settings/Broker.h"

using Microsoft::WRL::ComPtr;

ComPtr<ISettingsBroker> CreateSettingsBroker()
{
    ComPtr<ISettingsBroker> spBroker;
    if (FAILED(CoCreateInstance(CLSID_SettingsBroker, nullptr, CLSCTX_LOCAL_SERVER, IID_PPV_ARGS(&spBroker))))
        return nullptr;
    return spBroker;
}
