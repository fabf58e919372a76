#include "drawing/grid_geometry.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace vrn2::drawing {
namespace {

PlanPoint operator+(PlanPoint a, PlanPoint b) { return {a.x + b.x, a.y + b.y}; }
PlanPoint operator-(PlanPoint a, PlanPoint b) { return {a.x - b.x, a.y - b.y}; }
PlanPoint operator*(PlanPoint a, double k) { return {a.x * k, a.y * k}; }
PlanPoint midpoint(PlanPoint a, PlanPoint b) { return {(a.x + b.x) / 2.0, (a.y + b.y) / 2.0}; }

std::string oneDecimal(double value) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.1f", value);
    return buffer;
}

double lineCount(double start, double end, double spacing) { return std::fabs(end - start) / spacing + 0.5; }

struct Family {
    int count;       // k: lines 0..k
    double extent;   // rounded to whole spacings
    PlanPoint unit;  // direction of the family's extent
};

Family family(double start, double end, double spacing, double degrees) {
    const int count = static_cast<int>(lineCount(start, end, spacing));
    const double radians = degrees * kGridPi / 180.0;
    return {count, count * spacing, {std::cos(radians), std::sin(radians)}};
}

}  // namespace

bool gridIsDrawable(const GridParameters& g) {
    // Written so that a NaN fails too.
    return lineCount(g.p1(), g.p2(), g.spacing1()) < kMaxGridLinesPerFamily &&
           lineCount(g.q1(), g.q2(), g.spacing2()) < kMaxGridLinesPerFamily;
}

GridDrawing gridDrawing(const GridParameters& g) {
    const Family first = family(g.p1(), g.p2(), g.spacing1(), g.angle1());
    const Family second = family(g.q1(), g.q2(), g.spacing2(), g.angle2());
    const PlanPoint u = first.unit, v = second.unit;
    const double s = g.spacing1(), t = g.spacing2();

    GridDrawing drawing;
    PlanPoint& o = drawing.origin;
    o = {g.p1(), g.q1()};
    if (g.angle1() < 0.0) o.y = std::fabs(u.y * first.extent) + g.p1();
    if (g.angle2() > 90.0) o.x = std::fabs(v.x * second.extent) + g.q1();
    drawing.cornerB = o + u * first.extent;
    drawing.cornerC = o + v * second.extent;
    drawing.cornerD = drawing.cornerB + v * second.extent;
    const PlanPoint b = drawing.cornerB, c = drawing.cornerC, d = drawing.cornerD;

    for (int i = 0; i <= first.count; ++i) drawing.lines.push_back({o + u * (i * s), c + u * (i * s)});
    for (int i = 0; i <= second.count; ++i) drawing.lines.push_back({o + v * (i * t), b + v * (i * t)});

    if (g.centreLines == 0) {
        drawing.centreLines.push_back({midpoint(o, b), midpoint(d, c)});
        drawing.centreLines.push_back({midpoint(d, b), midpoint(o, c)});
    }
    if (g.labels == 0) {
        const double offset = std::max(2.0 * t / 3.0, 2.0 * s / 3.0);
        for (int i = 0; i <= first.count; ++i)
            drawing.labels.push_back({o - v * offset + u * (i * s), s / 4.0, oneDecimal(g.p1() + i * s)});
        for (int i = 0; i <= second.count; ++i)
            drawing.labels.push_back({o - u * offset + v * (i * t), t / 4.0, oneDecimal(g.q1() + i * t)});
    }
    return drawing;
}

std::vector<PreviewVector> gridPreview(const GridDrawing& drawing, int width, int height) {
    constexpr int kMargin = 8;
    std::vector<std::pair<const GridLine*, int>> all;
    for (const GridLine& line : drawing.lines) all.emplace_back(&line, kGridLineColour);
    for (const GridLine& line : drawing.centreLines) all.emplace_back(&line, kGridCentreColour);
    if (all.empty()) return {};
    double minX = all[0].first->from.x, maxX = minX, minY = all[0].first->from.y, maxY = minY;
    for (const auto& [line, colour] : all) {
        for (const PlanPoint& p : {line->from, line->to}) {
            minX = std::min(minX, p.x), maxX = std::max(maxX, p.x);
            minY = std::min(minY, p.y), maxY = std::max(maxY, p.y);
        }
    }
    const double spanX = std::max(maxX - minX, 1e-9), spanY = std::max(maxY - minY, 1e-9);
    const double scale = std::min((width - 2 * kMargin) / spanX, (height - 2 * kMargin) / spanY);
    // Centre the picture in the tile.
    const double left = (width - spanX * scale) / 2.0, top = (height - spanY * scale) / 2.0;
    const auto px = [&](double x) { return static_cast<int>(std::lround(left + (x - minX) * scale)); };
    const auto py = [&](double y) { return static_cast<int>(std::lround(top + (maxY - y) * scale)); };
    std::vector<PreviewVector> vectors;
    for (const auto& [line, colour] : all)
        vectors.push_back({px(line->from.x), py(line->from.y), px(line->to.x), py(line->to.y), colour});
    return vectors;
}

}  // namespace vrn2::drawing
