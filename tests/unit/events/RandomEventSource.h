#pragma once

#include "tests/fakes/BrowserEvent.h"
#include "tests/fakes/FakePage.h"

#include <random>
#include <string>
#include <vector>

/// Events of a page with frames in no order at all, as its seed has it: of the page, of its frames, of strangers, with
/// missing and wrong arguments, while the frames load and complete at random.
class CRandomEventSource
{
public:
    explicit CRandomEventSource(unsigned nSeed);

    CFakePage& GetPage() { return m_page; }
    CBrowserEvent MakeEvent();
    /// True once in n times.
    bool OneIn(unsigned n) { return Below(n) == 0; }
    /// A number below n.
    unsigned Below(unsigned n) { return static_cast<unsigned>(m_random() % n); }

private:
    CBrowserEvent MakeKnownEvent();
    IDispatch* ChooseFrame();
    std::wstring ChooseUrl();
    void ChangeReadyState();
    void Damage(CBrowserEvent& event);

    std::mt19937 m_random;
    CFakePage m_page;
    Microsoft::WRL::ComPtr<CFakeWebBrowser2> m_spStranger;
    std::vector<CFakeWebBrowser2*> m_frames; ///< owned by the page
};
