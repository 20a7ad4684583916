#pragma once

#include "band/TrelvixWindow.h"
#include "tests/unit/band/BandFixture.h"

/// A band that sends its browser somewhere.
class CToolbarBrowserTest : public CBandTest
{
protected:
    void ConnectWithoutBrowser()
    {
        CFakeCalls::Get().FailAll("BandSite.QueryService", E_NOINTERFACE);
        Connect();
    }

    /// The flags of each navigation that the browser was asked for.
    std::vector<LONG> GetFlags() const
    {
        std::vector<LONG> flags;
        for (const auto& navigation : m_spBrowser->m_navigations)
        {
            EXPECT_EQ(VT_I4, V_VT(&navigation.vFlags));
            EXPECT_FALSE(navigation.bOtherArguments);
            flags.push_back(V_I4(&navigation.vFlags));
        }
        return flags;
    }
};
