// The network trace: small networks worked by hand, the rules at the edges, and random
// networks in random selection order against the recursive reference scan.
#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "duct/network_trace.h"
#include "trace_reference.h"

namespace vrn2::duct {
namespace {

NetworkEntity line(DuctPoint a, DuctPoint b, int number = 0) {
    NetworkEntity e;
    e.kind = EntityKind::Line;
    e.first = a;
    e.second = b;
    e.number = number;
    e.shape = kShapeCircular;
    e.size1 = 200;
    return e;
}

NetworkEntity outlet(DuctPoint at, double flow) {
    NetworkEntity e;
    e.kind = EntityKind::Outlet;
    e.first = at;
    e.outletFlow = flow;
    return e;
}

// A tee: root 0→1000 on x; two outlets' branches up and down; a third branch with no outlet.
std::vector<NetworkEntity> tee() {
    return {line({0, 0, 0}, {1000, 0, 0}, 1),
            line({1000, 0, 0}, {1000, 2000, 0}, 2),
            outlet({1000, 2000, 0}, 300),
            line({1000, -3000, 0}, {1000, 0, 0}, 3),  // drawn towards the junction
            outlet({1000, -3000, 0}, 500),
            line({1000, 0, 0}, {2000, 0, 0}, 4)};
}

TEST(Trace, TeeFlowsBranchOrderAndWrites) {
    auto sel = tee();
    TraceResult t = traceNetwork(sel, 0, {100, 0, 0});
    ASSERT_EQ(t.status, TraceStatus::Traced);
    const auto& segs = t.network.segments;
    ASSERT_EQ(segs.size(), 4u);
    EXPECT_EQ(t.entityOf, (std::vector<int>{0, 1, 3, 5}));
    EXPECT_EQ(segs[2].start.y, 0);  // the drawn-backwards branch starts at the junction
    EXPECT_EQ(segs[2].end.y, -3000);
    EXPECT_EQ(t.network.leaves, (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(t.outletCount, 2);
    // Root: 300 + 500 + 0; then the open branch without a stored flow takes the root's 800.
    EXPECT_EQ(segs[0].flow, 800);
    EXPECT_EQ(segs[3].flow, 800);
    ASSERT_EQ(t.flowWrites.size(), 2u);
    EXPECT_EQ(t.flowWrites[0].segment, 0);
    EXPECT_EQ(t.flowWrites[1].segment, 3);
    EXPECT_EQ(t.network.greatestNumber, 4);
    EXPECT_EQ(t.leavesWithoutMainMark, (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(segs[1].endKind, kEndOpen);  // the outlet's duct is traced once more and ends open
    EXPECT_EQ(segs[1].resolved, 1);
    EXPECT_DOUBLE_EQ(segs[2].length, 3.0);
    // Longest path: root + the 3 m branch.
    ASSERT_TRUE(findMainPath(t, sel));
    EXPECT_EQ(t.network.mainLeaf, 2);
    EXPECT_DOUBLE_EQ(t.network.mainLength, 4.0);
    EXPECT_EQ(segs[0].main + segs[2].main, 2);
    EXPECT_EQ(segs[1].main + segs[3].main, 0);
}

TEST(Trace, MissingOutletFlowIsMinusOneSummedUpstream) {
    std::vector<NetworkEntity> sel{line({0, 0, 0}, {1000, 0, 0}), line({1000, 0, 0}, {1000, 1000, 0}),
                                   outlet({1000, 1000, 0}, -1.0), line({1000, 0, 0}, {1000, -1000, 0}),
                                   outlet({1000, -1000, 0}, 400)};
    TraceResult t = traceNetwork(sel, 0, {0, 0, 0});
    EXPECT_EQ(t.network.segments[0].flow, 399);
    ASSERT_EQ(t.missingFlowOutlets.size(), 1u);
    EXPECT_EQ(t.missingFlowOutlets[0].y, 1000);
}

TEST(Trace, UnresolvedLeafTakesItsStoredFlow) {
    std::vector<NetworkEntity> sel{line({0, 0, 0}, {1000, 0, 0}), line({1000, 0, 0}, {2000, 0, 0})};
    sel[1].storedFlow = 650;
    TraceResult t = traceNetwork(sel, 0, {0, 0, 0});
    EXPECT_EQ(t.network.segments[1].flow, 650);
    EXPECT_EQ(t.network.segments[0].flow, 650);
}

TEST(Trace, ThreeBranchesAcceptedFourStop) {
    std::vector<NetworkEntity> sel{line({0, 0, 0}, {1000, 0, 0}), line({1000, 0, 0}, {2000, 0, 0}),
                                   line({1000, 0, 0}, {1000, 1000, 0}), line({1000, 0, 0}, {1000, -1000, 0})};
    EXPECT_EQ(traceNetwork(sel, 0, {0, 0, 0}).status, TraceStatus::Traced);
    sel.push_back(line({1000, 0, 0}, {2000, 1000, 0}));
    EXPECT_EQ(traceNetwork(sel, 0, {0, 0, 0}).status, TraceStatus::TooManyBranches);
}

TEST(Trace, EndsJoinBelowTenUnitsApartInEveryCoordinate) {
    for (int axis = 0; axis < 3; ++axis) {
        for (double gap : {9.99, 10.0}) {
            DuctPoint b{1000, 0, 0};
            (axis == 0 ? b.x : axis == 1 ? b.y : b.z) += gap;
            std::vector<NetworkEntity> sel{line({0, 0, 0}, {1000, 0, 0}), line(b, {1000, 2000, 0})};
            TraceResult t = traceNetwork(sel, 0, {0, 0, 0});
            EXPECT_EQ(t.network.segments.size(), gap < 10 ? 2u : 1u) << axis << " " << gap;
        }
    }
}

TEST(Trace, EqualPathsFirstLeafWinsAndIsMainOverrides) {
    std::vector<NetworkEntity> sel{line({0, 0, 0}, {1000, 0, 0}), line({1000, 0, 0}, {1000, 1000, 0}),
                                   line({1000, 0, 0}, {1000, -1000, 0}), line({1000, 0, 0}, {1500, 0, 0})};
    TraceResult t = traceNetwork(sel, 0, {0, 0, 0});
    ASSERT_TRUE(findMainPath(t, sel));
    EXPECT_EQ(t.entityOf[t.network.mainLeaf], 1);
    sel[3].mainMark = MainMark::One;  // the shortest leaf
    sel[1].mainMark = MainMark::Zero;
    t = traceNetwork(sel, 0, {0, 0, 0});
    EXPECT_EQ(t.leavesWithoutMainMark.size(), 1u);
    ASSERT_TRUE(findMainPath(t, sel));
    EXPECT_EQ(t.entityOf[t.network.mainLeaf], 3);
    EXPECT_DOUBLE_EQ(t.network.mainLength, 1.5);
}

TEST(Trace, MainPathTakesStoredLossesAndXi) {
    auto sel = tee();
    sel[0].storedXi = 0.7;
    sel[0].storedLoss = 12.5;
    sel[3].storedXi = 1.5;
    TraceResult t = traceNetwork(sel, 0, {0, 0, 0});
    ASSERT_TRUE(findMainPath(t, sel));
    EXPECT_EQ(t.network.segments[0].xi, 0.7);
    EXPECT_EQ(t.network.segments[0].pressureLoss, 12.5);
    EXPECT_EQ(t.network.segments[2].xi, 1.5);
    EXPECT_FALSE(t.network.segments[2].pressureLoss);
}

TEST(Root, PickNearerTheSecondEndMakesItUpstream) {
    auto sel = tee();
    sel[0] = line({1000, 0, 0}, {0, 0, 0});  // drawn from the junction outwards
    EXPECT_FALSE(rootIsReversed(sel, 0, {900, 0, 0}));
    EXPECT_TRUE(rootIsReversed(sel, 0, {100, 0, 0}));
    EXPECT_FALSE(rootIsReversed(sel, 0, {500, 0, 0}));  // equally near: kept
    TraceResult t = traceNetwork(sel, 0, {900, 0, 0});
    EXPECT_EQ(t.network.segments.size(), 1u);  // traced away from the junction
    t = traceNetwork(sel, 0, {100, 0, 0});
    EXPECT_EQ(t.network.segments.size(), 4u);
}

// Random trees of up to three branches per junction, outlets at some ends, lines drawn either
// way, the selection shuffled.
std::vector<NetworkEntity> randomNetwork(std::mt19937& rng, int lines, bool allowFour) {
    std::uniform_real_distribution<double> jitter(-4.0, 4.0);
    std::vector<DuctPoint> nodes{{0, 0, 0}};
    std::vector<int> children{0};
    std::vector<NetworkEntity> sel;
    auto at = [&](const DuctPoint& p) { return DuctPoint{p.x + jitter(rng), p.y + jitter(rng), p.z}; };
    for (int i = 0; i < lines; ++i) {
        int limit = allowFour ? 4 : 3;
        int parent;
        do parent = std::uniform_int_distribution<int>(0, int(nodes.size()) - 1)(rng);
        while (children[parent] >= limit || (parent == 0 && children[0] >= 1));
        ++children[parent];
        DuctPoint p{double(nodes.size() % 97) * 1000.0, double(nodes.size() / 97) * 1000.0, 0};
        nodes.push_back(p);
        children.push_back(0);
        NetworkEntity e = std::bernoulli_distribution(0.5)(rng) ? line(at(nodes[parent]), at(p), i)
                                                                 : line(at(p), at(nodes[parent]), i);
        e.storedFlow = std::bernoulli_distribution(0.2)(rng) ? 100.0 * i : 0.0;
        int mark = std::uniform_int_distribution<int>(0, 30)(rng);
        e.mainMark = mark == 0 ? MainMark::One : mark < 10 ? MainMark::Zero : MainMark::Absent;
        sel.push_back(e);
    }
    for (size_t n = 1; n < nodes.size(); ++n) {
        int roll = std::uniform_int_distribution<int>(0, 5)(rng);
        if (children[n] == 0 && roll < 4) sel.push_back(outlet(at(nodes[n]), roll == 0 ? -1.0 : 50.0 * roll + n));
    }
    sel.push_back(NetworkEntity{});  // something else on the layer
    std::shuffle(sel.begin(), sel.end(), rng);
    for (size_t i = 0; i < sel.size(); ++i) {
        if (sel[i].kind == EntityKind::Line && sel[i].number == 0) return std::swap(sel[i], sel[0]), sel;
    }
    return sel;
}

// Answers whether the trace stopped at a fourth branch.
bool expectSameAsReference(const std::vector<NetworkEntity>& sel, const DuctPoint& pick) {
    TraceResult t = traceNetwork(sel, 0, pick);
    reference::Trace ref(sel, 0, rootIsReversed(sel, 0, pick));
    EXPECT_EQ(t.status == TraceStatus::TooManyBranches, ref.failed);
    if (t.network.segments.size() != ref.segs.size()) {
        ADD_FAILURE() << "segment counts differ";
        return ref.failed;
    }
    const auto& segs = t.network.segments;
    for (size_t i = 0; i < segs.size(); ++i) {
        const auto& r = ref.segs[i];
        EXPECT_EQ(t.entityOf[i], r.entity);
        EXPECT_EQ(segs[i].parent, r.parent);
        EXPECT_EQ(segs[i].slot, r.slot);
        EXPECT_EQ(segs[i].end.x, r.end.x);
        EXPECT_EQ(segs[i].end.y, r.end.y);
        EXPECT_EQ(segs[i].flow, r.flow) << i;
        EXPECT_EQ(segs[i].resolved, r.resolved);
        EXPECT_EQ(segs[i].endKind, r.endKind);
        EXPECT_EQ(bool(segs[i].main), r.main);
        for (int b = 0; b < 3; ++b) EXPECT_EQ(segs[i].branches[b], r.branches[b]);
    }
    EXPECT_EQ(t.network.leaves, ref.leaves);
    EXPECT_EQ(t.network.mainLeaf, ref.mainLeaf);
    EXPECT_EQ(t.flowWrites.size(), ref.writes.size());
    for (size_t i = 0; i < std::min(ref.writes.size(), t.flowWrites.size()); ++i) {
        EXPECT_EQ(t.flowWrites[i].segment, ref.writes[i].segment);
        EXPECT_EQ(t.flowWrites[i].flow, ref.writes[i].flow);
    }
    EXPECT_EQ(t.missingFlowOutlets.size(), ref.missing.size());
    if (ref.failed || ref.leaves.empty()) return ref.failed;
    // Main leaf: the is_main leaf, else the first of the longest paths.
    int expected = ref.mainLeaf;
    double best = -1;
    for (int leaf : ref.leaves) {
        double length = 0;
        for (int s = leaf; s >= 0; s = ref.segs[s].parent) length += distance(ref.segs[s].start, ref.segs[s].end) / 1000;
        if (ref.mainLeaf < 0 && length > best) best = length, expected = leaf;
    }
    EXPECT_TRUE(findMainPath(t, sel));
    EXPECT_EQ(t.network.mainLeaf, expected);
    return false;
}

TEST(Trace, RandomNetworksMatchTheRecursiveScan) {
    std::mt19937 rng(20261122);
    int stopped = 0, traced = 0;
    for (int round = 0; round < 300; ++round) {
        int lines = std::uniform_int_distribution<int>(1, 120)(rng);
        auto sel = randomNetwork(rng, lines, round % 5 == 4);
        const NetworkEntity& root = sel[0];
        DuctPoint pick{root.first.x * 0.7 + root.second.x * 0.3, root.first.y * 0.7 + root.second.y * 0.3, 0};
        SCOPED_TRACE(round);
        (expectSameAsReference(sel, pick) ? stopped : traced)++;
        if (HasFailure()) return;
    }
    EXPECT_GT(stopped, 5);
    EXPECT_GT(traced, 200);
}

TEST(Trace, ChainOfHundredThousandSegments) {
    const int n = 100000;
    std::vector<NetworkEntity> sel;
    for (int i = 0; i < n; ++i) sel.push_back(line({i * 1000.0, 0, 0}, {(i + 1) * 1000.0, 0, 0}, i + 1));
    sel.push_back(outlet({n * 1000.0, 0, 0}, 250));
    std::reverse(sel.begin() + 1, sel.end());  // the far end first in the selection
    TraceResult t = traceNetwork(sel, 0, {0, 0, 0});
    ASSERT_EQ(t.status, TraceStatus::Traced);
    ASSERT_EQ(t.network.segments.size(), size_t(n));
    EXPECT_EQ(t.network.leaves.size(), 1u);
    EXPECT_EQ(t.network.segments[0].flow, 250);
    EXPECT_EQ(t.network.greatestNumber, n);
    ASSERT_TRUE(findMainPath(t, sel));
    EXPECT_NEAR(t.network.mainLength, n * 1.0, 1e-6);
}

}  // namespace
}  // namespace vrn2::duct
