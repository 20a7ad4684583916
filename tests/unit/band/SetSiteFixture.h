#pragma once

#include "tests/unit/band/BandFixture.h"

/// A band that has not been given a site yet.
class CSetSiteTest : public CBandTest
{
protected:
    IUnknown* GetSiteObject() { return static_cast<IInputObjectSite*>(m_spSite.Get()); }

    HRESULT AskForSite(IUnknown** ppSite)
    {
        return AskBandFor<IObjectWithSite>()->GetSite(IID_IUnknown, reinterpret_cast<void**>(ppSite));
    }
    bool HasSite()
    {
        Microsoft::WRL::ComPtr<IUnknown> spSite;
        return AskForSite(&spSite) == S_OK;
    }
};
