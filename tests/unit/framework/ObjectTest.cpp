#include "framework/Object.h"

#include <gtest/gtest.h>

#include <new>

namespace
{
class CAnimal : public CObject
{
    DECLARE_DYNAMIC(CAnimal)
};
IMPLEMENT_DYNAMIC(CAnimal, CObject)

class CCat : public CAnimal
{
    DECLARE_DYNCREATE(CCat)
};
IMPLEMENT_DYNCREATE(CCat, CAnimal)

class CHeavyCat : public CCat
{
    DECLARE_DYNCREATE(CHeavyCat)

public:
    static void* operator new(std::size_t) { throw std::bad_alloc(); }
};
IMPLEMENT_DYNCREATE(CHeavyCat, CCat)
} // namespace

TEST(RuntimeClass, CarriesTheNameOfTheClass)
{
    EXPECT_STREQ("CCat", CCat().GetRuntimeClass()->m_lpszClassName);
    EXPECT_STREQ("CAnimal", RUNTIME_CLASS(CAnimal)->m_lpszClassName);
}

TEST(RuntimeClass, CreatesAnObjectOfExactlyItsClass)
{
    const std::unique_ptr<CObject> pObject = RUNTIME_CLASS(CCat)->CreateObject();
    ASSERT_NE(nullptr, pObject);
    EXPECT_EQ(RUNTIME_CLASS(CCat), pObject->GetRuntimeClass());
    EXPECT_NE(nullptr, dynamic_cast<CCat*>(pObject.get()));
}

TEST(RuntimeClass, CreatesNothingOfAClassThatIsOnlyDynamic)
{
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CAnimal)->CreateObject());
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CObject)->CreateObject());
}

TEST(RuntimeClass, CreatesNothingWhenMemoryIsShort)
{
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CHeavyCat)->CreateObject());
}

TEST(RuntimeClass, KnowsItsBases)
{
    const CCat cat;
    EXPECT_TRUE(cat.IsKindOf(RUNTIME_CLASS(CCat)));
    EXPECT_TRUE(cat.IsKindOf(RUNTIME_CLASS(CAnimal)));
    EXPECT_TRUE(cat.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(cat.IsKindOf(RUNTIME_CLASS(CHeavyCat)));
    EXPECT_FALSE(CAnimal().IsKindOf(RUNTIME_CLASS(CCat)));
}
