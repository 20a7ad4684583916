#include "tests/unit/events/RandomEventSource.h"

CRandomEventSource::CRandomEventSource(unsigned nSeed) : m_random(nSeed), m_spStranger(MakeFake<CFakeWebBrowser2>())
{
    m_frames.push_back(&m_page.GetTop());
    for (int n = 0; n < 3; ++n)
        m_frames.push_back(&m_page.AddFrame(m_page.GetTop(), L"http://page.test/frame"));
    CFakePage::AddObject(*m_frames[1]);
    m_frames.push_back(&m_page.AddFrame(*m_frames[1], L"http://page.test/inner"));
    m_frames.push_back(&m_page.AddFrame(*m_frames[4], L"http://page.test/innermost"));
}

CBrowserEvent CRandomEventSource::MakeEvent()
{
    ChangeReadyState();
    CBrowserEvent event = OneIn(20) ? CBrowserEvent(static_cast<DISPID>(m_random())) : MakeKnownEvent();
    if (OneIn(8))
        Damage(event);
    return event;
}

CBrowserEvent CRandomEventSource::MakeKnownEvent()
{
    switch (Below(9))
    {
    case 0:
    case 1:
        return CBrowserEvent::BeforeNavigate2(ChooseFrame(), ChooseUrl());
    case 2:
        return CBrowserEvent::NavigateComplete2(ChooseFrame(), ChooseUrl());
    case 3:
        return CBrowserEvent::FileDownload();
    case 4:
        return CBrowserEvent::DownloadBegin();
    case 5:
        return CBrowserEvent::DownloadComplete();
    case 6:
        return CBrowserEvent::StatusTextChange(L"Done");
    default:
        return CBrowserEvent::DocumentComplete(ChooseFrame(), ChooseUrl());
    }
}

IDispatch* CRandomEventSource::ChooseFrame()
{
    if (OneIn(10))
        return OneIn(2) ? nullptr : m_spStranger->AsFrame();
    return m_frames[Below(static_cast<unsigned>(m_frames.size()))]->AsFrame();
}

std::wstring CRandomEventSource::ChooseUrl()
{
    static constexpr const wchar_t* urls[] = {L"",
                                              L"http://page.test/",
                                              L"http://page.test/frame",
                                              L"about:blank",
                                              L"JavaScript:",
                                              L"vbscript:f()",
                                              L"view-sourly",
                                              L"trelvix:"};
    return urls[Below(static_cast<unsigned>(std::size(urls)))];
}

void CRandomEventSource::ChangeReadyState()
{
    // Complete most of the time, or every search ends at the page itself.
    CFakeWebBrowser2& frame = *m_frames[Below(static_cast<unsigned>(m_frames.size()))];
    frame.m_eReadyState = OneIn(6) ? static_cast<READYSTATE>(Below(READYSTATE_COMPLETE)) : READYSTATE_COMPLETE;
}

void CRandomEventSource::Damage(CBrowserEvent& event)
{
    static constexpr VARTYPE types[] = {VT_EMPTY,
                                        VT_NULL,
                                        VT_I4,
                                        VT_BSTR,
                                        VT_BOOL,
                                        VT_UNKNOWN,
                                        VT_DISPATCH,
                                        VT_BYREF | VT_VARIANT,
                                        VT_BYREF | VT_BOOL,
                                        VT_BYREF | VT_BSTR,
                                        VT_ARRAY | VT_UI1};
    std::vector<VARIANT>& arguments = event.GetArguments();
    if (OneIn(3) || arguments.empty())
        return arguments.resize(Below(12), VARIANT {});
    VARIANT& argument = arguments[Below(static_cast<unsigned>(arguments.size()))];
    argument = {};
    V_VT(&argument) = types[Below(static_cast<unsigned>(std::size(types)))];
}
