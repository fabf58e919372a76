#include "duct/network_trace.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <unordered_map>

namespace vrn2::duct {
namespace {

// Entities by the grid cell (of the coincidence size) of each end; a query looks at the 3×3
// cells around a point, which hold every end that can coincide with it.
class EndGrid {
public:
    explicit EndGrid(const std::vector<NetworkEntity>& selection) {
        cells_.reserve(selection.size() * 2);
        for (int i = 0; i < static_cast<int>(selection.size()); ++i) {
            const NetworkEntity& e = selection[i];
            if (e.kind == EntityKind::Other) continue;
            add(e.first, i);
            if (e.kind == EntityKind::Line) add(e.second, i);
        }
    }

    // Entity indices with an end in the neighbourhood of P, ascending and without repeats.
    std::vector<int> near(const DuctPoint& p) const {
        std::vector<int> found;
        auto [cx, cy] = cell(p);
        for (std::int64_t dx = -1; dx <= 1; ++dx) {
            for (std::int64_t dy = -1; dy <= 1; ++dy) {
                auto it = cells_.find(key(cx + dx, cy + dy));
                if (it != cells_.end()) found.insert(found.end(), it->second.begin(), it->second.end());
            }
        }
        std::sort(found.begin(), found.end());
        found.erase(std::unique(found.begin(), found.end()), found.end());
        return found;
    }

private:
    static std::int64_t index(double v) {
        double c = std::floor(v / kCoincidence);
        if (!(c > -1e15)) return std::int64_t(-1e15);  // also NaN: such an end coincides with nothing
        if (c > 1e15) return std::int64_t(1e15);
        return static_cast<std::int64_t>(c);
    }
    static std::pair<std::int64_t, std::int64_t> cell(const DuctPoint& p) { return {index(p.x), index(p.y)}; }
    static std::uint64_t key(std::int64_t x, std::int64_t y) {
        return static_cast<std::uint64_t>(x) * 0x9E3779B97F4A7C15ull ^ static_cast<std::uint64_t>(y);
    }
    void add(const DuctPoint& p, int entity) {
        auto [cx, cy] = cell(p);
        cells_[key(cx, cy)].push_back(entity);
    }

    std::unordered_map<std::uint64_t, std::vector<int>> cells_;
};

class Tracer {
public:
    Tracer(const std::vector<NetworkEntity>& selection, TraceResult& out)
        : selection_(selection), out_(out), grid_(selection), removed_(selection.size(), false) {}

    void run(int rootEntity, const DuctPoint& pick) {
        makeRoot(rootEntity, pick);
        int current = 0;
        // Every step of the depth-first trace continues with exactly one segment (its first
        // branch, itself once more after an outlet, or the next sibling found by climbing),
        // so the walk is a loop over parent links and needs no stack.
        while (current != kNoSegment) {
            int lines = 0;
            int outlets = 0;
            if (!scanEnd(current, lines, outlets)) {
                out_.status = TraceStatus::TooManyBranches;
                return;
            }
            if (lines > 0) {
                current = segment(current).branches[0];
            } else if (outlets == 0) {
                becomeLeaf(current);
                current = climb(current);
            }
        }
    }

private:
    DuctSegment& segment(int s) { return out_.network.segments[s]; }

    int addSegment(int entity, const DuctPoint& start, const DuctPoint& end) {
        const NetworkEntity& e = selection_[entity];
        DuctSegment s;
        s.start = start;
        s.end = end;
        s.length = distance(start, end) * kLengthFactor;
        s.handle = e.handle;
        s.shape = e.shape;
        s.size1 = e.size1;
        s.size2 = e.size2;
        s.number = e.number;
        out_.network.segments.push_back(std::move(s));
        out_.entityOf.push_back(entity);
        return static_cast<int>(out_.network.segments.size()) - 1;
    }

    void makeRoot(int rootEntity, const DuctPoint& pick) {
        const NetworkEntity& e = selection_[rootEntity];
        bool reversed = rootIsReversed(selection_, rootEntity, pick);
        addSegment(rootEntity, reversed ? e.second : e.first, reversed ? e.first : e.second);
        out_.network.greatestNumber = e.number;
    }

    // Matches the entities at the segment's downstream end in selection order. False when a
    // fourth branch is met.
    bool scanEnd(int s, int& lines, int& outlets) {
        DuctPoint end = segment(s).end;
        for (int i : grid_.near(end)) {
            if (removed_[i] || i == out_.entityOf[s]) continue;
            const NetworkEntity& e = selection_[i];
            if (e.kind == EntityKind::Outlet && coincide(e.first, end)) {
                matchOutlet(s, e);
                ++outlets;
            } else if (e.kind == EntityKind::Line && (coincide(e.first, end) || coincide(e.second, end))) {
                if (lines == 3) return false;
                matchLine(s, i, lines++);
            } else {
                continue;
            }
            removed_[i] = true;
        }
        return true;
    }

    void matchOutlet(int s, const NetworkEntity& outlet) {
        DuctSegment& seg = segment(s);
        seg.resolved = 1;
        seg.endKind = kEndOutlet;
        seg.flow = outlet.outletFlow;
        ++out_.outletCount;
        if (outlet.outletFlow == -1.0) out_.missingFlowOutlets.push_back(outlet.first);
    }

    void matchLine(int s, int entity, int slot) {
        const NetworkEntity& e = selection_[entity];
        bool firstTouches = coincide(e.first, segment(s).end);
        int b = addSegment(entity, firstTouches ? e.first : e.second, firstTouches ? e.second : e.first);
        DuctSegment& branch = segment(b);
        branch.parent = s;
        branch.slot = static_cast<short>(slot);
        segment(s).branches[slot] = b;
        segment(s).resolved = 1;
        out_.network.greatestNumber = std::max(out_.network.greatestNumber, e.number);
    }

    void becomeLeaf(int s) {
        DuctSegment& seg = segment(s);
        const NetworkEntity& e = selection_[out_.entityOf[s]];
        seg.endKind = kEndOpen;
        out_.network.leaves.push_back(s);
        if (e.mainMark == MainMark::Absent) out_.leavesWithoutMainMark.push_back(s);
        if (e.mainMark == MainMark::One) {
            out_.network.mainLeaf = s;
            seg.main = 1;
        }
        if (!seg.resolved) seg.flow = e.storedFlow;
    }

    // Completes the flows of every parent whose last branch has finished; answers the next
    // sibling to trace, or none when the root is complete.
    int climb(int s) {
        while (segment(s).parent != kNoSegment) {
            int p = segment(s).parent;
            int slot = segment(s).slot;
            if (slot < 2 && segment(p).branches[slot + 1] != kNoSegment) return segment(p).branches[slot + 1];
            double sum = 0.0;
            for (int i = 0; i <= slot; ++i) sum += segment(segment(p).branches[i]).flow;
            segment(p).flow += sum;
            out_.flowWrites.push_back({p, segment(p).flow});
            for (int b : segment(p).branches) {
                if (b == kNoSegment || segment(b).resolved || segment(b).flow != 0.0) continue;
                segment(b).flow = segment(p).flow;
                out_.flowWrites.push_back({b, segment(b).flow});
            }
            s = p;
        }
        return kNoSegment;
    }

    const std::vector<NetworkEntity>& selection_;
    TraceResult& out_;
    EndGrid grid_;
    std::vector<bool> removed_;
};

bool touchedByLine(const std::vector<NetworkEntity>& selection, const DuctPoint& p) {
    for (const NetworkEntity& e : selection) {
        if (e.kind == EntityKind::Line && (coincide(e.first, p) || coincide(e.second, p))) return true;
    }
    return false;
}

}  // namespace

bool rootIsReversed(const std::vector<NetworkEntity>& selection, int rootEntity, const DuctPoint& pick) {
    DuctPoint start = selection[rootEntity].first;
    DuctPoint end = selection[rootEntity].second;
    bool reversed = false;
    for (const NetworkEntity& e : selection) {
        if (e.kind == EntityKind::Outlet && coincide(e.first, start)) {
            std::swap(start, end);
            reversed = true;
            break;
        }
    }
    bool startTouched = touchedByLine(selection, start);
    bool endTouched = touchedByLine(selection, end);
    bool swap = (startTouched && !endTouched) ||
                (startTouched && endTouched && distance(pick, end) < distance(pick, start));
    return swap ? !reversed : reversed;
}

TraceResult traceNetwork(const std::vector<NetworkEntity>& selection, int rootEntity, const DuctPoint& pick) {
    TraceResult result;
    Tracer(selection, result).run(rootEntity, pick);
    return result;
}

bool findMainPath(TraceResult& trace, const std::vector<NetworkEntity>& selection) {
    DuctNetwork& net = trace.network;
    if (net.leaves.empty()) return false;
    auto pathLength = [&net](int leaf) {
        double sum = 0.0;
        for (int s = leaf; s != kNoSegment; s = net.segments[s].parent) sum += net.segments[s].length;
        return sum;
    };
    if (net.mainLeaf != kNoSegment) {
        net.mainLength = pathLength(net.mainLeaf);
    } else {
        net.mainLength = -1.0;
        for (int leaf : net.leaves) {
            double length = pathLength(leaf);
            if (length > net.mainLength) {
                net.mainLength = length;
                net.mainLeaf = leaf;
            }
        }
    }
    for (int s : mainPathUpwards(net)) {
        DuctSegment& seg = net.segments[s];
        const NetworkEntity& e = selection[trace.entityOf[s]];
        seg.main = 1;
        seg.pressureLoss = e.storedLoss;
        if (e.storedXi) seg.xi = *e.storedXi;
    }
    return true;
}

}  // namespace vrn2::duct
