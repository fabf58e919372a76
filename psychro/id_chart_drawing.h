// The i-d chart as plain drawing records: polylines and texts with their layers, produced by
// the chart construction and turned into entities by the chart command.
#pragma once

#include <string>
#include <vector>

#include "psychro/id_chart.h"

namespace vrn2 {

// Layers of the chart, one per family of lines, so that a designer can switch families off.
inline constexpr wchar_t kLayerChartFrame[] = L"ID_FRAME";
inline constexpr wchar_t kLayerMoisture[] = L"ID_D";
inline constexpr wchar_t kLayerEnthalpy[] = L"ID_I";
inline constexpr wchar_t kLayerIsotherm[] = L"ID_T";
inline constexpr wchar_t kLayerHumidity[] = L"ID_FY";
inline constexpr wchar_t kLayerSaturation[] = L"ID_SAT";
inline constexpr wchar_t kLayerChartText[] = L"ID_TEXT";
inline constexpr wchar_t kLayerStatePoints[] = L"ID_POINT";

struct ChartPolyline {
    const wchar_t* layer = kLayerChartFrame;
    std::vector<ChartPoint> points;
    bool closed = false;
};

// Horizontal placement of a text relative to its point; vertically texts are centred on it.
enum class TextAlign { left, centre, right };

struct ChartText {
    const wchar_t* layer = kLayerChartText;
    std::wstring text;
    ChartPoint at;
    double height = 1.0;
    double angle = 0.0;  // radians, counter-clockwise from the x axis
    TextAlign align = TextAlign::left;
};

// The plotting area: every curve of the chart lies inside it.
struct ChartFrame {
    double left = 0.0, bottom = 0.0, right = 0.0, top = 0.0;
    bool contains(ChartPoint p, double tolerance = 0.0) const {
        return p.x >= left - tolerance && p.x <= right + tolerance && p.y >= bottom - tolerance &&
               p.y <= top + tolerance;
    }
};

struct ChartDrawing {
    IdChart chart;  // filled and marked drawn: what a picked point is read back with
    ChartFrame frame;
    double textHeight = 1.0;  // the height of the value labels; titles are larger
    std::vector<ChartPolyline> lines;
    std::vector<ChartText> texts;
};

}  // namespace vrn2
