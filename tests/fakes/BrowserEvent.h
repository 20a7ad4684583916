#pragma once

#include <windows.h>
#include <comutil.h>
#include <exdispid.h>
#include <oaidl.h>

#include <deque>
#include <memory>
#include <string>
#include <vector>

/// An event of DWebBrowserEvents2 with its arguments in the browser's own shape: reversed, addresses as variants by
/// reference, flags by reference. A test can damage them before it sends the event.
class CBrowserEvent
{
public:
    static CBrowserEvent BeforeNavigate2(IDispatch* pFrame, const std::wstring& strUrl);
    static CBrowserEvent NavigateComplete2(IDispatch* pFrame, const std::wstring& strUrl);
    static CBrowserEvent DocumentComplete(IDispatch* pFrame, const std::wstring& strUrl);
    static CBrowserEvent DownloadBegin() { return CBrowserEvent(DISPID_DOWNLOADBEGIN); }
    static CBrowserEvent DownloadComplete() { return CBrowserEvent(DISPID_DOWNLOADCOMPLETE); }
    static CBrowserEvent FileDownload();
    static CBrowserEvent OnQuit() { return CBrowserEvent(DISPID_ONQUIT); }
    static CBrowserEvent PropertyChange(const std::wstring& strName);
    static CBrowserEvent StatusTextChange(const std::wstring& strText);

    /// An event without arguments.
    explicit CBrowserEvent(DISPID dispid) : m_dispid(dispid) {}
    CBrowserEvent(CBrowserEvent&&) = default;
    CBrowserEvent& operator=(CBrowserEvent&&) = default;

    /// Sends it to a sink, or to anything else that has the Invoke of one. Returns what that returned.
    template <class Sink>
    auto SendTo(Sink& sink)
    {
        DISPPARAMS params = GetParams();
        return sink.Invoke(m_dispid, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, nullptr, nullptr,
                           nullptr);
    }

    DISPID GetDispid() const { return m_dispid; }
    /// The arguments as they are sent; valid as long as the event stands unchanged.
    DISPPARAMS GetParams();
    /// The arguments, the last one first.
    std::vector<VARIANT>& GetArguments() { return m_arguments; }
    /// Whether a sink has set the Cancel flag.
    bool IsCancelled() const { return *m_pbCancel != VARIANT_FALSE; }

private:
    void AddReference(_variant_t vValue);
    void AddValue(_variant_t vValue);
    void AddCancel();

    DISPID m_dispid;
    std::vector<VARIANT> m_arguments; ///< they borrow from m_values
    std::deque<_variant_t> m_values;
    std::unique_ptr<VARIANT_BOOL> m_pbCancel = std::make_unique<VARIANT_BOOL>(VARIANT_FALSE);
};
