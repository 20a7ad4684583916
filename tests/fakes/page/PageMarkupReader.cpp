#include "tests/fakes/page/PageMarkupReader.h"

#include "tests/fakes/page/CaseFolding.h"
#include "tests/fakes/page/MarkupAttributes.h"

#include <algorithm>

namespace
{
bool IsVoid(const std::wstring& strTag)
{
    return strTag == L"BR" || strTag == L"HR" || strTag == L"IMG" || strTag == L"FRAME" || strTag == L"META";
}

class CReader
{
public:
    explicit CReader(CPageMarkup& markup) : m_markup(markup) {}

    void Read(std::wstring_view strSource)
    {
        while (!strSource.empty())
        {
            const size_t nText = std::min(strSource.find(L'<'), strSource.size());
            if (nText != 0)
                m_markup.AppendText(std::wstring(strSource.substr(0, nText)));
            strSource.remove_prefix(nText);
            const size_t nTag = std::min(strSource.find(L'>'), strSource.size());
            if (nTag != 0)
                ReadTag(strSource.substr(1, nTag - 1));
            strSource.remove_prefix(std::min(nTag + 1, strSource.size()));
        }
        CloseUpTo(0);
    }

private:
    void ReadTag(std::wstring_view strTag)
    {
        if (strTag.starts_with(L'/'))
        {
            Close(MakeElement(strTag.substr(1), {})->strTag);
            return;
        }
        const size_t nName = std::min(strTag.find(L' '), strTag.size());
        const auto spElement = MakeElement(strTag.substr(0, nName), strTag.substr(nName));
        m_markup.AppendTag(spElement, false);
        if (IsVoid(spElement->strTag))
            m_markup.AppendTag(spElement, true);
        else
            m_open.push_back(spElement);
    }

    /// Closes the innermost element of the tag, and all in it. An end without a begin counts for nothing.
    void Close(const std::wstring& strTag)
    {
        const auto found = std::find_if(m_open.rbegin(), m_open.rend(),
                                        [&](const auto& spElement) { return spElement->strTag == strTag; });
        if (found != m_open.rend())
            CloseUpTo(std::distance(found, m_open.rend()) - 1);
    }

    void CloseUpTo(size_t nDepth)
    {
        for (; m_open.size() > nDepth; m_open.pop_back())
            m_markup.AppendTag(m_open.back(), true);
    }

    CPageMarkup& m_markup;
    std::vector<std::shared_ptr<CMarkupElement>> m_open;
};
} // namespace

std::shared_ptr<CPageMarkup> ReadMarkup(const std::wstring& strSource)
{
    const std::wstring strFolded = FoldCase(strSource.substr(0, strSource.find(L'>')));
    const bool bHasRoot = strFolded.starts_with(L"<body") || strFolded.starts_with(L"<frameset");
    const std::wstring strRoot = bHasRoot ? strSource : L"<body>" + strSource + L"</body>";
    auto spMarkup = std::make_shared<CPageMarkup>();
    CReader(*spMarkup).Read(L"<html><head><title>A page</title></head>" + strRoot + L"</html>");
    return spMarkup;
}
