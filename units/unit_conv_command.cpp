// "c:UnitConv": opens the unit conversion window, or brings the open one to the front.
#include "acedads.h"
#include "frame/module_state.h"
#include "units/unit_conv_dlg.h"
#include "units/units_handlers.h"

namespace vrn2 {

int unitConversion() {
    // The user may have closed the window since: then its handle is stale.
    if (g_unitConversionWindow && IsWindow(g_unitConversionWindow)) {
        SetActiveWindow(g_unitConversionWindow);
        ShowWindow(g_unitConversionWindow, SW_SHOW);
        return 1;
    }
    auto* dialog = new units::CUnitConvDlg;
    if (!dialog->Create(units::CUnitConvDlg::IDD, CWnd::GetDesktopWindow())) {
        delete dialog;
        g_unitConversionWindow = nullptr;
        return 1;
    }
    dialog->ShowWindow(SW_SHOW);
    dialog->SetActiveWindow();
    g_unitConversionWindow = dialog->GetSafeHwnd();
    return 1;
}

}  // namespace vrn2
