#include "controls/XPStyleContext.h"

#include "tests/unit/controls/ActivationContext.h"

#include <gtest/gtest.h>

#include <memory>

TEST(XPStyleContext, BringsTheModulesManifestIntoForce)
{
    ASSERT_FALSE(AreCommonControlsRedirected());
    {
        const CXPStyleContext context;
        EXPECT_TRUE(context.IsActive());
        EXPECT_TRUE(AreCommonControlsRedirected());
    }
    EXPECT_FALSE(AreCommonControlsRedirected());
}

TEST(XPStyleContext, RestoresWhatWasInForce)
{
    const HANDLE hBefore = GetContextInForce();
    {
        const CXPStyleContext outer;
        const HANDLE hOuter = GetContextInForce();
        EXPECT_NE(hBefore, hOuter);
        {
            const CXPStyleContext inner;
            EXPECT_NE(hOuter, GetContextInForce());
        }
        EXPECT_EQ(hOuter, GetContextInForce());
    }
    EXPECT_EQ(hBefore, GetContextInForce());
}
