#include "psychro/chart_clip.h"

#include <cmath>

namespace vrn2 {

std::optional<ChartSegment> clipSegment(const ChartFrame& frame, ChartPoint a, ChartPoint b) {
    // Liang–Barsky: narrow the parameter interval [enter, leave] edge by edge.
    const double dx = b.x - a.x, dy = b.y - a.y;
    double enter = 0.0, leave = 1.0;
    const double p[4] = {-dx, dx, -dy, dy};
    const double q[4] = {a.x - frame.left, frame.right - a.x, a.y - frame.bottom, frame.top - a.y};
    for (int k = 0; k < 4; ++k) {
        if (p[k] == 0.0) {
            if (q[k] < 0.0) return std::nullopt;
            continue;
        }
        const double r = q[k] / p[k];
        if (p[k] < 0.0) {
            if (r > enter) enter = r;
        } else if (r < leave) {
            leave = r;
        }
    }
    if (enter >= leave) return std::nullopt;
    return ChartSegment{{a.x + enter * dx, a.y + enter * dy}, {a.x + leave * dx, a.y + leave * dy}};
}

namespace {

// The parameter between INSIDE (whose point lies in the frame) and OUTSIDE where the curve
// crosses the frame's edge, to far below drawing precision.
double crossing(const ChartFrame& frame, const ChartCurve& curve, double inside, double outside) {
    for (int k = 0; k < 60 && inside != outside; ++k) {
        const double mid = 0.5 * (inside + outside);
        (frame.contains(curve(mid)) ? inside : outside) = mid;
    }
    return inside;
}

}  // namespace

std::vector<std::vector<ChartPoint>> clipCurve(const ChartFrame& frame, const ChartCurve& curve,
                                               double from, double to, int steps) {
    std::vector<std::vector<ChartPoint>> pieces;
    std::vector<ChartPoint> piece;
    auto finish = [&] {
        if (piece.size() >= 2) pieces.push_back(std::move(piece));
        piece.clear();
    };
    double previous = from;
    bool previousInside = false;
    for (int k = 0; k <= steps; ++k) {
        const double s = from + (to - from) * k / steps;
        const ChartPoint p = curve(s);
        const bool inside = std::isfinite(p.x) && std::isfinite(p.y) && frame.contains(p);
        if (k > 0 && inside != previousInside) {
            const double edge = inside ? crossing(frame, curve, s, previous) : crossing(frame, curve, previous, s);
            piece.push_back(curve(edge));
            if (!inside) finish();
        }
        if (inside) piece.push_back(p);
        previous = s;
        previousInside = inside;
    }
    finish();
    return pieces;
}

}  // namespace vrn2
