#include "broker/SettingsBroker.h"
#include "framework/Handles.h"
#include "resources/Trelvix.h"
#include "settings/LanguagePack.h"
#include "settings/SettingKey.h"
#include "settings/SettingsStore.h"
#include "tests/benchmark/Benchmark.h"
#include "tests/fakes/FakeBandSite.h"
#include "tests/fakes/FakeCalls.h"
#include "tests/fakes/FakeSettingsBroker.h"
#include "tests/fakes/FakeWebBrowser2.h"
#include "tests/fakes/TestWindow.h"
#include "tests/system/ServerModule.h"

#include <windows.h>
#include <shlobj.h>
#include <wrl/client.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>

using Microsoft::WRL::ComPtr;

namespace
{
constexpr std::uint16_t nGerman = 0x07;
constexpr int nPackLines = 1000;
constexpr int nReads = 10;
constexpr int nLoads = 20;

/// Does with a band of the library what the browser does with the first one of its process.
void StartBand(const CServerModule& server)
{
    const CTestWindow frame;
    const auto spBrowser = MakeFake<CFakeWebBrowser2>();
    const auto spSite = MakeFake<CFakeBandSite>(frame, spBrowser.Get());
    ComPtr<IDeskBand> spBand;
    if (FAILED(server.CreateInstance(CLSID_ATLTrelvix, nullptr, IID_PPV_ARGS(&spBand))))
        return;
    ComPtr<IObjectWithSite> spObject;
    spBand.As(&spObject);
    DESKBANDINFO info = {};
    info.dwMask = DBIM_MODEFLAGS | DBIM_TITLE;
    spObject->SetSite(static_cast<IInputObjectSite*>(spSite.Get()));
    spBand->GetBandInfo(0, 0, &info);
    spBand->ShowDW(TRUE);
    spBand->CloseDW(0);
    spObject->SetSite(nullptr);
}

void CountCallsOfFirstStart(CBenchmark& benchmark)
{
    const CServerModule server; // no other subject has filled the cache of the library
    const CFakeSettingsBrokerServer broker;
    CFakeCalls::Get().Reset();
    StartBand(server);
    const std::set<std::wstring> distinct(broker->m_reads.begin(), broker->m_reads.end());
    const auto nObjects = CFakeCalls::Get().CountOf("SettingsBroker.CreateInstance") - broker->m_writes.size();
    benchmark.Count("broker objects for reads at the first start", static_cast<long long>(nObjects),
                    std::max<long long>(1, static_cast<long long>(distinct.size())));
    PumpMessages();
}

/// A setting that this process has not asked for yet.
std::wstring NextName()
{
    static int nNames = 0;
    return L"name" + std::to_wstring(++nNames);
}

/// Whether the read succeeded.
bool ReadBare(const std::wstring& strName)
{
    ComPtr<ISettingsBroker> spBroker;
    CoCreateInstance(CLSID_SettingsBroker, nullptr, CLSCTX_LOCAL_SERVER, IID_PPV_ARGS(&spBroker));
    BSTR verb = SysAllocString(ReadVerb);
    BSTR key = SysAllocString(BuildSettingKey(SettingsRoot, L"Benchmark", strName).c_str());
    BSTR value = nullptr;
    const bool bRead = spBroker && spBroker->Execute(&verb, &key, &value) == S_OK;
    SysFreeString(verb);
    SysFreeString(key);
    SysFreeString(value);
    return bRead;
}

/// Against the broker that is registered.
void CompareUncachedRead(CBenchmark& benchmark)
{
    CSettingsStore store(SettingsRoot);
    benchmark.Count("brokers to be had for the reads that follow", ReadBare(NextName()), 1);
    benchmark.Compare(
        "one read of an unknown setting", {.mostRatio = 1.1},
        [&] { return TimeOfEach(nReads, [&] { store.ReadString(L"Benchmark", NextName()); }); },
        [] { return TimeOfEach(nReads, [] { ReadBare(NextName()); }); });
}

/// A pack of an installation folder of its own, gone with the object.
class CPack
{
public:
    explicit CPack(bool bWide)
    {
        std::wstring strText = bWide ? L"\xFEFF" : L"";
        for (int n = 1; n <= nPackLines; ++n)
            strText += std::to_wstring(n) +
                       L":Hier steht der \xFC"
                       L"bersetzte Text Nummer " +
                       std::to_wstring(n) + L"\r\n";
        std::filesystem::create_directories(GetPath().parent_path());
        std::ofstream file(GetPath(), std::ios::binary);
        if (bWide)
            file.write(reinterpret_cast<const char*>(strText.data()), strText.size() * sizeof(wchar_t));
        else
            file << std::string(strText.begin(), strText.end());
    }
    ~CPack() { std::filesystem::remove_all(GetFolder()); }

    static std::filesystem::path GetFolder()
    {
        return std::filesystem::temp_directory_path() / (L"TrelvixBenchmark" + std::to_wstring(GetCurrentProcessId()));
    }
    static std::filesystem::path GetPath() { return GetFolder() / L"Languages\\GERMAN.lang"; }
};

std::string ReadRaw(const wchar_t* pszPath)
{
    const CUniqueKernelHandle file(
        CreateFileW(pszPath, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    std::string strBytes(GetFileSize(file.get(), nullptr), '\0');
    DWORD nRead = 0;
    ReadFile(file.get(), strBytes.data(), static_cast<DWORD>(strBytes.size()), &nRead, nullptr);
    return strBytes;
}

/// Lines of the code page become wide text; wide lines are taken as they are.
void Convert(std::string_view line, std::wstring& strText)
{
    strText.resize(MultiByteToWideChar(CP_ACP, 0, line.data(), static_cast<int>(line.size()), nullptr, 0));
    MultiByteToWideChar(CP_ACP, 0, line.data(), static_cast<int>(line.size()), strText.data(),
                        static_cast<int>(strText.size()));
}

void Convert(std::wstring_view line, std::wstring& strText)
{
    strText = line;
}

/// Reads the file and gives its text line by line, as any reader must.
template <class Character>
void ReadAndConvert(const wchar_t* pszPath)
{
    const std::string strBytes = ReadRaw(pszPath);
    std::basic_string_view<Character> text(reinterpret_cast<const Character*>(strBytes.data()),
                                           strBytes.size() / sizeof(Character));
    std::wstring strLine;
    while (!text.empty())
    {
        const auto line = text.substr(0, text.find(Character('\n')));
        Convert(line, strLine);
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
}

void ComparePackLoad(CBenchmark& benchmark, const std::string& strName, bool bWide)
{
    const CPack pack(bWide);
    const std::wstring strFolder = CPack::GetFolder().wstring();
    const std::wstring strPath = CPack::GetPath().wstring();
    benchmark.Compare(
        strName, {.mostRatio = 2},
        [&] {
            return TimeOfEach(nLoads, [&] {
                InitLanguage(strFolder, nGerman);
                ReleaseLanguage();
            });
        },
        [&] {
            return TimeOfEach(nLoads, [&] {
                bWide ? ReadAndConvert<wchar_t>(strPath.c_str()) : ReadAndConvert<char>(strPath.c_str());
            });
        });
}

void MeasureSettings(CBenchmark& benchmark)
{
    CountCallsOfFirstStart(benchmark);
    CompareUncachedRead(benchmark);
    ComparePackLoad(benchmark, "load of a pack of 1000 lines, UTF-16", true);
    ComparePackLoad(benchmark, "load of a pack of 1000 lines, code page", false);
}

const CSubject s_subject("settings", MeasureSettings);
} // namespace
