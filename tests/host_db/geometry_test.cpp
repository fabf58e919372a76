// Geometry behind BREAK, ZOOM and selection: paths of straight and bulged segments, the
// extents of texts and inserts, and the shapes of old-style polylines and inserts.
#include <cmath>

#include "host/commands/break_geometry.h"
#include "host/db/extents.h"
#include "host/db/shapes.h"
#include "tests/host_db/db_fixture.h"

namespace dbtest {
namespace {

using host::RbPtr;
using host::cmd::Path;
using host::cmd::PathVertex;

constexpr double kPi = 3.14159265358979323846;

PathVertex v(double x, double y, double bulge = 0.0, double w0 = 0.0, double w1 = 0.0) {
    PathVertex p;
    p.p[0] = x;
    p.p[1] = y;
    p.bulge = bulge;
    p.startWidth = w0;
    p.endWidth = w1;
    return p;
}

TEST(BreakGeometry, ProjectionFollowsArcsByAngle) {
    // (0,0) to (10,0) with bulge -1: the upper half circle round (5,0), clockwise.
    Path path;
    path.vertices = {v(0, 0, -1.0), v(10, 0)};
    const double top[3] = {5, 9, 0};  // straight above the centre: the middle of the arc
    EXPECT_NEAR(host::cmd::project(path, top), 0.5, 1e-12);
    const double side[3] = {5 + 5 * std::cos(kPi / 4), 5 * std::sin(kPi / 4), 0};  // 3/4 of the way
    EXPECT_NEAR(host::cmd::project(path, side), 0.75, 1e-12);
    const double below[3] = {2, -3, 0};  // under the chord, off the arc: the nearer end
    EXPECT_NEAR(host::cmd::project(path, below), 0.0, 1e-12);
    double at[3];
    host::cmd::pointAt(path, 0.5, at);
    EXPECT_NEAR(at[0], 5.0, 1e-12);
    EXPECT_NEAR(at[1], 5.0, 1e-12);
}

TEST(BreakGeometry, OpenPathPiecesAndTheirBulgesAndWidths) {
    Path path;
    path.vertices = {v(0, 0, 1.0, 2.0, 4.0), v(10, 0, 0.0, 4.0, 4.0), v(20, 0)};
    std::vector<Path> pieces;
    ASSERT_TRUE(host::cmd::breakPath(path, 1.5, 0.25, pieces));
    ASSERT_EQ(pieces.size(), 2u);
    // Before 0.25: a quarter of a half circle, tan(45 degrees / 4); width 2 growing to 2.5.
    ASSERT_EQ(pieces[0].vertices.size(), 2u);
    EXPECT_NEAR(pieces[0].vertices[0].bulge, std::tan(kPi / 4 / 4), 1e-12);
    EXPECT_NEAR(pieces[0].vertices[0].endWidth, 2.5, 1e-12);
    // After 1.5: from (15,0) to the end.
    EXPECT_NEAR(pieces[1].vertices[0].p[0], 15.0, 1e-12);
    EXPECT_NEAR(pieces[1].vertices.back().p[0], 20.0, 1e-12);
    // Breaking at the start removes nothing there; beyond the end leaves one piece.
    ASSERT_TRUE(host::cmd::breakPath(path, 0.0, 1.0, pieces));
    ASSERT_EQ(pieces.size(), 1u);
    EXPECT_NEAR(pieces[0].vertices[0].p[0], 10.0, 1e-12);
    ASSERT_TRUE(host::cmd::breakPath(path, 0.0, 2.0, pieces));
    EXPECT_TRUE(pieces.empty()) << "all of it removed";
}

TEST(BreakGeometry, ClosedPathsOpenFromTheSecondPoint) {
    Path square;
    square.closed = true;
    square.vertices = {v(0, 0), v(10, 0), v(10, 10), v(0, 10)};
    std::vector<Path> pieces;
    // First point after the second: the part kept runs from the second to the first.
    ASSERT_TRUE(host::cmd::breakPath(square, 2.5, 0.5, pieces));
    ASSERT_EQ(pieces.size(), 1u);
    const auto& kept = pieces[0].vertices;
    ASSERT_EQ(kept.size(), 4u);
    EXPECT_NEAR(kept[0].p[0], 5.0, 1e-12);
    EXPECT_NEAR(kept[1].p[0], 10.0, 1e-12);
    EXPECT_NEAR(kept[2].p[1], 10.0, 1e-12);
    EXPECT_NEAR(kept[3].p[0], 5.0, 1e-12);
    EXPECT_FALSE(host::cmd::breakPath(square, 1.0, 1.0, pieces));
    EXPECT_FALSE(host::cmd::breakPath(square, 0.0, 4.0, pieces)) << "the start and the end are one point";
}

class ExtentsAndShapes : public DrawingTest {
protected:
    void make(resbuf* list) {
        RbPtr owned(list);
        ASSERT_EQ(acdbEntMake(list), RTNORM);
    }
    uint32_t lastIndex() {
        ads_name e;
        EXPECT_EQ(acdbEntLast(e), RTNORM);
        return db().indexOf(e);
    }
};

TEST_F(ExtentsAndShapes, InsertsArePlacedScaledAndTurned) {
    const double o[3] = {0, 0, 0}, corner[3] = {10, 5, 0};
    make(acutBuildList(RTDXF0, L"BLOCK", 2, L"BOX", 70, 0, 10, o, 0));
    make(acutBuildList(RTDXF0, L"LINE", 10, o, 11, corner, 0));
    make(acutBuildList(RTDXF0, L"ENDBLK", 0));
    const double at[3] = {100, 100, 0};
    // Twice as large, turned a quarter: the box (0,0)-(20,10) turned becomes (-10,0)-(0,20).
    make(acutBuildList(RTDXF0, L"INSERT", 2, L"BOX", 10, at, 41, 2.0, 42, 2.0, 50, kPi / 2, 0));
    host::db::Box box = host::db::entityExtents(db(), lastIndex());
    EXPECT_NEAR(box.minX, 90.0, 1e-9);
    EXPECT_NEAR(box.maxX, 100.0, 1e-9);
    EXPECT_NEAR(box.minY, 100.0, 1e-9);
    EXPECT_NEAR(box.maxY, 120.0, 1e-9);
}

TEST_F(ExtentsAndShapes, ArcsReachTheirQuadrantsAndTextsTheirLength) {
    const double c[3] = {0, 0, 0};
    make(acutBuildList(RTDXF0, L"ARC", 10, c, 40, 10.0, 50, kPi / 4, 51, 3 * kPi / 4, 0));
    host::db::Box arc = host::db::entityExtents(db(), lastIndex());
    EXPECT_NEAR(arc.maxY, 10.0, 1e-9) << "the top of the circle lies on the arc";
    EXPECT_NEAR(arc.minY, 10 * std::sin(kPi / 4), 1e-9);
    EXPECT_NEAR(arc.maxX, 10 * std::cos(kPi / 4), 1e-9);
    const double at[3] = {0, 0, 0};
    make(acutBuildList(RTDXF0, L"TEXT", 10, at, 40, 2.0, 1, L"ABCDE", 0));
    host::db::Box text = host::db::entityExtents(db(), lastIndex());
    EXPECT_NEAR(text.maxX, 5 * 2.0 * 0.8, 1e-9) << "five characters of 0.8 times the height";
    EXPECT_NEAR(text.maxY, 2.0, 1e-9);
}

TEST_F(ExtentsAndShapes, OldStylePolylinesAndInsertsAreSelectedByTheirGeometry) {
    const double a[3] = {0, 0, 0}, b[3] = {10, 0, 0}, c[3] = {10, 10, 0};
    make(acutBuildList(RTDXF0, L"POLYLINE", 66, 1, 70, 0, 0));
    make(acutBuildList(RTDXF0, L"VERTEX", 10, a, 0));
    make(acutBuildList(RTDXF0, L"VERTEX", 10, b, 42, 1.0, 0));  // half circle round (10,5) to the right
    make(acutBuildList(RTDXF0, L"VERTEX", 10, c, 0));
    make(acutBuildList(RTDXF0, L"SEQEND", 0));
    host::db::Shape s = host::db::shapeOf(db(), lastIndex());
    EXPECT_EQ(s.segments.size(), 1u);
    ASSERT_EQ(s.arcs.size(), 1u);
    EXPECT_NEAR(s.arcs[0].c.x, 10.0, 1e-12);
    EXPECT_NEAR(s.arcs[0].c.y, 5.0, 1e-12);
    EXPECT_NEAR(host::db::extentsOf(s).maxX, 15.0, 1e-12);
    // A window reaching x = 14 misses the arc's outermost point (15,5).
    const double w1[3] = {-1, -1, 0}, w2[3] = {14, 11, 0}, w3[3] = {16, 11, 0};
    ads_name ss;
    EXPECT_EQ(acedSSGet(L"W", w1, w2, nullptr, ss), RTERROR);
    ASSERT_EQ(acedSSGet(L"W", w1, w3, nullptr, ss), RTNORM);
    acedSSFree(ss);
}

}  // namespace
}  // namespace dbtest
