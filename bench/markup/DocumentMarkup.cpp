#include "bench/markup/DocumentMarkup.h"

#include "bench/com/Document.h"

namespace
{
constexpr UINT WM_FLUSH = WM_APP;
constexpr char RunFunction[] = "markup.run";
} // namespace

BEGIN_MESSAGE_MAP(CDocumentMarkup, CWnd)
    ON_MESSAGE(WM_FLUSH, OnFlush)
END_MESSAGE_MAP()

void CDocumentMarkup::Do(const char* pszOperation, std::initializer_list<int> numbers)
{
    m_list.Add(pszOperation, numbers);
    if (m_list.IsFull())
        return Flush();
    if (m_hWnd == nullptr)
        CreateEx(0, nullptr, L"", 0, RECT {}, HWND_MESSAGE, 0);
    if (!m_bFlushPosted)
        m_bFlushPosted = PostMessageW(m_hWnd, WM_FLUSH, 0, 0);
}

std::optional<Json> CDocumentMarkup::Ask(const char* pszOperation, std::initializer_list<int> numbers)
{
    m_list.Add(pszOperation, numbers);
    return m_document.Ask(RunFunction, TakeList());
}

LRESULT CDocumentMarkup::OnFlush(WPARAM, LPARAM)
{
    m_bFlushPosted = false;
    Flush();
    return 0;
}

void CDocumentMarkup::Flush()
{
    if (!m_list.IsEmpty())
        m_document.Tell(RunFunction, TakeList());
}

Json CDocumentMarkup::TakeList()
{
    Json texts = Json::array();
    for (const std::wstring& text : m_list.GetTexts())
        texts.push_back(ToUtf8(text));
    Json arguments = {m_list.WriteLines(), std::move(texts)};
    m_list = {};
    return arguments;
}

std::optional<int> CDocumentMarkup::MakeElement(const std::wstring& tag, const std::wstring& attributes)
{
    const int nElement = --m_nLastMade;
    const auto model = std::pair(tag, attributes);
    const auto numbers = {nElement, AddText(tag), AddText(attributes)};
    if (m_models.contains(model))
        Do("make", numbers);
    else if (!Ask("make", numbers))
        return std::nullopt;
    m_models.insert(model);
    m_newElements[nElement] = tag;
    return nElement;
}

const std::wstring* CDocumentMarkup::FindNew(int nElement) const
{
    const auto found = m_newElements.find(nElement);
    return found == m_newElements.end() ? nullptr : &found->second;
}

void CDocumentMarkup::ReleaseElement(int nElement)
{
    m_newElements.erase(nElement);
    Do("release", {nElement});
}
