// What becomes of the manifest's users in a module that has none.

#include "controls/IsolationAware.h"
#include "controls/XPStyleContext.h"
#include "framework/Handles.h"
#include "tests/unit/controls/ActivationContext.h"

#include <gtest/gtest.h>

TEST(XPStyleContextWithoutAManifest, StaysInactive)
{
    const CXPStyleContext context;
    EXPECT_FALSE(context.IsActive());
    EXPECT_FALSE(AreCommonControlsRedirected());
}

TEST(IsolationAwareWithoutAManifest, GoesOnWithoutOne)
{
    const CUniqueModule library(IsolatedLoadLibrary(L"version.dll"));
    EXPECT_NE(nullptr, library);
    EXPECT_EQ(nullptr, GetContextInForce());
}
