#include "tools/ButtonSearchGoogle.h"

#include "band/ButtonIndex.h"
#include "band/ButtonSection.h"
#include "band/TrelvixWindow.h"
#include "resources/resource.h"
#include "settings/LanguagePack.h"
#include "settings/SettingsStore.h"
#include "tools/HotKeySuffix.h"

IMPLEMENT_DYNCREATE(CButtonSearchGoogle, CButtonSearchWeb)

bool CButtonSearchGoogle::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = SearchGoogleIndex;
    const std::wstring strSection = GetButtonSection(m_nButtonId);
    CSettingsStore store(SettingsRoot);
    m_strSearchUrl = store.ReadString(strSection, L"WebSearchURL");
    if (m_strSearchUrl.empty())
        LoadTranslatedString(m_strSearchUrl, IDS_URL_DEFAULT_SEARCH);
    CButtonSearchWeb::Initialize(pParent);
    const std::wstring strTitle = store.ReadString(strSection, L"WebSearchTitle");
    if (!strTitle.empty())
        ShowTitle(strTitle + GetHotKeySuffix(store.ReadString(L"Options", L"HotKeySearch")));
    return true;
}

void CButtonSearchGoogle::ShowTitle(const std::wstring& strTitle)
{
    SetLabel(strTitle.c_str());
    if (m_pToolbar != nullptr)
        m_tbButton.iString = m_pToolbar->AddStrings(GetLabelList());
}
