#include "tests/fakes/MockEvents.h"

using testing::StrEq;

void CMockEvents::ExpectPageLoadBegin(IDispatch* pFrame, const std::wstring& strUrl)
{
    EXPECT_CALL(*this, OnPageLoadBegin(pFrame, StrEq(strUrl))).InSequence(m_sequence);
}

void CMockEvents::ExpectPageLoadComplete(IDispatch* pFrame, const std::wstring& strUrl)
{
    EXPECT_CALL(*this, OnPageLoadComplete(pFrame, StrEq(strUrl))).InSequence(m_sequence);
}

void CMockEvents::ExpectPageLoad(IDispatch* pFrame, const std::wstring& strUrl)
{
    ExpectPageLoadBegin(pFrame, strUrl);
    ExpectPageLoadComplete(pFrame, strUrl);
}

void CMockEvents::ExpectFrameLoadBegin(IDispatch* pFrame, const std::wstring& strUrl, const std::wstring& strPath)
{
    EXPECT_CALL(*this, OnFrameLoadBegin(pFrame, StrEq(strUrl), StrEq(strPath))).InSequence(m_sequence);
}

void CMockEvents::ExpectFrameLoadComplete(IDispatch* pFrame, const std::wstring& strUrl)
{
    EXPECT_CALL(*this, OnFrameLoadComplete(pFrame, StrEq(strUrl))).InSequence(m_sequence);
}

void CMockEvents::ExpectFrameLoad(IDispatch* pFrame, const std::wstring& strUrl, const std::wstring& strPath)
{
    ExpectFrameLoadBegin(pFrame, strUrl, strPath);
    ExpectFrameLoadComplete(pFrame, strUrl);
}

void CMockEvents::ExpectPageRefreshBegin(IDispatch* pFrame, const std::wstring& strUrl)
{
    EXPECT_CALL(*this, OnPageRefreshBegin(pFrame, StrEq(strUrl))).InSequence(m_sequence);
}

void CMockEvents::ExpectPageRefreshComplete()
{
    EXPECT_CALL(*this, OnPageRefreshComplete()).InSequence(m_sequence);
}

void CMockEvents::ExpectPageRefresh(IDispatch* pFrame, const std::wstring& strUrl)
{
    ExpectPageRefreshBegin(pFrame, strUrl);
    ExpectPageRefreshComplete();
}

void CMockEvents::ExpectFrameRefreshBegin(IDispatch* pFrame, const std::wstring& strUrl, const std::wstring& strPath)
{
    EXPECT_CALL(*this, OnFrameRefreshBegin(pFrame, StrEq(strUrl), StrEq(strPath))).InSequence(m_sequence);
}

void CMockEvents::ExpectFrameRefreshComplete()
{
    EXPECT_CALL(*this, OnFrameRefreshComplete()).InSequence(m_sequence);
}

void CMockEvents::ExpectFrameRefresh(IDispatch* pFrame, const std::wstring& strUrl, const std::wstring& strPath)
{
    ExpectFrameRefreshBegin(pFrame, strUrl, strPath);
    ExpectFrameRefreshComplete();
}

void CMockEvents::Verify()
{
    testing::Mock::VerifyAndClearExpectations(this);
}
