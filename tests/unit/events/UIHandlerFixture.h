#pragma once

#include "band/TrelvixMSHTMLUIHandler.h"
#include "tests/fakes/FakeClientSite.h"
#include "tests/fakes/ProductModule.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// A handler between a document and the browser's site.
class CUIHandlerTest : public testing::Test
{
protected:
    CUIHandlerTest()
    {
        EXPECT_EQ(S_OK,
                  CoCreateInstance(CLSID_TrelvixMSHTMLUIHandler, nullptr, CLSCTX_ALL, IID_PPV_ARGS(&m_spHandler)));
        EXPECT_EQ(S_OK, m_spHandler.As(&m_spUI));
        EXPECT_EQ(S_OK, m_spHandler.As(&m_spTarget));
        CFakeCalls::Get().ClearLog();
    }

    void SetSite()
    {
        EXPECT_EQ(S_OK, m_spHandler->SetOleClientSite(m_spSite.Get()));
        CFakeCalls::Get().ClearLog();
    }

    CProductModule m_module;
    Microsoft::WRL::ComPtr<CFakeClientSite> m_spSite = MakeFake<CFakeClientSite>();
    Microsoft::WRL::ComPtr<ITrelvixMSHTMLUIHandler> m_spHandler;
    Microsoft::WRL::ComPtr<IDocHostUIHandler> m_spUI;
    Microsoft::WRL::ComPtr<IOleCommandTarget> m_spTarget;
};
