#include "bench/com/Document.h"

#include "bench/com/BrowserWindow.h"
#include "bench/com/Element.h"
#include "bench/com/ElementCollection.h"
#include "bench/com/EventObject.h"
#include "bench/com/Variants.h"
#include "bench/com/WebBrowser.h"
#include "bench/markup/DocumentMarkup.h"
#include "framework/ComBoundary.h"

using Microsoft::WRL::ComPtr;

CDocument::CDocument(CWebBrowser& browser, const CPageFrame& frame)
    : m_pBrowser(&browser), m_frameId(frame.strId), m_nDocument(frame.nDocument),
      m_pMarkup(std::make_unique<CDocumentMarkup>(*this))
{
}

CDocument::~CDocument() = default;

bool CDocument::IsOnShow() const
{
    if (m_pBrowser == nullptr || !m_pBrowser->GetPage().IsOpen())
        return false;
    const CPageFrame* const pFrame = m_pBrowser->GetPage().GetFrames().Find(m_frameId);
    return pFrame && pFrame->nDocument == m_nDocument;
}

void CDocument::Detach()
{
    m_pBrowser = nullptr;
    m_spUIHandler.Reset();
}

void CDocument::Replace(CDocument& old)
{
    m_spUIHandler = std::move(old.m_spUIHandler);
    old.Detach();
}

std::optional<Json> CDocument::Ask(const char* pszFunction, Json arguments)
{
    if (!IsOnShow())
        return std::nullopt;
    m_pMarkup->Flush();
    auto answer = m_pBrowser->GetPage().Ask(m_frameId, pszFunction, std::move(arguments));
    // Another document may have come while the question was on its way.
    return IsOnShow() ? std::move(answer) : std::nullopt;
}

void CDocument::Tell(const char* pszFunction, Json arguments)
{
    if (IsOnShow())
        m_pBrowser->GetPage().Tell(m_frameId, pszFunction, std::move(arguments));
}

void CDocument::ForgetSearch()
{
    m_pMarkup->GetSearch().Forget();
}

bool CDocument::IsOpenToTop()
{
    if (m_pBrowser && m_pBrowser->GetPage().GetFrames().IsTop(m_frameId))
        return true;
    if (!m_bOpenToTop)
        if (const auto answer = Ask("isOpenToTop"))
            m_bOpenToTop = answer->is_boolean() && answer->get<bool>();
    return m_bOpenToTop.value_or(false);
}

HRESULT CDocument::GetText(const char* pszName, BSTR* pbstr)
{
    if (pbstr == nullptr)
        return E_POINTER;
    *pbstr = nullptr;
    return ComBoundary([&] {
        const auto value = Ask("get", {pszName});
        if (!value)
            return GetFailure();
        return value->is_string() ? CopyText(FromUtf8(value->get<std::string>()), pbstr) : S_OK;
    });
}

STDMETHODIMP CDocument::put_title(BSTR bstrTitle)
{
    return ComBoundary([&] { return Ask("put", {"title", ToUtf8(GetString(bstrTitle))}) ? S_OK : GetFailure(); });
}

HRESULT CDocument::TakeElement(IHTMLElement** ppElement, const std::function<std::optional<Json>()>& ask)
{
    if (ppElement == nullptr)
        return E_POINTER;
    *ppElement = nullptr;
    return ComBoundary([&] {
        const auto description = ask();
        if (!description)
            return GetFailure();
        return description->is_object() ? GetElement(*description).CopyTo(ppElement) : S_OK;
    });
}

ComPtr<CElement> CDocument::GetElement(const Json& description)
{
    const int nElement = GetNumber(description, "element", 0);
    const auto known = m_elements.find(nElement);
    if (known != m_elements.end())
        return known->second;
    auto spElement = MakeObject<CElement>(*this, nElement, GetNarrowText(description, "tag"));
    m_elements[nElement] = spElement.Get();
    return spElement;
}

void CDocument::ForgetElement(int nElement)
{
    m_elements.erase(nElement);
    // The element's destructor calls this.
    ComBoundary([&] {
        m_pMarkup->ReleaseElement(nElement);
        return S_OK;
    });
}

HRESULT CDocument::GetCollection(std::string kind, IHTMLElementCollection** ppElements)
{
    if (ppElements == nullptr)
        return E_POINTER;
    *ppElements = nullptr;
    return ComBoundary(
        [&] { return MakeObject<CElementCollection>(*this, nullptr, std::move(kind)).CopyTo(ppElements); });
}

STDMETHODIMP CDocument::get_body(IHTMLElement** ppBody)
{
    return AskElement(ppBody, "elementOf", 0, "body");
}

STDMETHODIMP CDocument::get_activeElement(IHTMLElement** ppElement)
{
    return AskElement(ppElement, "elementOf", 0, "activeElement");
}

STDMETHODIMP CDocument::get_documentElement(IHTMLElement** ppElement)
{
    return AskElement(ppElement, "elementOf", 0, "documentElement");
}

STDMETHODIMP CDocument::get_all(IHTMLElementCollection** ppAll)
{
    return GetCollection("all", ppAll);
}

STDMETHODIMP CDocument::getElementsByTagName(BSTR bstrTag, IHTMLElementCollection** ppElements)
{
    return ComBoundary([&] { return GetCollection(ToUtf8(GetString(bstrTag)), ppElements); });
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
