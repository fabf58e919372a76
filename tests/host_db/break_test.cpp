// BREAK on lines, arcs, circles and polylines: the pieces left, worked out by hand from the
// rule that the part between the two points (projected onto the object) is removed.
#include <cmath>

#include "tests/host_db/db_fixture.h"

namespace dbtest {
namespace {

using host::RbPtr;

constexpr double kPi = 3.14159265358979323846;

class Break : public DrawingTest {
protected:
    void make(resbuf* list) {
        RbPtr owned(list);
        ASSERT_EQ(acdbEntMake(list), RTNORM);
    }
    int breakF(const ads_name e, const double p1[3], const double p2[3]) {
        return acedCommand(RTSTR, L"_.BREAK", RTENAME, e, RTSTR, L"_F", RTPOINT, p1, RTPOINT, p2, 0);
    }
    static void expectPoint(const resbuf* rb, double x, double y, double z = 0.0) {
        ASSERT_NE(rb, nullptr);
        EXPECT_NEAR(rb->resval.rpoint[0], x, 1e-9);
        EXPECT_NEAR(rb->resval.rpoint[1], y, 1e-9);
        EXPECT_NEAR(rb->resval.rpoint[2], z, 1e-9);
    }
    void lastName(ads_name e) { ASSERT_EQ(acdbEntLast(e), RTNORM); }
};

TEST_F(Break, LineInteriorGapKeepsTheHandleOnTheStartPiece) {
    ASSERT_EQ(acdbRegApp(L"GUANJ"), RTNORM);
    const double a[3] = {0, 0, 0}, b[3] = {100, 0, 0};
    make(acutBuildList(RTDXF0, L"LINE", 8, L"PIPE", 10, a, 11, b, -3, 1001, L"GUANJ", 1000, L"DN50", 0));
    ads_name e;
    lastName(e);
    std::wstring handle = text(find(get(e).get(), 5));
    const double p1[3] = {30, 5, 0}, p2[3] = {60, -5, 0};  // off the line: projected
    ASSERT_EQ(breakF(e, p1, p2), RTNORM);
    auto lines = all(L"LINE");
    ASSERT_EQ(lines.size(), 2u);
    expectPoint(find(lines[0].get(), 10), 0, 0);
    expectPoint(find(lines[0].get(), 11), 30, 0);
    expectPoint(find(lines[1].get(), 10), 60, 0);
    expectPoint(find(lines[1].get(), 11), 100, 0);
    EXPECT_EQ(text(find(lines[0].get(), 5)), handle);
    EXPECT_EQ(text(find(lines[1].get(), 8)), L"PIPE");
    EXPECT_EQ(text(find(lines[1].get(), 1000)), L"DN50") << "the new piece keeps the extended data";
}

TEST_F(Break, LineEndRemovedAndSplitAtOnePoint) {
    const double a[3] = {0, 0, 0}, b[3] = {100, 0, 0};
    make(acutBuildList(RTDXF0, L"LINE", 10, a, 11, b, 0));
    ads_name e;
    lastName(e);
    const double p1[3] = {80, 0, 0}, beyond[3] = {150, 0, 0};
    ASSERT_EQ(breakF(e, p1, beyond), RTNORM);
    auto lines = all(L"LINE");
    ASSERT_EQ(lines.size(), 1u);
    expectPoint(find(lines[0].get(), 11), 80, 0);
    // The same point twice splits the line in two that meet there.
    const double mid[3] = {40, 0, 0};
    ASSERT_EQ(breakF(e, mid, mid), RTNORM);
    lines = all(L"LINE");
    ASSERT_EQ(lines.size(), 2u);
    expectPoint(find(lines[0].get(), 11), 40, 0);
    expectPoint(find(lines[1].get(), 10), 40, 0);
    expectPoint(find(lines[1].get(), 11), 80, 0);
}

TEST_F(Break, PickPointIsTheFirstBreakPoint) {
    const double a[3] = {0, 0, 0}, b[3] = {100, 0, 0};
    make(acutBuildList(RTDXF0, L"LINE", 10, a, 11, b, 0));
    const double pick[3] = {30, 0.2, 0}, second[3] = {60, 0, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"BREAK", RTPOINT, pick, RTPOINT, second, 0), RTNORM);
    auto lines = all(L"LINE");
    ASSERT_EQ(lines.size(), 2u);
    expectPoint(find(lines[0].get(), 11), 30, 0);
    expectPoint(find(lines[1].get(), 10), 60, 0);
    const double nothing[3] = {500, 500, 0};
    EXPECT_NE(acedCommand(RTSTR, L"BREAK", RTPOINT, nothing, RTPOINT, second, 0), RTNORM);
}

TEST_F(Break, ArcKeepsBothEndsAndCircleBecomesAnArc) {
    const double c[3] = {0, 0, 0};
    make(acutBuildList(RTDXF0, L"ARC", 10, c, 40, 10.0, 50, 0.0, 51, kPi / 2, 0));
    ads_name arc;
    lastName(arc);
    const double at30[3] = {10 * std::cos(kPi / 6), 10 * std::sin(kPi / 6), 0};
    const double at60[3] = {20 * std::cos(kPi / 3), 20 * std::sin(kPi / 3), 0};  // outside: projected
    ASSERT_EQ(breakF(arc, at30, at60), RTNORM);
    auto arcs = all(L"ARC");
    ASSERT_EQ(arcs.size(), 2u);
    EXPECT_NEAR(find(arcs[0].get(), 50)->resval.rreal, 0.0, 1e-9);
    EXPECT_NEAR(find(arcs[0].get(), 51)->resval.rreal, kPi / 6, 1e-9);
    EXPECT_NEAR(find(arcs[1].get(), 50)->resval.rreal, kPi / 3, 1e-9);
    EXPECT_NEAR(find(arcs[1].get(), 51)->resval.rreal, kPi / 2, 1e-9);

    const double c2[3] = {100, 0, 0};
    make(acutBuildList(RTDXF0, L"CIRCLE", 10, c2, 40, 10.0, 0));
    ads_name circle;
    lastName(circle);
    // Removed counter-clockwise from the first point (0 degrees) to the second (90 degrees):
    // the arc from 90 degrees round to 0 remains.
    const double east[3] = {110, 0, 0}, north[3] = {100, 10, 0};
    ASSERT_EQ(breakF(circle, east, north), RTNORM);
    EXPECT_EQ(all(L"CIRCLE").size(), 0u);
    arcs = all(L"ARC");
    ASSERT_EQ(arcs.size(), 3u);
    EXPECT_NEAR(std::fmod(find(arcs[2].get(), 50)->resval.rreal + 2 * kPi, 2 * kPi), kPi / 2, 1e-9);
    EXPECT_NEAR(std::fmod(find(arcs[2].get(), 51)->resval.rreal + 2 * kPi, 2 * kPi), 0.0, 1e-9);
    // A circle cannot be broken at one point.
    make(acutBuildList(RTDXF0, L"CIRCLE", 10, c2, 40, 5.0, 0));
    ads_name small;
    lastName(small);
    const double on[3] = {105, 0, 0};
    EXPECT_EQ(breakF(small, on, on), RTERROR);
    EXPECT_EQ(all(L"CIRCLE").size(), 1u);
}

TEST_F(Break, PolylineInsideABulgeGetsSplitBulgesAndWidths) {
    // (0,0) to (10,0) with bulge 1: the lower half circle round (5,0), radius 5; then a
    // straight segment to (20,0) whose width grows from 0 to 10.
    const double v0[3] = {0, 0, 0}, v1[3] = {10, 0, 0}, v2[3] = {20, 0, 0};
    make(acutBuildList(RTDXF0, L"LWPOLYLINE", 90, 3, 70, 0, 10, v0, 40, 0.0, 41, 0.0, 42, 1.0, 10, v1, 40, 0.0, 41,
                       10.0, 42, 0.0, 10, v2, 40, 0.0, 41, 0.0, 42, 0.0, 0));
    ads_name e;
    lastName(e);
    const double bottom[3] = {5, -5, 0}, onStraight[3] = {14, 0, 0};
    ASSERT_EQ(breakF(e, bottom, onStraight), RTNORM);
    auto polylines = all(L"LWPOLYLINE");
    ASSERT_EQ(polylines.size(), 2u);
    const resbuf* first = polylines[0].get();
    EXPECT_EQ(find(first, 90)->resval.rlong, 2);
    expectPoint(find(first, 10, 1), 5, -5);
    // A quarter of the half circle is left: bulge tan(90 degrees / 4).
    EXPECT_NEAR(find(first, 42, 0)->resval.rreal, std::tan(kPi / 8), 1e-12);
    const resbuf* second = polylines[1].get();
    expectPoint(find(second, 10, 0), 14, 0);
    EXPECT_NEAR(find(second, 40, 0)->resval.rreal, 4.0, 1e-12) << "width at 14 of 10 to 20 growing 0 to 10";
    EXPECT_NEAR(find(second, 41, 0)->resval.rreal, 10.0, 1e-12);
}

TEST_F(Break, ClosedPolylineOpensThroughItsFirstVertex) {
    const double v[4][3] = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}};
    make(acutBuildList(RTDXF0, L"LWPOLYLINE", 90, 4, 70, 1, 10, v[0], 10, v[1], 10, v[2], 10, v[3], 0));
    ads_name e;
    lastName(e);
    const double p1[3] = {5, 0, 0}, p2[3] = {10, 5, 0};
    ASSERT_EQ(breakF(e, p1, p2), RTNORM);
    auto polylines = all(L"LWPOLYLINE");
    ASSERT_EQ(polylines.size(), 1u);
    const resbuf* p = polylines[0].get();
    EXPECT_EQ(find(p, 70)->resval.rint & 1, 0);
    const double expected[5][2] = {{10, 5}, {10, 10}, {0, 10}, {0, 0}, {5, 0}};
    EXPECT_EQ(find(p, 90)->resval.rlong, 5);
    for (int i = 0; i < 5; ++i) expectPoint(find(p, 10, i), expected[i][0], expected[i][1]);
    // One point on a closed polyline is refused and changes nothing.
    make(acutBuildList(RTDXF0, L"LWPOLYLINE", 90, 4, 70, 1, 10, v[0], 10, v[1], 10, v[2], 10, v[3], 0));
    ads_name closed;
    lastName(closed);
    EXPECT_EQ(breakF(closed, p1, p1), RTERROR);
    EXPECT_EQ(find(get(closed).get(), 70)->resval.rint & 1, 1);
}

TEST_F(Break, DonutBreaksIntoOneOpenArcPolyline) {
    const double c[3] = {100, 200, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"DONUT", RTREAL, 50.0, RTREAL, 150.0, RTPOINT, c, RTSTR, L"", 0), RTNORM);
    ads_name e;
    lastName(e);
    // The vertices are left (180 degrees) then right (0 degrees), both bulges 1: the first
    // segment is the lower half, the second the upper half. Breaking from the top (first
    // point) to the right (second point) removes the part from the top onward through the
    // left and the bottom to the right: the quarter from the right up to the top remains.
    const double top[3] = {100, 250, 0}, right[3] = {150, 200, 0};
    ASSERT_EQ(breakF(e, top, right), RTNORM);
    auto polylines = all(L"LWPOLYLINE");
    ASSERT_EQ(polylines.size(), 1u);
    const resbuf* p = polylines[0].get();
    EXPECT_EQ(find(p, 70)->resval.rint & 1, 0);
    EXPECT_EQ(find(p, 43)->resval.rreal, 50.0) << "the constant width stays";
    EXPECT_EQ(find(p, 90)->resval.rlong, 2);
    expectPoint(find(p, 10, 0), 150, 200);
    expectPoint(find(p, 10, 1), 100, 250);
    EXPECT_NEAR(find(p, 42, 0)->resval.rreal, std::tan(kPi / 8), 1e-12);
}

TEST_F(Break, ThreeDimensionalPolylineKeepsHeights) {
    const double a[3] = {0, 0, 0}, b[3] = {10, 0, 10};
    make(acutBuildList(RTDXF0, L"POLYLINE", 66, 1, 70, 8, 0));
    make(acutBuildList(RTDXF0, L"VERTEX", 10, a, 70, 32, 0));
    make(acutBuildList(RTDXF0, L"VERTEX", 10, b, 70, 32, 0));
    make(acutBuildList(RTDXF0, L"SEQEND", 0));
    ads_name e;
    lastName(e);
    const double p1[3] = {2, 0, 0}, p2[3] = {8, 0, 0};
    ASSERT_EQ(breakF(e, p1, p2), RTNORM);
    auto polylines = all(L"POLYLINE");
    ASSERT_EQ(polylines.size(), 2u);
    ads_name head, vertex;
    acdbNameSet(find(polylines[0].get(), -1)->resval.rlname, head);
    ASSERT_EQ(acdbEntNext(head, vertex), RTNORM);
    ASSERT_EQ(acdbEntNext(vertex, vertex), RTNORM);
    expectPoint(find(get(vertex).get(), 10), 2, 0, 2);
    acdbNameSet(find(polylines[1].get(), -1)->resval.rlname, head);
    ASSERT_EQ(acdbEntNext(head, vertex), RTNORM);
    expectPoint(find(get(vertex).get(), 10), 8, 0, 8);
    EXPECT_EQ(find(get(vertex).get(), 70)->resval.rint, 32);
}

}  // namespace
}  // namespace dbtest
