#include "framework/Object.h"

#include <new>

const CRuntimeClass CObject::classCObject = {"CObject", nullptr, nullptr};

std::unique_ptr<CObject> CRuntimeClass::CreateObject() const
{
    if (m_pfnCreateObject == nullptr)
        return nullptr;
    try
    {
        return m_pfnCreateObject();
    }
    catch (const std::bad_alloc&)
    {
        return nullptr;
    }
}

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const
{
    for (const CRuntimeClass* pClass = this; pClass != nullptr; pClass = pClass->m_pBaseClass)
        if (pClass == pBaseClass)
            return true;
    return false;
}

const CRuntimeClass* CObject::GetRuntimeClass() const
{
    return &classCObject;
}

void CObject::Serialize(CArchive&) {}

bool CObject::IsKindOf(const CRuntimeClass* pClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}
