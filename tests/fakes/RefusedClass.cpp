#include "tests/fakes/RefusedClass.h"

#include "tests/fakes/FakeObject.h"

namespace
{
class CRefusingFactory : public CFakeObject<CRefusingFactory, IClassFactory>
{
    BEGIN_COM_MAP(CRefusingFactory)
        COM_INTERFACE_ENTRY(IClassFactory)
    END_COM_MAP()

public:
    CRefusingFactory() : CFakeObject("RefusingFactory") {}

    STDMETHODIMP CreateInstance(IUnknown*, REFIID, void** ppv) override
    {
        return Call("CreateInstance", ppv, [] { return E_OUTOFMEMORY; });
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }
};
} // namespace

CRefusedClass::CRefusedClass(REFCLSID clsid, DWORD dwContext)
{
    CoRegisterClassObject(clsid, MakeFake<CRefusingFactory>().Get(), dwContext, REGCLS_MULTIPLEUSE, &m_dwRegistration);
}

CRefusedClass::~CRefusedClass()
{
    CoRevokeClassObject(m_dwRegistration);
}
