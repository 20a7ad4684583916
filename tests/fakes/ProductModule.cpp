#include "tests/fakes/ProductModule.h"

#include "band/ClassTable.h"
#include "resources/Trelvix.h"

#include <wrl/client.h>

CProductModule::CProductModule()
{
    OleInitialize(nullptr);
    m_module.Init(GetClassTable(), LIBID_TRELVIXLib);
    for (const CComClassEntry& entry : GetClassTable())
    {
        Microsoft::WRL::ComPtr<IClassFactory> spFactory;
        DWORD dwRegistration = 0;
        if (SUCCEEDED(m_module.GetClassObject(*entry.pclsid, IID_PPV_ARGS(&spFactory))) &&
            SUCCEEDED(CoRegisterClassObject(*entry.pclsid, spFactory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                            &dwRegistration)))
            m_registrations.push_back(dwRegistration);
    }
}

CProductModule::~CProductModule()
{
    RevokeClasses();
    m_module.Term();
    OleUninitialize();
}

void CProductModule::RevokeClasses()
{
    for (const DWORD dwRegistration : m_registrations)
        CoRevokeClassObject(dwRegistration);
    m_registrations.clear();
}
