#include "band/BandService.h"

#include "settings/InstallFolder.h"
#include "settings/LanguagePack.h"
#include "settings/SettingsStore.h"

#include <windows.h>

namespace
{
volatile LONG s_nBands = 0;

/// Low 16 bits that stand for no choice; -1, the answer for an absent value, has them too.
constexpr WORD NoLanguage = 0xFFFF;
constexpr WORD AutomaticLanguage = 0;

void StartFirstBand()
{
    const std::wstring folder = ReadInstallFolder();
    const WORD language = LOWORD(CSettingsStore(SettingsRoot).ReadInt(L"Options", L"langID"));
    InitLanguage(folder, language == NoLanguage ? AutomaticLanguage : language);
}
} // namespace

void CountBandIn()
{
    if (InterlockedIncrement(&s_nBands) == 1)
        StartFirstBand();
}

void CountBandOut()
{
    if (InterlockedDecrement(&s_nBands) == 0)
        ReleaseLanguage();
}
