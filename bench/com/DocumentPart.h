#pragma once

#include "bench/com/CountedObject.h"
#include "bench/com/Document.h"
#include "bench/com/Variants.h"
#include "framework/ComBoundary.h"

#include <windows.h>
#include <wrl/client.h>

#include <string>
#include <utility>

/// Base of the objects that belong to a document, which they keep alive. Their questions are answered by page.js.
template <class Derived, class... Bases>
class CDocumentPart : public CCountedObject<Derived, Bases...>
{
protected:
    explicit CDocumentPart(CDocument& document) : m_spDocument(&document) {}

    CDocument& GetDocumentObject() const { return *m_spDocument.Get(); }

    /// Asks page.js and hands the answer on; without one the result says why.
    template <class Take>
    HRESULT Ask(const char* pszFunction, Json arguments, Take take) const
    {
        return ComBoundary([&]() -> HRESULT {
            const auto answer = m_spDocument->Ask(pszFunction, std::move(arguments));
            return answer ? take(*answer) : m_spDocument->GetFailure();
        });
    }

    HRESULT AskText(const char* pszFunction, Json arguments, BSTR* pbstr) const
    {
        if (pbstr == nullptr)
            return E_POINTER;
        *pbstr = nullptr;
        return Ask(pszFunction, std::move(arguments), [&](const Json& answer) {
            return answer.is_string() ? CopyText(FromUtf8(answer.get<std::string>()), pbstr) : S_OK;
        });
    }

    HRESULT AskNumber(const char* pszFunction, Json arguments, long* pn) const
    {
        if (pn == nullptr)
            return E_POINTER;
        *pn = 0;
        return Ask(pszFunction, std::move(arguments), [&](const Json& answer) {
            *pn = answer.is_number() ? static_cast<long>(answer.get<double>()) : 0;
            return S_OK;
        });
    }

    /// For what may change the page.
    HRESULT Tell(const char* pszFunction, Json arguments) const
    {
        m_spDocument->ForgetSearch();
        return Ask(pszFunction, std::move(arguments), [](const Json&) { return S_OK; });
    }

private:
    Microsoft::WRL::ComPtr<CDocument> m_spDocument;
};
