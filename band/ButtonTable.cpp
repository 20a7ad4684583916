#include "band/ButtonTable.h"

#include "capture/ButtonEmailScreenShotPage.h"
#include "capture/ButtonScriptErrorAlert.h"
#include "framework/Object.h"
#include "tools/ButtonColorPicker.h"
#include "tools/ButtonConnectToIEInstance.h"
#include "tools/ButtonOpenPellatron.h"
#include "tools/ButtonRenderingMode.h"
#include "tools/ButtonResizeIEWindow.h"
#include "tools/ButtonRootMenu.h"
#include "tools/ButtonSearchGoogle.h"
#include "tools/ButtonSearchInPage.h"
#include "tools/ButtonSeparator.h"
#include "tools/ButtonShowInfoBar.h"
#include "tools/ButtonViewSource.h"
#include "tools/ButtonZoom.h"

const std::array<const CRuntimeClass*, ButtonCount>& GetButtonTable()
{
    static const std::array<const CRuntimeClass*, ButtonCount> table = {
        RUNTIME_CLASS(CButtonRootMenu),
        RUNTIME_CLASS(CButtonSeparator),
        RUNTIME_CLASS(CButtonShowInfoBar),
        RUNTIME_CLASS(CButtonSearchGoogle),
        RUNTIME_CLASS(CButtonEmailScreenShotPage),
        RUNTIME_CLASS(CButtonColorPicker),
        RUNTIME_CLASS(CButtonConnectToIEInstance),
        RUNTIME_CLASS(CButtonSearchInPage),
        RUNTIME_CLASS(CButtonZoom),
        RUNTIME_CLASS(CButtonScriptErrorAlert),
        RUNTIME_CLASS(CButtonResizeIEWindow),
        RUNTIME_CLASS(CButtonViewSource),
        RUNTIME_CLASS(CButtonRenderingMode),
        RUNTIME_CLASS(CButtonOpenPellatron),
    };
    return table;
}

const CRuntimeClass* GetSearchBoxClass()
{
    return RUNTIME_CLASS(CButtonSearchGoogle);
}
