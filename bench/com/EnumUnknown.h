#pragma once

#include "bench/com/CountedObject.h"

#include <windows.h>
#include <objidl.h>
#include <wrl/client.h>

#include <vector>

/// An enumeration of objects as they were when it was made.
class CEnumUnknown : public CCountedObject<CEnumUnknown, IEnumUnknown>
{
    BEGIN_COM_MAP(CEnumUnknown)
        COM_INTERFACE_ENTRY(IEnumUnknown)
    END_COM_MAP()

public:
    using Objects = std::vector<Microsoft::WRL::ComPtr<IUnknown>>;

    explicit CEnumUnknown(Objects objects, size_t nNext = 0) : m_objects(std::move(objects)), m_nNext(nNext) {}

    STDMETHODIMP Next(ULONG celt, IUnknown** ppObjects, ULONG* pceltFetched) override;
    STDMETHODIMP Skip(ULONG celt) override;
    STDMETHODIMP Reset() override;
    STDMETHODIMP Clone(IEnumUnknown** ppEnum) override;

private:
    Objects m_objects;
    size_t m_nNext;
};
