// The i-d chart construction: every line and curve is read back through the chart record and
// solved by the humid-air library, so a curve drawn in the wrong place shows up as the wrong
// state. Published readings of the standard-atmosphere chart are checked on the drawn lines.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>

#include "psychro/airstate/airstate.h"
#include "psychro/id_chart_build.h"
#include "psychro/id_chart_messages.h"

namespace {

using namespace vrn2;

// A drawing unit is far coarser than this; the curves' own vertices are exact to rounding.
constexpr double kDrawingPrecision = 1e-6;

// The state the solver finds for the point P. Dry air (d = 0) has no dew point, and the solver
// would alert about it; its relative humidity is 0 by definition.
AirState stateAt(const IdChart& chart, ChartPoint p) {
    AirState s;
    s.B = chart.B;
    chartStateAt(chart, p.x, p.y, s.i, s.d);
    if (std::fabs(s.d) < 1e-9) {
        s.t = (s.i - 2.5 * s.d) / 1.01;
        s.fy = 0.0;
        return s;
    }
    StateFromEnthalpyMoisture(s);
    return s;
}

std::vector<const ChartPolyline*> onLayer(const ChartDrawing& c, const wchar_t* layer) {
    std::vector<const ChartPolyline*> found;
    for (const auto& line : c.lines)
        if (std::wstring(line.layer) == layer) found.push_back(&line);
    return found;
}

bool onEdge(const ChartFrame& f, ChartPoint p) {
    const double e = 1e-7;
    return std::fabs(p.x - f.left) < e || std::fabs(p.x - f.right) < e || std::fabs(p.y - f.bottom) < e ||
           std::fabs(p.y - f.top) < e;
}

const ChartDrawing& standardChart() {
    static const ChartDrawing chart = buildIdChart(ChartRequest{});
    return chart;
}

TEST(IdChartBuild, HumidityCurvesReadBackToTheirHumidity) {
    const ChartDrawing& c = standardChart();
    std::set<int> found;
    for (const ChartPolyline* curve : onLayer(c, kLayerHumidity)) {
        const double fy = stateAt(c.chart, curve->points.front()).fy;
        const int percent = static_cast<int>(std::lround(fy));
        found.insert(percent);
        for (ChartPoint p : curve->points) {
            EXPECT_NEAR(stateAt(c.chart, p).fy, percent, kDrawingPrecision) << "curve " << percent;
            EXPECT_TRUE(c.frame.contains(p, 1e-9));
        }
        EXPECT_GE(curve->points.size(), 20u);
    }
    EXPECT_EQ(found, (std::set<int>{10, 20, 30, 40, 50, 60, 70, 80, 90}));
}

TEST(IdChartBuild, SaturationCurveReadsBackAsSaturated) {
    const ChartDrawing& c = standardChart();
    auto curves = onLayer(c, kLayerSaturation);
    ASSERT_EQ(curves.size(), 1u);
    for (ChartPoint p : curves[0]->points) EXPECT_NEAR(stateAt(c.chart, p).fy, 100.0, kDrawingPrecision);
    // On the default chart the curve enters at the bottom edge (below −10 °C) and leaves at the
    // right edge (d = 30 g/kg is saturated near 31.4 °C by the library's correlation).
    const ChartPoint first = curves[0]->points.front(), last = curves[0]->points.back();
    EXPECT_NEAR(first.y, c.frame.bottom, 1e-7);
    EXPECT_NEAR(last.x, c.frame.right, 1e-7);
    EXPECT_NEAR(stateAt(c.chart, last).t, 31.44, 0.05);
}

TEST(IdChartBuild, EnthalpyLinesKeepTheirEnthalpyAndStopAtSaturation) {
    const ChartDrawing& c = standardChart();
    auto lines = onLayer(c, kLayerEnthalpy);
    ASSERT_GE(lines.size(), 50u);
    for (const ChartPolyline* line : lines) {
        ASSERT_EQ(line->points.size(), 2u);
        const AirState a = stateAt(c.chart, line->points[0]), b = stateAt(c.chart, line->points[1]);
        EXPECT_NEAR(a.i, b.i, 1e-9);
        EXPECT_NEAR(a.i, std::round(a.i / 2.0) * 2.0, 1e-9) << "lines every 2 kJ/kg";
        EXPECT_LE(a.fy, 100.0 + kDrawingPrecision);
        // The lower end is on the saturation curve unless the frame cuts the line first.
        if (!onEdge(c.frame, line->points[1])) {
            EXPECT_NEAR(b.fy, 100.0, kDrawingPrecision);
        }
    }
}

TEST(IdChartBuild, IsothermsKeepTheirTemperatureAndMoistureLinesTheirMoisture) {
    const ChartDrawing& c = standardChart();
    auto isotherms = onLayer(c, kLayerIsotherm);
    EXPECT_EQ(isotherms.size(), 61u) << "one per kelvin from -10 to 50 °C";
    for (const ChartPolyline* line : isotherms) {
        const AirState a = stateAt(c.chart, line->points[0]), b = stateAt(c.chart, line->points[1]);
        EXPECT_NEAR(a.t, std::round(a.t), 1e-9);
        EXPECT_NEAR(b.t, std::round(a.t), 1e-9);
        if (!onEdge(c.frame, line->points[1])) {
            EXPECT_NEAR(b.fy, 100.0, kDrawingPrecision);
        }
    }
    auto moisture = onLayer(c, kLayerMoisture);
    EXPECT_EQ(moisture.size(), 31u);
    for (const ChartPolyline* line : moisture) {
        EXPECT_DOUBLE_EQ(line->points[0].x, line->points[1].x);
        const AirState low = stateAt(c.chart, line->points[0]);
        EXPECT_NEAR(low.d, std::round(low.d), 1e-9);
        // Below 2 g/kg the air is still unsaturated at the frame's bottom (about −10.7 °C).
        if (low.d < 2.0) {
            EXPECT_NEAR(line->points[0].y, c.frame.bottom, 1e-9);
        } else {
            EXPECT_NEAR(low.fy, 100.0, kDrawingPrecision);
        }
        EXPECT_NEAR(line->points[1].y, c.frame.top, 1e-9);
    }
}

// Where two drawn polylines cross, by segment intersection in the drawing.
std::optional<ChartPoint> crossingOf(const ChartPolyline& p, const ChartPolyline& q) {
    for (size_t a = 1; a < p.points.size(); ++a)
        for (size_t b = 1; b < q.points.size(); ++b) {
            const ChartPoint p0 = p.points[a - 1], p1 = p.points[a], q0 = q.points[b - 1], q1 = q.points[b];
            const double rx = p1.x - p0.x, ry = p1.y - p0.y, sx = q1.x - q0.x, sy = q1.y - q0.y;
            const double den = rx * sy - ry * sx;
            if (den == 0.0) continue;
            const double u = ((q0.x - p0.x) * sy - (q0.y - p0.y) * sx) / den;
            const double v = ((q0.x - p0.x) * ry - (q0.y - p0.y) * rx) / den;
            if (u >= 0 && u <= 1 && v >= 0 && v <= 1) return ChartPoint{p0.x + u * rx, p0.y + u * ry};
        }
    return std::nullopt;
}

TEST(IdChartBuild, StandardChartAgreesWithPublishedReadings) {
    const ChartDrawing& c = standardChart();
    const ChartPolyline *isotherm20 = nullptr, *curve50 = nullptr;
    for (const ChartPolyline* l : onLayer(c, kLayerIsotherm))
        if (std::fabs(stateAt(c.chart, l->points[0]).t - 20.0) < 1e-6) isotherm20 = l;
    for (const ChartPolyline* l : onLayer(c, kLayerHumidity))
        if (std::fabs(stateAt(c.chart, l->points[0]).fy - 50.0) < 1e-6) curve50 = l;
    ASSERT_TRUE(isotherm20 && curve50);
    auto cross = crossingOf(*isotherm20, *curve50);
    ASSERT_TRUE(cross);
    const AirState s = stateAt(c.chart, *cross);
    // Read as on a printed chart: to a tenth of a g/kg and half a kJ/kg. The library's
    // correlation puts the saturation pressure at 20 °C about 1 % above the tabulated 2339 Pa,
    // so its chart reads d = 7.34 and i = 38.83 here.
    EXPECT_NEAR(s.d, 7.3, 0.1);
    EXPECT_NEAR(s.i, 38.6, 0.5);
    EXPECT_NEAR(s.t, 20.0, 0.01);
}

TEST(IdChartBuild, ChartRecordMatchesTheRequest) {
    ChartRequest r;
    r.corner = {1000.0, 500.0};
    r.B = 84.0;
    const ChartDrawing c = buildIdChart(r);
    EXPECT_TRUE(c.chart.drawn);
    EXPECT_EQ(c.chart.B, 84.0);
    EXPECT_EQ(c.chart.enthalpySkew, 2.5);
    EXPECT_DOUBLE_EQ(c.chart.moistureScale, 10.0);
    EXPECT_GT(c.chart.markDiameter, 0.0);
    EXPECT_EQ(c.frame.left, 1000.0);
    EXPECT_EQ(c.frame.bottom, 500.0);
    EXPECT_EQ(c.frame.right, 1300.0);
    EXPECT_EQ(c.frame.top, 900.0);
    // The lowest isotherm touches the frame's bottom at its right end, the highest its top at
    // its right end (the isotherms fan out to the right).
    double i, d;
    chartStateAt(c.chart, c.frame.right, c.frame.bottom, i, d);
    EXPECT_NEAR(TempFromEnthalpyMoisture(i, d), -10.0, 1e-9);
    chartStateAt(c.chart, c.frame.right, c.frame.top, i, d);
    EXPECT_NEAR(TempFromEnthalpyMoisture(i, d), 50.0, 1e-9);
    // At a lower pressure the same temperature holds more moisture at saturation.
    for (const ChartPolyline* l : onLayer(c, kLayerSaturation))
        for (ChartPoint p : l->points) EXPECT_NEAR(stateAt(c.chart, p).fy, 100.0, kDrawingPrecision);
}

TEST(IdChartBuild, LabelsTitleAndLayers) {
    const ChartDrawing& c = standardChart();
    auto hasText = [&](const std::wstring& t) {
        return std::any_of(c.texts.begin(), c.texts.end(), [&](const ChartText& x) { return x.text == t; });
    };
    EXPECT_TRUE(hasText(L"焓湿图 (大气压力 B=101.325 kPa)"));
    EXPECT_TRUE(hasText(L"干球温度 t (℃)"));
    EXPECT_TRUE(hasText(L"含湿量 d (g/kg干空气)"));
    EXPECT_TRUE(hasText(L"焓 i (kJ/kg干空气)"));
    for (const wchar_t* t : {L"φ=10%", L"φ=60%", L"φ=90%", L"φ=100%", L"-10", L"20", L"50", L"30", L"40"})
        EXPECT_TRUE(hasText(t)) << std::wstring(t).size();
    for (const ChartText& t : c.texts) {
        EXPECT_GT(t.height, 0.0);
        EXPECT_EQ(std::wstring(t.layer), kLayerChartText);
    }
    ASSERT_FALSE(c.lines.empty());
    EXPECT_TRUE(c.lines.front().closed);
    EXPECT_EQ(c.lines.front().points.size(), 4u);
}

TEST(IdChartBuild, RequestLimits) {
    EXPECT_EQ(chartRequestFault(ChartRequest{}), nullptr);
    auto with = [](auto change) {
        ChartRequest r;
        change(r);
        return chartRequestFault(r);
    };
    EXPECT_EQ(with([](ChartRequest& r) { r.B = 50.0; }), nullptr);
    EXPECT_EQ(with([](ChartRequest& r) { r.B = 49.9; }), kMsgChartPressureRange);
    EXPECT_EQ(with([](ChartRequest& r) { r.B = 200.1; }), kMsgChartPressureRange);
    EXPECT_EQ(with([](ChartRequest& r) { r.tMin = 50.0; }), kMsgChartTempRange);
    EXPECT_EQ(with([](ChartRequest& r) { r.tMax = 80.5; }), kMsgChartTempRange);
    EXPECT_EQ(with([](ChartRequest& r) { r.tMin = std::nan(""); }), kMsgChartTempRange);
    EXPECT_EQ(with([](ChartRequest& r) { r.dMin = -1.0; }), kMsgChartMoistureRange);
    EXPECT_EQ(with([](ChartRequest& r) { r.dMax = 0.0; }), kMsgChartMoistureRange);
    EXPECT_EQ(with([](ChartRequest& r) { r.width = 49.0; }), kMsgChartSizeRange);
    EXPECT_EQ(with([](ChartRequest& r) { r.height = 5001.0; }), kMsgChartSizeRange);
}

TEST(IdChartBuild, ExtremeAcceptedChartsStayInsideTheFrame) {
    ChartRequest hot;
    hot.B = 50.0, hot.tMin = -40.0, hot.tMax = 80.0, hot.dMax = 100.0;
    ChartRequest narrow;
    narrow.B = 200.0, narrow.tMin = 15.0, narrow.tMax = 16.0, narrow.dMin = 5.0, narrow.dMax = 6.0;
    for (const ChartRequest& r : {hot, narrow}) {
        ASSERT_EQ(chartRequestFault(r), nullptr);
        const ChartDrawing c = buildIdChart(r);
        EXPECT_GT(c.lines.size(), 10u);
        for (const ChartPolyline& l : c.lines)
            for (ChartPoint p : l.points) EXPECT_TRUE(c.frame.contains(p, 1e-7));
        for (const ChartPolyline* l : onLayer(c, kLayerSaturation))
            for (ChartPoint p : l->points) EXPECT_NEAR(stateAt(c.chart, p).fy, 100.0, kDrawingPrecision);
    }
}

}  // namespace
