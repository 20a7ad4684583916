#pragma once

#include "tests/fakes/FakeObject.h"

#include <windows.h>
#include <objidl.h>

#include <vector>

/// The enumeration of a document's embedded objects.
class CFakeEnumUnknown : public CFakeObject<CFakeEnumUnknown, IEnumUnknown>
{
    BEGIN_COM_MAP(CFakeEnumUnknown)
        COM_INTERFACE_ENTRY(IEnumUnknown)
    END_COM_MAP()

public:
    explicit CFakeEnumUnknown(std::vector<Microsoft::WRL::ComPtr<IUnknown>> objects)
        : CFakeObject("EnumUnknown"), m_objects(std::move(objects))
    {
    }

    /// Delivers one object at a time, whatever the number asked for.
    STDMETHODIMP Next(ULONG nObjects, IUnknown** ppObject, ULONG* pnFetched) override;
    STDMETHODIMP Skip(ULONG nObjects) override;
    STDMETHODIMP Reset() override;
    STDMETHODIMP Clone(IEnumUnknown** ppEnum) override;

private:
    std::vector<Microsoft::WRL::ComPtr<IUnknown>> m_objects;
    size_t m_nNext = 0;
};
