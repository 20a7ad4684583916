#include "tests/fakes/FakeSettingsBroker.h"

#include <gtest/gtest.h>

namespace
{
std::wstring ToText(BSTR bstrText)
{
    return bstrText != nullptr ? std::wstring(bstrText, SysStringLen(bstrText)) : std::wstring();
}
} // namespace

STDMETHODIMP CFakeSettingsBroker::Execute(BSTR* pbstrVerb, BSTR* pbstrKey, BSTR* pbstrValue)
{
    return Call("Execute", [&]() -> HRESULT {
        const std::wstring strVerb = ToText(*pbstrVerb);
        const std::wstring strKey = ToText(*pbstrKey);
        if (strVerb == WriteVerb)
        {
            m_writes.emplace_back(strKey, ToText(*pbstrValue));
            m_values[strKey] = m_writes.back().second;
            return S_OK;
        }
        if (strVerb != ReadVerb)
            return E_INVALIDARG;
        m_reads.push_back(strKey);
        SysReAllocString(pbstrValue, m_values[strKey].c_str());
        return S_OK;
    });
}

STDMETHODIMP CFakeSettingsBroker::CreateInstance(IUnknown* pOuter, REFIID iid, void** ppv)
{
    return Call("CreateInstance", ppv, [&] { return pOuter ? CLASS_E_NOAGGREGATION : QueryInterface(iid, ppv); });
}

CFakeSettingsBrokerServer::CFakeSettingsBrokerServer() : m_spBroker(MakeFake<CFakeSettingsBroker>())
{
    EXPECT_EQ(S_OK, CoRegisterClassObject(CLSID_SettingsBroker, static_cast<IClassFactory*>(m_spBroker.Get()),
                                          CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &m_dwRegistration));
}

CFakeSettingsBrokerServer::~CFakeSettingsBrokerServer()
{
    CoRevokeClassObject(m_dwRegistration);
}
