#include "bench/com/Document.h"

#include "bench/com/BrowserWindow.h"
#include "bench/com/EnumUnknown.h"
#include "bench/com/Variants.h"
#include "bench/com/WebBrowser.h"
#include "framework/ComBoundary.h"

CDocument::CDocument(CWebBrowser& browser, const CPageFrame& frame)
    : m_pBrowser(&browser), m_frameId(frame.strId), m_nDocument(frame.nDocument)
{
}

bool CDocument::IsOnShow() const
{
    if (m_pBrowser == nullptr || !m_pBrowser->GetPage().IsOpen())
        return false;
    const CPageFrame* const pFrame = m_pBrowser->GetPage().GetFrames().Find(m_frameId);
    return pFrame && pFrame->nDocument == m_nDocument;
}

std::optional<Json> CDocument::Ask(const char* pszFunction, Json arguments)
{
    if (!IsOnShow())
        return std::nullopt;
    auto answer = m_pBrowser->GetPage().Ask(m_frameId, pszFunction, std::move(arguments));
    // Another document may have come while the question was on its way.
    return IsOnShow() ? std::move(answer) : std::nullopt;
}

bool CDocument::IsOpenToTop()
{
    if (!m_bOpenToTop)
        if (const auto answer = Ask("isOpenToTop"))
            m_bOpenToTop = answer->is_boolean() && answer->get<bool>();
    return m_bOpenToTop.value_or(false);
}

HRESULT CDocument::GetTextProperty(const char* pszName, BSTR* pbstr)
{
    if (pbstr == nullptr)
        return E_POINTER;
    *pbstr = nullptr;
    return ComBoundary([&]() -> HRESULT {
        const auto value = Ask("get", {pszName});
        if (!value)
            return IsOnShow() ? E_FAIL : RPC_E_DISCONNECTED;
        return value->is_string() ? CopyText(FromUtf8(value->get<std::string>()), pbstr) : S_OK;
    });
}

STDMETHODIMP CDocument::get_URL(BSTR* pbstrUrl)
{
    return GetTextProperty("URL", pbstrUrl);
}

STDMETHODIMP CDocument::get_title(BSTR* pbstrTitle)
{
    return GetTextProperty("title", pbstrTitle);
}

STDMETHODIMP CDocument::get_readyState(BSTR* pbstrState)
{
    return GetTextProperty("readyState", pbstrState);
}

STDMETHODIMP CDocument::GetWindow(HWND* phWnd)
{
    if (phWnd == nullptr)
        return E_POINTER;
    *phWnd = IsOnShow() ? m_pBrowser->GetWindow()->GetViewWindow() : nullptr;
    return *phWnd ? S_OK : RPC_E_DISCONNECTED;
}

STDMETHODIMP CDocument::ContextSensitiveHelp(BOOL)
{
    return E_NOTIMPL;
}
