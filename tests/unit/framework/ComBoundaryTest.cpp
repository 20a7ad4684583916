#include "framework/ComBoundary.h"

#include <windows.h>
#include <comdef.h>
#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

TEST(ComBoundary, PassesOnWhatTheOperationAnswers)
{
    EXPECT_EQ(S_OK, ComBoundary([] { return S_OK; }));
    EXPECT_EQ(S_FALSE, ComBoundary([] { return S_FALSE; }));
    EXPECT_EQ(E_NOTIMPL, ComBoundary([] { return E_NOTIMPL; }));
}

TEST(ComBoundary, AnswersOutOfMemoryForAFailedAllocation)
{
    EXPECT_EQ(E_OUTOFMEMORY, ComBoundary([]() -> HRESULT { throw std::bad_alloc(); }));
}

TEST(ComBoundary, AnswersTheResultThatAComErrorCarries)
{
    EXPECT_EQ(DISP_E_TYPEMISMATCH, ComBoundary([]() -> HRESULT { throw _com_error(DISP_E_TYPEMISMATCH); }));
}

TEST(ComBoundary, AnswersAFailureForAnythingElseThatIsThrown)
{
    EXPECT_EQ(E_FAIL, ComBoundary([]() -> HRESULT { throw std::runtime_error("anything"); }));
    EXPECT_EQ(E_FAIL, ComBoundary([]() -> HRESULT { throw 3; }));
}
