#include "psychro/process_chart.h"

#include <array>
#include <cmath>

#include "acdbads.h"
#include "frame/host_commands.h"
#include "frame/system_variables.h"
#include "frame/list_builder.h"
#include "frame/rblist.h"
#include "psychro/chart_entities.h"
#include "psychro/chart_marks.h"
#include "psychro/chart_state.h"
#include "psychro/id_chart.h"

namespace vrn2 {
namespace {

constexpr wchar_t kLayerProcess[] = L"ID_PROCESS";
// The linetype of mixing lines: one dash and a gap, scaled per line by the mark size.
constexpr wchar_t kMixingLinetype[] = L"ID_DASHED";
constexpr int kProcessColour = 1;  // red, as the marks (kChartMarkColour)

// Makes the process layer current while the process is drawn and sets the designer's current
// layer back afterwards, on every way out.
class ProcessLayer {
public:
    explicit ProcessLayer(HostCommands& commands) : commands_(commands) {
        saved_ = textVariable(L"CLAYER");
        commands_.run(RTSTR, L"LAYER", RTSTR, L"M", RTSTR, kLayerProcess, RTSTR, L"C", RTSTR, kChartMarkColour,
                      RTSTR, kLayerProcess, RTSTR, L"");
    }
    ~ProcessLayer() {
        if (!saved_.empty()) commands_.run(RTSTR, L"LAYER", RTSTR, L"S", RTSTR, saved_.c_str(), RTSTR, L"");
    }
    ProcessLayer(const ProcessLayer&) = delete;
    ProcessLayer& operator=(const ProcessLayer&) = delete;

private:
    HostCommands& commands_;
    std::wstring saved_;
};

bool ensureMixingLinetype() {
    RbList existing(acdbTblSearch(L"LTYPE", kMixingLinetype, 0));
    if (existing) return true;
    ListBuilder record;
    bool ok = record.addString(0, L"LTYPE") && record.addString(2, kMixingLinetype) && record.addShort(70, 0) &&
              record.addString(3, L"__ __ __ __") && record.addShort(72, 65) && record.addShort(73, 2) &&
              record.addReal(40, 1.5) && record.addReal(49, 1.0) && record.addShort(74, 0) &&
              record.addReal(49, -0.5) && record.addShort(74, 0);
    return ok && acdbEntMake(record.get()) == RTNORM;
}

bool makeDashedLine(const ads_point a, const ads_point b, double dashLength) {
    if (!ensureMixingLinetype()) return false;
    ListBuilder line;
    bool ok = line.addString(0, L"LINE") && line.addString(8, kLayerProcess) &&
              line.addString(6, kMixingLinetype) && line.addShort(62, kProcessColour) &&
              line.addReal(48, dashLength) && line.addPoint(10, a) && line.addPoint(11, b);
    return ok && acdbEntMake(line.get()) == RTNORM;
}

// A filled triangle pointing from A to B with its tip on the edge of B's mark, so that the
// mark does not hide it; none when the marks of A and B overlap.
bool makeArrowhead(const ads_point a, const ads_point b, double markDiameter) {
    const double dx = b[X] - a[X], dy = b[Y] - a[Y];
    const double length = std::hypot(dx, dy);
    const double radius = markDiameter / 2;
    const double arrow = std::fmin(1.5 * markDiameter, length - markDiameter);
    if (arrow <= 0.0) return true;
    const double ux = dx / length, uy = dy / length;
    const double halfWidth = 0.3 * arrow;
    const ads_point tip = {b[X] - ux * radius, b[Y] - uy * radius, 0.0};
    const ads_point back = {tip[X] - ux * arrow, tip[Y] - uy * arrow, 0.0};
    const ads_point left = {back[X] - uy * halfWidth, back[Y] + ux * halfWidth, 0.0};
    const ads_point right = {back[X] + uy * halfWidth, back[Y] - ux * halfWidth, 0.0};
    ListBuilder solid;
    bool ok = solid.addString(0, L"SOLID") && solid.addString(8, kLayerProcess) &&
              solid.addShort(62, kProcessColour) && solid.addPoint(10, tip) && solid.addPoint(11, left) &&
              solid.addPoint(12, right) && solid.addPoint(13, right);
    return ok && acdbEntMake(solid.get()) == RTNORM;
}

// The label to the upper right of the mark, clear of it.
bool makeStateLabel(const ads_point at, const std::wstring& label, double markDiameter, double textHeight) {
    if (label.empty()) return true;
    ChartText text;
    text.layer = kLayerProcess;
    text.text = label;
    text.height = textHeight;
    text.at = {at[X] + 0.75 * markDiameter, at[Y] + 0.5 * markDiameter};
    return makeChartText(text);
}

// A host command failed (its status) or an entity was refused (RTERROR).
int firstFailure(int status, bool made) {
    if (status != RTNORM) return status;
    return made ? RTNORM : RTERROR;
}

}  // namespace

bool processChartAvailable() { return idChart().drawn; }

int drawProcessOnChart(const std::vector<ProcessChartState>& states, const std::vector<ProcessChartLeg>& legs) {
    if (!processChartAvailable()) return RTNORM;
    const IdChart& chart = idChart();
    const double textHeight = drawnChart().textHeight;
    std::vector<std::array<double, 3>> points;
    for (const ProcessChartState& s : states) {
        const ChartPoint p = chartPointOf(chart, s.i, s.d);
        points.push_back({p.x, p.y, 0.0});
    }
    HostCommands commands;
    ProcessLayer layer(commands);
    if (commands.failed()) return commands.status();
    bool made = true;
    int status = RTNORM;
    for (const ProcessChartLeg& leg : legs) {
        if (leg.from < 0 || leg.to < 0 || leg.from >= static_cast<int>(points.size()) ||
            leg.to >= static_cast<int>(points.size()))
            continue;
        const double* a = points[leg.from].data();
        const double* b = points[leg.to].data();
        if (leg.dashed) {
            made = made && makeDashedLine(a, b, chart.markDiameter);
        } else {
            const int drawn = drawChartLine(a, b);
            if (status == RTNORM) status = drawn;
            made = made && makeArrowhead(a, b, chart.markDiameter);
        }
    }
    for (std::size_t k = 0; k < states.size(); ++k) {
        const int marked = markChartPoint(points[k].data(), chart.markDiameter);
        if (status == RTNORM) status = marked;
        made = made && makeStateLabel(points[k].data(), states[k].label, chart.markDiameter, textHeight);
    }
    return firstFailure(status, made);
}

}  // namespace vrn2
