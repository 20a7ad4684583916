#pragma once

#include "band/TVXEvents.h"

#include <windows.h>
#include <gmock/gmock.h>

#include <string>

/// A sink of the event manager with named expectations, which hold in the order in which they are told. Anything else
/// that the manager tells fails the test.
class CMockEvents : public ITVXEvents
{
public:
    MOCK_METHOD(void, OnPageLoadBegin, (IDispatch * frame, LPCWSTR url), (override));
    MOCK_METHOD(void, OnPageLoadComplete, (IDispatch * frame, LPCWSTR url), (override));
    MOCK_METHOD(void, OnFrameLoadBegin, (IDispatch * frame, LPCWSTR url, LPCWSTR framePath), (override));
    MOCK_METHOD(void, OnFrameLoadComplete, (IDispatch * frame, LPCWSTR url), (override));
    MOCK_METHOD(void, OnPageRefreshBegin, (IDispatch * frame, LPCWSTR url), (override));
    MOCK_METHOD(void, OnPageRefreshComplete, (), (override));
    MOCK_METHOD(void, OnFrameRefreshBegin, (IDispatch * frame, LPCWSTR url, LPCWSTR framePath), (override));
    MOCK_METHOD(void, OnFrameRefreshComplete, (), (override));
    MOCK_METHOD(void, OnSpareEvent, (), (override));

    void ExpectPageLoadBegin(IDispatch* pFrame, const std::wstring& strUrl);
    void ExpectPageLoadComplete(IDispatch* pFrame, const std::wstring& strUrl);
    void ExpectPageLoad(IDispatch* pFrame, const std::wstring& strUrl);

    void ExpectFrameLoadBegin(IDispatch* pFrame, const std::wstring& strUrl, const std::wstring& strPath);
    void ExpectFrameLoadComplete(IDispatch* pFrame, const std::wstring& strUrl);
    void ExpectFrameLoad(IDispatch* pFrame, const std::wstring& strUrl, const std::wstring& strPath);

    void ExpectPageRefreshBegin(IDispatch* pFrame, const std::wstring& strUrl);
    void ExpectPageRefreshComplete();
    void ExpectPageRefresh(IDispatch* pFrame, const std::wstring& strUrl);

    void ExpectFrameRefreshBegin(IDispatch* pFrame, const std::wstring& strUrl, const std::wstring& strPath);
    void ExpectFrameRefreshComplete();
    void ExpectFrameRefresh(IDispatch* pFrame, const std::wstring& strUrl, const std::wstring& strPath);

    /// Fails the test unless all that was expected so far has been told.
    void Verify();

private:
    testing::Sequence m_sequence;
};
