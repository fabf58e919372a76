#include "duct/main_path_display.h"

#include <cwchar>

#include "acdbads.h"
#include "acutads.h"
#include "adscodes.h"
#include "frame/dialog_session.h"

namespace vrn2::duct {

void showMainDuctLength(double length) {
    DialogSession dialogs(L"dwglib\\k-sljs.dcl", {Channel::Alert, L"\n不能装载对话框文件K-SLJS.DCL.."});
    if (!dialogs.create(L"mainduct_l", {Channel::Alert, L"不能显示MAINDUCT_L对话框."})) return;
    wchar_t text[64];
    std::swprintf(text, 64, L"%.3lf", length);
    ads_set_tile(dialogs.dialog(), L"mduct_l", text);
    dialogs.run();
}

void recolourMainPath(HostCommands& commands, const DuctNetwork& network) {
    int colour = network.layerColour == 7 ? 3 : 7;
    bool ok = true;
    for (int s : mainPathUpwards(network)) {
        ads_name line;
        ok = ok && acdbHandEnt(network.segments[s].handle.c_str(), line) == RTNORM &&
             commands.run(RTSTR, L"change", RTENAME, line, RTSTR, L"", RTSTR, L"p", RTSTR, L"c", RTSHORT, colour,
                          RTSTR, L"");
    }
    if (!ok) acutPrintf(L"\n无法改变主风道颜色.");
    else acutPrintf(colour == 3 ? L"\n绿色管段为主风道." : L"\n白色管段为主风道.");
}

}  // namespace vrn2::duct
