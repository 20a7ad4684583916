#include "tests/unit/events/ToolbarOnPageFixture.h"

#include "settings/SettingKey.h"

namespace
{
constexpr DWORD ToolbarStyle = WS_CHILD | WS_VISIBLE | TBSTYLE_LIST | TBSTYLE_FLAT | CCS_NODIVIDER | CCS_NOPARENTALIGN |
                               CCS_NORESIZE | CCS_NOMOVEY | CCS_TOP;
constexpr RECT ToolbarRect = {0, 0, 1200, 30};
} // namespace

CToolbarOnPageTest::CToolbarOnPageTest()
{
    CFakeButtons::Get().Reset();
    m_pWindow->SetWebBrowser(&GetTop());
    EXPECT_TRUE(m_pWindow->Create(ToolbarStyle, ToolbarRect, m_parent, ToolbarControlId));
    CFakeButtons::Get().TakeCalls();
}

CToolbarOnPageTest::~CToolbarOnPageTest()
{
    m_pWindow.reset();
    EXPECT_EQ(0, CFakeButtons::Get().m_nLiving);
    EXPECT_EQ(0, m_module.GetObjectCount()) << "objects of the module that are left";
    CFakeButtons::Get().Reset();
}

bool CToolbarOnPageTest::Navigate(const std::wstring& strUrl)
{
    CBrowserEvent event = CBrowserEvent::BeforeNavigate2(GetTop().AsFrame(), strUrl);
    Send(event);
    return event.IsCancelled();
}

std::wstring CToolbarOnPageTest::GetKey(const std::wstring& strSection, const std::wstring& strName)
{
    return BuildSettingKey(SettingsRoot, strSection, strName);
}
