#include "band/ButtonSection.h"
#include "resources/resource.h"
#include "settings/LanguagePack.h"
#include "settings/SettingsStore.h"
#include "tools/ButtonSearchWeb.h"

#include <algorithm>

namespace
{
constexpr int HistorySize = 21;

std::wstring GetValueName(int nEntry)
{
    return L"history" + std::to_wstring(nEntry);
}

/// The last entry of the list takes the history away.
void InsertResetEntry(CComboBox& combo)
{
    std::wstring strReset;
    LoadTranslatedString(strReset, IDS_RESET_HISTORY);
    combo.InsertString(0, strReset.c_str());
}
} // namespace

void CButtonSearchWeb::LoadHistory()
{
    if (m_bNoHistory)
        return;
    CSettingsStore store(SettingsRoot);
    InsertResetEntry(m_comboSearch);
    for (int n = HistorySize - 1; n >= 0; --n)
    {
        const std::wstring strWord = store.ReadString(GetButtonSection(m_nButtonId), GetValueName(n));
        if (!strWord.empty())
            m_comboSearch.InsertString(0, strWord.c_str());
    }
}

void CButtonSearchWeb::SaveHistory()
{
    if (m_bNoHistory || !IsWindow(m_comboSearch))
        return;
    const int nWords = std::min(HistorySize, m_comboSearch.GetCount() - 1);
    if (nWords <= 0)
        return;
    CSettingsStore store(SettingsRoot);
    for (int n = 0; n < nWords; ++n)
    {
        std::wstring strWord;
        m_comboSearch.GetLBText(n, strWord);
        if (!strWord.empty())
            store.WriteString(strWord, GetButtonSection(m_nButtonId), GetValueName(n));
    }
}

void CButtonSearchWeb::ResetHistory()
{
    if (m_bNoHistory)
        return;
    CSettingsStore store(SettingsRoot);
    for (int n = 0; n < HistorySize; ++n)
        store.WriteString({}, GetButtonSection(m_nButtonId), GetValueName(n));
    m_comboSearch.ResetContent();
    m_comboSearch.ShowPlaceholder(true);
    InsertResetEntry(m_comboSearch);
}
