#include "duct/junction_splits.h"

#include <algorithm>
#include <cmath>

namespace vrn2::duct {
namespace {

struct EndRef {
    double x;
    int line;
    DuctPoint point;
};

// Parameter of P's projection on the line, and the projected point, when P lies within the
// coincidence distance of the line's interior.
bool touchesInterior(const LineEnds& l, const DuctPoint& p, double& t, DuctPoint& foot) {
    if (coincide(p, l.first) || coincide(p, l.second)) return false;
    double dx = l.second.x - l.first.x, dy = l.second.y - l.first.y, dz = l.second.z - l.first.z;
    double lengthSquared = dx * dx + dy * dy + dz * dz;
    if (!(lengthSquared > 0.0)) return false;
    t = ((p.x - l.first.x) * dx + (p.y - l.first.y) * dy + (p.z - l.first.z) * dz) / lengthSquared;
    if (!(t > 0.0 && t < 1.0)) return false;
    foot = {l.first.x + t * dx, l.first.y + t * dy, l.first.z + t * dz};
    return distance(foot, p) < kCoincidence;
}

std::vector<DuctPoint> splitsOf(const std::vector<LineEnds>& lines, const std::vector<EndRef>& ends, int index) {
    const LineEnds& l = lines[index];
    double lo = std::min(l.first.x, l.second.x) - kCoincidence;
    double hi = std::max(l.first.x, l.second.x) + kCoincidence;
    auto it = std::lower_bound(ends.begin(), ends.end(), lo, [](const EndRef& e, double v) { return e.x < v; });
    std::vector<std::pair<double, DuctPoint>> found;
    for (; it != ends.end() && it->x <= hi; ++it) {
        double t = 0.0;
        DuctPoint foot;
        if (it->line != index && touchesInterior(l, it->point, t, foot)) found.push_back({t, foot});
    }
    std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<DuctPoint> points;
    for (const auto& [t, foot] : found) {
        if (points.empty() || !coincide(points.back(), foot)) points.push_back(foot);
    }
    return points;
}

}  // namespace

std::vector<LineSplits> junctionSplits(const std::vector<LineEnds>& lines) {
    std::vector<EndRef> ends;
    ends.reserve(lines.size() * 2);
    for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
        ends.push_back({lines[i].first.x, i, lines[i].first});
        ends.push_back({lines[i].second.x, i, lines[i].second});
    }
    std::sort(ends.begin(), ends.end(), [](const EndRef& a, const EndRef& b) { return a.x < b.x; });
    std::vector<LineSplits> result;
    for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
        std::vector<DuctPoint> points = splitsOf(lines, ends, i);
        if (!points.empty()) result.push_back({i, std::move(points)});
    }
    return result;
}

}  // namespace vrn2::duct
