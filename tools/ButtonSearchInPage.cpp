#include "tools/ButtonSearchInPage.h"

#include "band/ButtonIndex.h"
#include "band/TrelvixWindow.h"
#include "tools/PageHighlight.h"
#include "tools/ShownDocument.h"

IMPLEMENT_DYNCREATE(CButtonSearchInPage, CButtonSearchWeb)

bool CButtonSearchInPage::Initialize(CTrelvixWindow* pParent)
{
    m_nButtonId = SearchInPageIndex;
    m_strSearchUrl = L"%%WORD%%";
    return CButtonSearchWeb::Initialize(pParent);
}

bool CButtonSearchInPage::Search(const std::wstring& strText)
{
    if (strText.empty())
        return false;
    if (m_comboSearch.FindStringExact(-1, strText.c_str()) == CB_ERR)
        m_comboSearch.InsertString(0, strText.c_str());
    const auto spDocument = GetShownDocument(m_pToolbar != nullptr ? m_pToolbar->GetWebBrowser() : nullptr);
    if (!spDocument)
        return false;
    HighlightFrames(strText, spDocument.Get());
    return true;
}
