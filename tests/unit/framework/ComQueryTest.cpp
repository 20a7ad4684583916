#include "framework/ComQuery.h"

#include "tests/fakes/FakeCalls.h"
#include "tests/fakes/FakeWebBrowser2.h"

#include <windows.h>
#include <exdisp.h>
#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;

TEST(QueryFor, GivesAnOwnedInterface)
{
    const auto spBrowser = MakeFake<CFakeWebBrowser2>();
    const ULONG nBefore = spBrowser->GetReferences();
    const ComPtr<IConnectionPointContainer> spContainer = QueryFor<IConnectionPointContainer>(spBrowser->AsFrame());
    EXPECT_NE(nullptr, spContainer);
    EXPECT_EQ(nBefore + 1, spBrowser->GetReferences());
}

TEST(QueryFor, IsNullForNoObject)
{
    EXPECT_EQ(nullptr, QueryFor<IWebBrowser2>(nullptr));
}

TEST(QueryFor, IsNullForAnInterfaceThatTheObjectLacks)
{
    const auto spBrowser = MakeFake<CFakeWebBrowser2>();
    spBrowser->Lack(__uuidof(IConnectionPointContainer));
    EXPECT_EQ(nullptr, QueryFor<IConnectionPointContainer>(spBrowser->AsFrame()));
}

TEST(QueryFor, IsNullWhenTheObjectClaimsSuccessWithoutGivingIt)
{
    const auto spBrowser = MakeFake<CFakeWebBrowser2>();
    CFakeCalls::Get().FailAll("WebBrowser.QueryInterface", S_OK);
    EXPECT_EQ(nullptr, QueryFor<IWebBrowser2>(spBrowser->AsFrame()));
}

TEST(IsSameObject, SeesThroughTheInterfacesOfOneObject)
{
    const auto spBrowser = MakeFake<CFakeWebBrowser2>();
    const ComPtr<IConnectionPointContainer> spContainer = QueryFor<IConnectionPointContainer>(spBrowser->AsFrame());
    EXPECT_TRUE(IsSameObject(spBrowser->AsFrame(), spContainer.Get()));
}

TEST(IsSameObject, TellsTwoObjectsApart)
{
    const auto spFirst = MakeFake<CFakeWebBrowser2>();
    const auto spSecond = MakeFake<CFakeWebBrowser2>();
    EXPECT_FALSE(IsSameObject(spFirst->AsFrame(), spSecond->AsFrame()));
    EXPECT_FALSE(IsSameObject(spFirst->AsFrame(), nullptr));
    EXPECT_FALSE(IsSameObject(nullptr, spFirst->AsFrame()));
}

TEST(IsSameObject, HoldsForNoObjectTwice)
{
    EXPECT_TRUE(IsSameObject(nullptr, nullptr));
}

TEST(IsSameObject, FailsForObjectsThatTellNoIdentity)
{
    const auto spFirst = MakeFake<CFakeWebBrowser2>();
    const auto spSecond = MakeFake<CFakeWebBrowser2>();
    CFakeCalls::Get().FailAll("WebBrowser.QueryInterface", E_FAIL);
    EXPECT_FALSE(IsSameObject(spFirst->AsFrame(), spSecond->AsFrame()));
}
