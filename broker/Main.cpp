// TrelvixBroker: keeps the settings of Trelvix for the browser's processes. COM starts it on demand; by hand it takes
// the switches of ParseCommandLine. It shows nothing; its exit code tells what went wrong.

#include "broker/BrokerModule.h"
#include "broker/BrokerRegistration.h"
#include "broker/CommandLine.h"

#include <windows.h>
#include <objbase.h>

namespace
{
constexpr UINT MillisecondsPerSecond = 1000;

HRESULT Perform(const BrokerOptions& options)
{
    CBrokerModule module;
    switch (options.task)
    {
    case BrokerTask::Register:
        return RegisterBroker(module);
    case BrokerTask::Unregister:
        return UnregisterBroker(module);
    default:
        return module.Run(options.lingerSeconds * MillisecondsPerSecond);
    }
}
} // namespace

int wmain(int argc, wchar_t* argv[])
{
    const auto options = ParseCommandLine({argv + 1, argv + argc});
    if (!options)
        return ERROR_INVALID_PARAMETER;
    HRESULT hr = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    if (FAILED(hr))
        return hr;
    hr = Perform(*options);
    CoUninitialize();
    return hr;
}
