#include "framework/ComModule.h"

#include "framework/ClassFactory.h"
#include "framework/Module.h"
#include "framework/Wnd.h"

#include <algorithm>

namespace
{
CComModule* s_pModule = nullptr;
}

CComModule::CComModule()
{
    s_pModule = this;
}

CComModule::~CComModule()
{
    s_pModule = nullptr;
}

CComModule* CComModule::GetModule()
{
    return s_pModule;
}

void CComModule::Init(std::span<const CComClassEntry> classes, const GUID& libid)
{
    m_classes = classes;
    m_libid = libid;
}

void CComModule::Term()
{
    m_classes = {};
}

HRESULT CComModule::GetClassObject(REFCLSID clsid, REFIID iid, void** ppv) const
{
    if (ppv == nullptr)
        return E_POINTER;
    *ppv = nullptr;
    const auto row = std::find_if(m_classes.begin(), m_classes.end(),
                                  [&](const CComClassEntry& entry) { return IsEqualCLSID(*entry.pclsid, clsid); });
    return row == m_classes.end() ? CLASS_E_CLASSNOTAVAILABLE : CComClassFactory::Create(*row, iid, ppv);
}

HRESULT AfxDllCanUnloadNow()
{
    return CWnd::GetAttachedCount() == 0 ? S_OK : S_FALSE;
}
