#include "band/BrowserEventArguments.h"
#include "band/ButtonIndex.h"
#include "band/ButtonSection.h"
#include "band/PseudoUrl.h"
#include "band/TrelvixWindow.h"
#include "framework/ComQuery.h"
#include "framework/FormatText.h"
#include "resources/resource.h"
#include "settings/LanguagePack.h"
#include "settings/SettingsStore.h"

#include <windows.h>
#include <shlwapi.h>

#include <array>

namespace
{
constexpr size_t LongestUrlValue = 2084; // with the terminator

std::optional<std::wstring> DecodeUrlValue(const std::wstring& strValue)
{
    std::wstring strEscaped = strValue; // the platform asks for text that it may change, and changes it on request only
    std::array<wchar_t, LongestUrlValue> szDecoded;
    DWORD cchDecoded = static_cast<DWORD>(szDecoded.size());
    if (FAILED(UrlUnescapeW(strEscaped.data(), szDecoded.data(), &cchDecoded, 0)))
        return std::nullopt;
    return szDecoded.data();
}

int ShowMessage(HWND hWndOwner, const std::wstring& strText, UINT nType)
{
    std::wstring strTitle;
    LoadTranslatedString(strTitle, IDS_BUTTON_ROOTMENU);
    return MessageBoxW(GetAncestor(hWndOwner, GA_ROOT), strText.c_str(), strTitle.c_str(), nType);
}

void ShowInvalidSearchEngine(HWND hWndOwner)
{
    std::wstring strText;
    LoadTranslatedString(strText, IDS_SEARCHWEB_INVALID);
    ShowMessage(hWndOwner, strText, MB_ICONERROR);
}

bool ConfirmSearchEngine(HWND hWndOwner, const CSearchEngineRequest& request)
{
    std::wstring strFormat;
    LoadTranslatedString(strFormat, IDS_SEARCHWEB_CONFIRM);
    return ShowMessage(hWndOwner, FormatText(strFormat, {request.strName, request.strUrl}), MB_OKCANCEL) == IDOK;
}

void StoreSearchEngine(const CSearchEngineRequest& request)
{
    const std::wstring strSection = GetButtonSection(SearchGoogleIndex);
    CSettingsStore store(SettingsRoot);
    store.WriteString(request.strName, strSection, L"WebSearchTitle");
    store.WriteString(request.strUrl, strSection, L"WebSearchURL");
    if (request.bShowButton && store.ReadInt(L"Options", L"HideWebSearch") == 1)
        store.WriteInt(0, L"Options", L"HideWebSearch");
}
} // namespace

void CTrelvixWindow::HandlePseudoUrl(DISPPARAMS* pDispParams)
{
    const auto arguments = ReadNavigationArguments(*pDispParams, BeforeNavigateFrame);
    if (!arguments || arguments->pFrame == nullptr || arguments->pFrame != QueryFor<IDispatch>(GetWebBrowser()).Get())
        return;
    const EPseudoUrl eCommand = RecognisePseudoUrl(arguments->strUrl);
    if (eCommand == EPseudoUrl::None)
        return;
    std::wstring strUrl = arguments->strUrl;
    if (eCommand == EPseudoUrl::SearchWeb)
        HandleSearchWebUrl(strUrl);
    else
        HandleNewInstanceUrl(strUrl);
    if (VARIANT_BOOL* pbCancel = GetCancelFlag(*pDispParams))
        *pbCancel = VARIANT_TRUE;
}

bool CTrelvixWindow::HandleSearchWebUrl(std::wstring& strUrl)
{
    if (!CutPseudoUrlPrefix(strUrl, EPseudoUrl::SearchWeb))
        return false;
    const CSearchEngineRequest request = ParseSearchEngineRequest(strUrl, DecodeUrlValue);
    if (!IsValidSearchEngine(request))
    {
        ShowInvalidSearchEngine(m_hWnd);
    }
    else if (ConfirmSearchEngine(m_hWnd, request))
    {
        StoreSearchEngine(request);
        LoadLayout();
    }
    return true;
}

bool CTrelvixWindow::HandleNewInstanceUrl(std::wstring& strUrl)
{
    if (!CutPseudoUrlPrefix(strUrl, EPseudoUrl::NewInstance))
        return false;
    auto strCommandLine = MakeNewInstanceCommandLine(GetCommandLineW(), strUrl);
    if (!strCommandLine)
        return false;
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process;
    // Whether the process started is not looked at, and its handles stay open: meant so.
    CreateProcessW(nullptr, strCommandLine->data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process);
    return true;
}
