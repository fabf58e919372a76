// A plain recursive trace of a duct network: each step scans the whole selection in order.
// Slow and deep on the stack, but obviously the depth-first scan; the fast trace must agree.
#pragma once

#include <cmath>
#include <vector>

#include "duct/network_trace.h"

namespace vrn2::duct::reference {

struct Seg {
    int entity = -1, parent = -1, slot = 0;
    DuctPoint start, end;
    double flow = 0;
    bool resolved = false;
    int endKind = 0;
    bool main = false;
    int branches[3] = {-1, -1, -1};
};

struct Trace {
    const std::vector<NetworkEntity>& sel;
    std::vector<bool> used;
    std::vector<Seg> segs;
    std::vector<int> leaves;
    std::vector<FlowWrite> writes;
    std::vector<DuctPoint> missing;
    int mainLeaf = -1;
    bool failed = false;

    static bool near(const DuctPoint& a, const DuctPoint& b) {
        return std::fabs(a.x - b.x) < 10 && std::fabs(a.y - b.y) < 10 && std::fabs(a.z - b.z) < 10;
    }

    Trace(const std::vector<NetworkEntity>& selection, int root, bool reversed)
        : sel(selection), used(selection.size(), false) {
        Seg r;
        r.entity = root;
        r.start = reversed ? sel[root].second : sel[root].first;
        r.end = reversed ? sel[root].first : sel[root].second;
        segs.push_back(r);
        trace(0);
    }

    void trace(int s) {
        int lines = 0, outlets = 0;
        for (size_t i = 0; i < sel.size(); ++i) {
            if (used[i] || int(i) == segs[s].entity) continue;
            const NetworkEntity& e = sel[i];
            if (e.kind == EntityKind::Outlet && near(e.first, segs[s].end)) {
                segs[s].resolved = true;
                segs[s].endKind = 1;
                segs[s].flow = e.outletFlow;
                if (e.outletFlow == -1.0) missing.push_back(e.first);
                ++outlets;
            } else if (e.kind == EntityKind::Line && (near(e.first, segs[s].end) || near(e.second, segs[s].end))) {
                if (lines == 3) {
                    failed = true;
                    return;
                }
                Seg b;
                b.entity = int(i);
                b.parent = s;
                b.slot = lines;
                bool firstNear = near(e.first, segs[s].end);
                b.start = firstNear ? e.first : e.second;
                b.end = firstNear ? e.second : e.first;
                segs.push_back(b);
                segs[s].branches[lines++] = int(segs.size()) - 1;
                segs[s].resolved = true;
            } else {
                continue;
            }
            used[i] = true;
        }
        if (lines > 0) return trace(segs[s].branches[0]);
        if (outlets > 0) return trace(s);
        segs[s].endKind = 2;
        leaves.push_back(s);
        const NetworkEntity& own = sel[segs[s].entity];
        if (own.mainMark == MainMark::One) {
            mainLeaf = s;
            segs[s].main = true;
        }
        if (!segs[s].resolved) segs[s].flow = own.storedFlow;
        for (int c = s; segs[c].parent >= 0; c = segs[c].parent) {
            Seg& p = segs[segs[c].parent];
            int next = segs[c].slot + 1;
            if (next < 3 && p.branches[next] >= 0) return trace(p.branches[next]);
            double sum = 0;
            for (int i = 0; i < next; ++i) sum += segs[p.branches[i]].flow;
            p.flow += sum;
            writes.push_back({segs[c].parent, p.flow});
            for (int b : p.branches) {
                if (b >= 0 && !segs[b].resolved && segs[b].flow == 0) {
                    segs[b].flow = p.flow;
                    writes.push_back({b, p.flow});
                }
            }
        }
    }
};

}  // namespace vrn2::duct::reference
