#include "tests/fakes/page/FakeElementCollection.h"

#include "tests/fakes/page/FakeElement.h"

STDMETHODIMP CFakeElementCollection::item(VARIANT vName, VARIANT vIndex, IDispatch** ppElement)
{
    return Call("item", ppElement, [&] {
        if (vName.vt != VT_I4 || vIndex.vt != VT_I4 || vName.lVal < 0)
            return E_INVALIDARG;
        const auto spElement = m_spMarkup->GetElement(std::next(m_spParent->begin), m_spParent->end, vName.lVal);
        if (spElement != nullptr)
            *ppElement = static_cast<IHTMLElement*>(MakeFake<CFakeElement>(m_spMarkup, spElement).Detach());
        return S_OK;
    });
}
