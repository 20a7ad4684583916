#include "band/ClassTable.h"

#include "resources/Trelvix.h"

#include <gtest/gtest.h>

TEST(ClassTable, HasTheBandWithItsCategoryAndThenTheHandler)
{
    const auto classes = GetClassTable();
    constexpr CATID category = {0x59fb2056, 0xd625, 0x48d0, {0xa9, 0x44, 0x1a, 0x85, 0xb5, 0xab, 0x26, 0x40}};
    ASSERT_EQ(2u, classes.size());
    EXPECT_EQ(CLSID_ATLTrelvix, *classes[0].pclsid);
    EXPECT_EQ(102u, classes[0].nRegistryResource);
    ASSERT_NE(nullptr, classes[0].pImplementedCategory);
    EXPECT_EQ(category, *classes[0].pImplementedCategory);
    EXPECT_EQ(CLSID_TrelvixMSHTMLUIHandler, *classes[1].pclsid);
    EXPECT_EQ(149u, classes[1].nRegistryResource);
    EXPECT_EQ(nullptr, classes[1].pImplementedCategory);
}

TEST(ClassTable, NamesTheClassesAsTheyAreRegistered)
{
    constexpr CLSID band = {0x3e1201f4, 0x1707, 0x409f, {0xbb, 0x45, 0xa5, 0xf1, 0x92, 0x38, 0x1d, 0xa0}};
    constexpr CLSID handler = {0xab9de66b, 0xfef9, 0x421e, {0xad, 0xb9, 0xfb, 0x69, 0x46, 0xe3, 0xeb, 0xdc}};
    EXPECT_EQ(band, CLSID_ATLTrelvix);
    EXPECT_EQ(handler, CLSID_TrelvixMSHTMLUIHandler);
}
