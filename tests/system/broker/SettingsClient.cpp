// settings_client (READ SECTION NAME TEXT | WRITE SECTION NAME TEXT)...: a process of its own that does what a
// browser's process does, one step after the other. The exit code is 0, or the number of the first step, counted from
// 1, that read another text.

#include "settings/SettingsStore.h"

#include <windows.h>
#include <objbase.h>

#include <string>

namespace
{
constexpr int nArgumentsOfStep = 4;

bool Perform(wchar_t* step[])
{
    CSettingsStore store(SettingsRoot);
    const std::wstring strAction = step[0];
    if (strAction == L"WRITE")
        store.WriteString(step[3], step[1], step[2]);
    return strAction == L"WRITE" || store.ReadString(step[1], step[2]) == step[3];
}
} // namespace

int wmain(int argc, wchar_t* argv[])
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int nFailed = 0;
    for (int n = 1; n + nArgumentsOfStep <= argc && nFailed == 0; n += nArgumentsOfStep)
        if (!Perform(argv + n))
            nFailed = (n - 1) / nArgumentsOfStep + 1;
    CoUninitialize();
    return nFailed;
}
