#include "tools/ShownDocument.h"

#include "framework/ComQuery.h"

using Microsoft::WRL::ComPtr;

ComPtr<IHTMLDocument2> GetShownDocument(IWebBrowser2* pBrowser)
{
    ComPtr<IDispatch> spDocument;
    if (pBrowser == nullptr || FAILED(pBrowser->get_Document(&spDocument)))
        return nullptr;
    return QueryFor<IHTMLDocument2>(spDocument.Get());
}
