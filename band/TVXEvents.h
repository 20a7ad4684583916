#pragma once

#include <windows.h>
#include <oaidl.h>

/// The clean notifications that the browser's event stream comes down to: what began or ended, the top-level page or
/// a frame, a load or a refresh. Every load that began ends before anything else begins; a refresh alone can lack its
/// end, when a document completes before the last of its downloads.
///
/// `frame` is the browser object of the page or frame, `url` its address, `framePath` the dotted path of a frame
/// ("1.2." is the second frame of the page). All are borrowed for the call; `frame` may be null.
class ITVXEvents
{
public:
    virtual ~ITVXEvents() = default;

    virtual void OnPageLoadBegin(IDispatch* /*frame*/, LPCWSTR /*url*/) {}
    virtual void OnPageLoadComplete(IDispatch* /*frame*/, LPCWSTR /*url*/) {}
    virtual void OnFrameLoadBegin(IDispatch* /*frame*/, LPCWSTR /*url*/, LPCWSTR /*framePath*/) {}
    virtual void OnFrameLoadComplete(IDispatch* /*frame*/, LPCWSTR /*url*/) {}
    virtual void OnPageRefreshBegin(IDispatch* /*frame*/, LPCWSTR /*url*/) {}
    virtual void OnPageRefreshComplete() {}
    virtual void OnFrameRefreshBegin(IDispatch* /*frame*/, LPCWSTR /*url*/, LPCWSTR /*framePath*/) {}
    virtual void OnFrameRefreshComplete() {}
    /// Never called; it keeps the last slot of the table.
    virtual void OnSpareEvent() {}
};
