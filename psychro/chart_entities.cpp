#include "psychro/chart_entities.h"

#include "acdbads.h"
#include "frame/host_commands.h"
#include "frame/list_builder.h"

namespace vrn2 {
namespace {

// TEXT's horizontal justification (group 72) for each alignment; vertically middle (73 = 2).
int horizontalJustification(TextAlign align) {
    switch (align) {
        case TextAlign::centre: return 1;
        case TextAlign::right: return 2;
        default: return 0;
    }
}

struct LayerColour {
    const wchar_t* layer;
    const wchar_t* colour;
};
// Grid lines grey, enthalpy lines cyan, humidity curves green, saturation red, texts white.
constexpr LayerColour kLayerColours[] = {
    {kLayerChartFrame, L"7"}, {kLayerMoisture, L"8"},  {kLayerEnthalpy, L"4"},   {kLayerIsotherm, L"8"},
    {kLayerHumidity, L"3"},   {kLayerSaturation, L"1"}, {kLayerChartText, L"7"}, {kLayerStatePoints, L"6"},
};

}  // namespace

bool makeChartPolyline(const ChartPolyline& line) {
    ListBuilder entity;
    bool ok = entity.addString(0, L"LWPOLYLINE") && entity.addString(8, line.layer) &&
              entity.addLong(90, static_cast<long>(line.points.size())) && entity.addShort(70, line.closed ? 1 : 0);
    for (const ChartPoint& p : line.points) {
        const ads_point vertex = {p.x, p.y, 0.0};
        ok = ok && entity.addPoint(10, vertex);
    }
    return ok && acdbEntMake(entity.get()) == RTNORM;
}

bool makeChartText(const ChartText& text) {
    const ads_point at = {text.at.x, text.at.y, 0.0};
    ListBuilder entity;
    const bool ok = entity.addString(0, L"TEXT") && entity.addString(8, text.layer) && entity.addPoint(10, at) &&
                    entity.addReal(40, text.height) && entity.addString(1, text.text.c_str()) &&
                    entity.addReal(50, text.angle) && entity.addShort(72, horizontalJustification(text.align)) &&
                    entity.addPoint(11, at) && entity.addShort(73, 2);
    return ok && acdbEntMake(entity.get()) == RTNORM;
}

bool makeChartEntities(const std::vector<ChartPolyline>& lines, const std::vector<ChartText>& texts) {
    for (const ChartPolyline& line : lines)
        if (!makeChartPolyline(line)) return false;
    for (const ChartText& text : texts)
        if (!makeChartText(text)) return false;
    return true;
}

bool makeChartLayers() {
    HostCommands commands;
    for (const LayerColour& lc : kLayerColours)
        commands.run(RTSTR, L"LAYER", RTSTR, L"N", RTSTR, lc.layer, RTSTR, L"C", RTSTR, lc.colour, RTSTR, lc.layer,
                     RTSTR, L"");
    return !commands.failed();
}

}  // namespace vrn2
