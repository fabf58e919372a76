// c:fzzbsc: draws the auxiliary grid from "datlib\t-fzzb.dat" on layer "T-FZZB": the two line
// families in colour 8, the centre lines in 9, the coordinate labels in 8, then zooms to it.
// Any command that fails ends the drawing there; the command environment (CMDECHO among it)
// is set back on every way out.
#include <string>
#include <vector>

#include "acedads.h"
#include "acutads.h"
#include "adscodes.h"
#include "drawing/drawing_handlers.h"
#include "drawing/grid_geometry.h"
#include "drawing/grid_file.h"
#include "drawing/grid_parameters.h"
#include "frame/host_commands.h"

namespace vrn2 {
namespace {

constexpr wchar_t kGridLayer[] = L"T-FZZB";
constexpr wchar_t kMsgGridTooLarge[] = L"\n辅助坐标网格的线太多, 请检查间距和起止坐标.";
// The grid leaves this share of the view around it.
constexpr wchar_t kZoomOut[] = L"0.9x";

bool setUp(HostCommands& commands) {
    return commands.run(RTSTR, L"LAYER", RTSTR, L"M", RTSTR, kGridLayer, RTSTR, L"") &&
           commands.run(RTSTR, L"STYLE", RTSTR, L"STANDARD", RTSTR, L"SIMPLEX", RTREAL, 0.0, RTREAL, 0.7, RTREAL,
                        0.0, RTSTR, L"N", RTSTR, L"N", RTSTR, L"N");
}

bool colour(HostCommands& commands, int number) { return commands.run(RTSTR, L"COLOR", RTSHORT, number); }

bool lines(HostCommands& commands, const std::vector<drawing::GridLine>& all) {
    for (const drawing::GridLine& line : all) {
        ads_point from = {line.from.x, line.from.y, 0.0}, to = {line.to.x, line.to.y, 0.0};
        if (!commands.run(RTSTR, L"LINE", RT3DPOINT, from, RT3DPOINT, to, RTSTR, L"")) return false;
    }
    return true;
}

bool labels(HostCommands& commands, const std::vector<drawing::GridLabel>& all) {
    for (const drawing::GridLabel& label : all) {
        ads_point at = {label.at.x, label.at.y, 0.0};
        const std::wstring text(label.text.begin(), label.text.end());
        if (!commands.run(RTSTR, L"TEXT", RT3DPOINT, at, RTREAL, label.height, RTREAL, 0.0, RTSTR, text.c_str()))
            return false;
    }
    return true;
}

// Zooms to the grid, then out a little when the drawing has extents to show.
bool zoomToGrid(HostCommands& commands) {
    if (!commands.run(RTSTR, L"ZOOM", RTSTR, L"e")) return false;
    resbuf size{}, extMax{}, extMin{};
    const bool read = acedGetVar(L"VIEWSIZE", &size) == RTNORM && acedGetVar(L"EXTMAX", &extMax) == RTNORM &&
                      acedGetVar(L"EXTMIN", &extMin) == RTNORM;
    const bool hasExtents = read && size.resval.rreal > 0.0 && extMax.resval.rpoint[0] >= extMin.resval.rpoint[0] &&
                            extMax.resval.rpoint[1] >= extMin.resval.rpoint[1];
    return !hasExtents || commands.run(RTSTR, L"ZOOM", RTSTR, kZoomOut);
}

bool draw(HostCommands& commands, const drawing::GridDrawing& grid) {
    if (!setUp(commands)) return false;
    if (!colour(commands, drawing::kGridLineColour) || !lines(commands, grid.lines)) return false;
    if (!grid.centreLines.empty() &&
        (!colour(commands, drawing::kGridCentreColour) || !lines(commands, grid.centreLines)))
        return false;
    if (!grid.labels.empty() && (!colour(commands, drawing::kGridLabelColour) || !labels(commands, grid.labels)))
        return false;
    return zoomToGrid(commands);
}

}  // namespace

int drawGrid() {
    drawing::GridParameters parameters;
    if (!drawing::readGridFile(parameters)) return RTNORM;
    if (!drawing::gridIsDrawable(parameters)) {
        acutPrintf(kMsgGridTooLarge);
        return RTNORM;
    }
    HostCommands commands;
    const bool drawn = draw(commands, drawing::gridDrawing(parameters));
    commands.run(RTSTR, L"COLOR", RTSTR, L"BYLAYER");
    return drawn ? RTNORM : RTERROR;
}

}  // namespace vrn2
