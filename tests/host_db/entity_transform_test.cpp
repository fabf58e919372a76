// Moving, rotating, scaling and mirroring entity lists, and the offsets of lines and
// circles: expected values worked out by hand from the geometry (where a point goes, which
// way an arc runs afterwards), not from the code's formulas.
#include <cmath>

#include "host/commands/entity_transform.h"
#include "host/commands/offset_geometry.h"
#include "tests/host_db/db_fixture.h"

namespace dbtest {
namespace {

using host::RbPtr;
using host::cmd::Transform;

constexpr double kPi = 3.14159265358979323846;
const double kOrigin[3] = {0, 0, 0};
const double kUp[3] = {0, 1, 0};     // with the origin: the Y axis as mirror line
const double kRight[3] = {1, 0, 0};  // with the origin: the X axis

class EntityTransform : public DrawingTest {
protected:
    // Transforms one list (and its parts), expecting the kind to be known.
    static void apply(const std::vector<resbuf*>& lists, const Transform& t, bool mirrorText = false) {
        std::vector<resbuf*> l = lists;
        ASSERT_TRUE(host::cmd::transformEntity(l, t, mirrorText));
    }
    static void expectPoint(const resbuf* rb, double x, double y, double z = 0.0) {
        ASSERT_NE(rb, nullptr);
        EXPECT_NEAR(rb->resval.rpoint[0], x, 1e-9);
        EXPECT_NEAR(rb->resval.rpoint[1], y, 1e-9);
        EXPECT_NEAR(rb->resval.rpoint[2], z, 1e-9);
    }
    // Angles compared round the circle: 2 pi is 0.
    static void expectAngle(const resbuf* rb, double radians) {
        ASSERT_NE(rb, nullptr);
        double d = std::fmod(rb->resval.rreal - radians + 4 * kPi, 2 * kPi);
        EXPECT_NEAR(std::fmin(d, 2 * kPi - d), 0.0, 1e-9) << rb->resval.rreal << " against " << radians;
    }
    static double real(const resbuf* list, int code) { return find(list, code)->resval.rreal; }
};

TEST_F(EntityTransform, ArcsTurnWithTheirAnglesAndRunBackwardsWhenMirrored) {
    const double c[3] = {10, 0, 0};
    // A quarter arc from (15,0) counter-clockwise to (10,5).
    RbPtr arc(acutBuildList(RTDXF0, L"ARC", 10, c, 40, 5.0, 50, 0.0, 51, kPi / 2, 0));
    apply({arc.get()}, Transform::rotation(kOrigin, kPi / 2));
    // Turned a quarter about the origin: centre (0,10), ends (0,15) and (-5,10).
    expectPoint(find(arc.get(), 10), 0, 10);
    expectAngle(find(arc.get(), 50), kPi / 2);
    expectAngle(find(arc.get(), 51), kPi);

    RbPtr other(acutBuildList(RTDXF0, L"ARC", 10, c, 40, 5.0, 50, 0.0, 51, kPi / 2, 0));
    apply({other.get()}, Transform::mirror(kOrigin, kUp));
    // In the Y axis: (15,0) goes to (-15,0), at 180 degrees from the centre (-10,0), and
    // (10,5) to (-10,5), at 90 degrees. Counter-clockwise the arc now runs from 90 to 180.
    expectPoint(find(other.get(), 10), -10, 0);
    EXPECT_DOUBLE_EQ(real(other.get(), 40), 5.0);
    expectAngle(find(other.get(), 50), kPi / 2);
    expectAngle(find(other.get(), 51), kPi);
}

TEST_F(EntityTransform, ArcOfDownwardExtrusionTurnsInItsOwnCoordinates) {
    // Extrusion (0,0,-1): own X is world -X, own Y world Y. Centre (10,0) is world (-10,0); the
    // ends at own angles 0 and 90 are world directions 180 and 90 degrees.
    const double c[3] = {10, 0, 0}, down[3] = {0, 0, -1};
    RbPtr arc(acutBuildList(RTDXF0, L"ARC", 10, c, 40, 2.0, 50, 0.0, 51, kPi / 2, 210, down, 0));
    apply({arc.get()}, Transform::rotation(kOrigin, kPi / 2));
    // Turned a quarter: world centre (0,-10), own (0,-10); the world directions 270 and 180
    // degrees are own directions 270 and 0.
    expectPoint(find(arc.get(), 10), 0, -10);
    expectAngle(find(arc.get(), 50), 3 * kPi / 2);
    expectAngle(find(arc.get(), 51), 0);
    expectPoint(find(arc.get(), 210), 0, 0, -1);
}

TEST_F(EntityTransform, MirrorTurnsBulgesAndKeepsWidths) {
    const double a[3] = {0, 0, 0}, b[3] = {10, 0, 0};
    // Bulge 1 from (0,0) to (10,0): the half circle counter-clockwise, through (5,-5).
    RbPtr pl(acutBuildList(RTDXF0, L"LWPOLYLINE", 90, 2, 70, 0, 43, 0.5, 10, a, 42, 1.0, 10, b, 42, 0.0, 0));
    apply({pl.get()}, Transform::mirror(kOrigin, kRight));
    // Mirrored in the X axis it passes through (5,5): clockwise from (0,0) to (10,0).
    expectPoint(find(pl.get(), 10), 0, 0);
    expectPoint(find(pl.get(), 10, 1), 10, 0);
    EXPECT_DOUBLE_EQ(real(pl.get(), 42), -1.0);
    EXPECT_DOUBLE_EQ(real(pl.get(), 43), 0.5);

    const double v0[3] = {0, 0, 0}, v1[3] = {4, 0, 0};
    RbPtr head(acutBuildList(RTDXF0, L"POLYLINE", 66, 1, 10, kOrigin, 70, 0, 0));
    RbPtr first(acutBuildList(RTDXF0, L"VERTEX", 10, v0, 42, 0.5, 0));
    RbPtr second(acutBuildList(RTDXF0, L"VERTEX", 10, v1, 42, 0.0, 0));
    apply({head.get(), first.get(), second.get()}, Transform::mirror(kOrigin, kUp));
    expectPoint(find(second.get(), 10), -4, 0);
    EXPECT_DOUBLE_EQ(real(first.get(), 42), -0.5);
}

TEST_F(EntityTransform, TextTurnsWithItsRotationAndMirrorsReadableOrBackwards) {
    const double at[3] = {10, 0, 0};
    RbPtr t(acutBuildList(RTDXF0, L"TEXT", 10, at, 40, 2.5, 1, L"ABC", 50, 0.0, 0));
    apply({t.get()}, Transform::rotation(kOrigin, kPi / 2));
    expectPoint(find(t.get(), 10), 0, 10);
    expectAngle(find(t.get(), 50), kPi / 2);

    // MIRRTEXT 0: the place is mirrored, the text still reads left to right.
    RbPtr readable(acutBuildList(RTDXF0, L"TEXT", 10, at, 40, 2.5, 1, L"ABC", 50, 0.0, 0));
    apply({readable.get()}, Transform::mirror(kOrigin, kUp), false);
    expectPoint(find(readable.get(), 10), -10, 0);
    expectAngle(find(readable.get(), 50), 0);
    const resbuf* flags = find(readable.get(), 71);
    EXPECT_TRUE(!flags || (flags->resval.rint & 2) == 0);

    RbPtr below(acutBuildList(RTDXF0, L"TEXT", 10, at, 40, 2.5, 1, L"ABC", 50, 0.0, 0));
    apply({below.get()}, Transform::mirror(kOrigin, kRight), false);
    expectPoint(find(below.get(), 10), 10, 0);
    expectAngle(find(below.get(), 50), 0);

    // MIRRTEXT 1: a mirror image, written backwards.
    RbPtr mirrored(acutBuildList(RTDXF0, L"TEXT", 10, at, 40, 2.5, 1, L"ABC", 50, 0.0, 0));
    apply({mirrored.get()}, Transform::mirror(kOrigin, kUp), true);
    expectPoint(find(mirrored.get(), 10), -10, 0);
    expectAngle(find(mirrored.get(), 50), 0);
    ASSERT_NE(find(mirrored.get(), 71), nullptr);
    EXPECT_EQ(find(mirrored.get(), 71)->resval.rint & 2, 2);
}

TEST_F(EntityTransform, MultilineTextGetsADirectionWhenTurnedAndStaysReadableWhenMirrored) {
    const double at[3] = {10, 5, 0};
    RbPtr turned(acutBuildList(RTDXF0, L"MTEXT", 10, at, 40, 2.0, 1, L"Hello", 0));
    apply({turned.get()}, Transform::rotation(kOrigin, kPi / 2));
    expectPoint(find(turned.get(), 10), -5, 10);
    expectPoint(find(turned.get(), 11), 0, 1);  // world X turned a quarter

    RbPtr mirrored(acutBuildList(RTDXF0, L"MTEXT", 10, at, 40, 2.0, 1, L"Hello", 0));
    apply({mirrored.get()}, Transform::mirror(kOrigin, kUp));
    expectPoint(find(mirrored.get(), 10), -10, 5);
    const resbuf* direction = find(mirrored.get(), 11);
    if (direction) expectPoint(direction, 1, 0);  // still reads left to right
}

TEST_F(EntityTransform, ScaleMultipliesRadiiHeightsAndWidths) {
    const double c[3] = {10, 10, 0}, base[3] = {0, 0, 0}, at[3] = {4, 2, 0};
    RbPtr circle(acutBuildList(RTDXF0, L"CIRCLE", 10, c, 40, 5.0, 0));
    RbPtr text(acutBuildList(RTDXF0, L"TEXT", 10, at, 40, 2.5, 1, L"X", 0));
    RbPtr donut(acutBuildList(RTDXF0, L"LWPOLYLINE", 90, 2, 70, 1, 43, 3.0, 10, c, 42, 1.0, 10, at, 42, 1.0, 0));
    Transform t = Transform::scaling(base, 2.0);
    apply({circle.get()}, t);
    apply({text.get()}, t);
    apply({donut.get()}, t);
    expectPoint(find(circle.get(), 10), 20, 20);
    EXPECT_DOUBLE_EQ(real(circle.get(), 40), 10.0);
    expectPoint(find(text.get(), 10), 8, 4);
    EXPECT_DOUBLE_EQ(real(text.get(), 40), 5.0);
    EXPECT_DOUBLE_EQ(real(donut.get(), 43), 6.0);
    EXPECT_DOUBLE_EQ(real(donut.get(), 42), 1.0) << "a scale keeps the sense of arcs";
}

TEST_F(EntityTransform, MirroredBlockReferenceNegatesItsXScaleAndKeepsItsAttributesReadable) {
    const double at[3] = {10, 0, 0}, tag[3] = {12, 1, 0};
    RbPtr ref(acutBuildList(RTDXF0, L"INSERT", 66, 1, 2, L"B", 10, at, 41, 1.0, 42, 1.0, 43, 1.0, 50, 0.0, 0));
    RbPtr attrib(acutBuildList(RTDXF0, L"ATTRIB", 10, tag, 40, 2.0, 1, L"V", 2, L"T", 50, 0.0, 0));
    RbPtr end(acutBuildList(RTDXF0, L"SEQEND", 0));
    apply({ref.get(), attrib.get(), end.get()}, Transform::mirror(kOrigin, kUp));
    // The block's point (1,0) was at (11,0) and must be at (-11,0); its (0,1) at (-10,1):
    // from (-10,0) that is X scale -1 and no turn.
    expectPoint(find(ref.get(), 10), -10, 0);
    EXPECT_DOUBLE_EQ(real(ref.get(), 41), -1.0);
    EXPECT_DOUBLE_EQ(real(ref.get(), 42), 1.0);
    expectAngle(find(ref.get(), 50), 0);
    expectPoint(find(attrib.get(), 10), -12, 1);
    expectAngle(find(attrib.get(), 50), 0);
}

// A block reference's map: from the base point (0,0), X three times, a quarter turn, to
// (10,20). Block X goes to world Y three long, block Y to world -X one long.
TEST_F(EntityTransform, BlockPlacementStretchesTextsAcrossOrAlongTheirBaseline) {
    const double base[3] = {0, 0, 0}, at[3] = {10, 20, 0}, scale[3] = {3, 1, 1}, p[3] = {1, 1, 0};
    const Transform t = Transform::placing(base, at, scale, kPi / 2);
    EXPECT_FALSE(t.similarInPlan());
    // A text along block X: its baseline grows three times, its height not.
    RbPtr along(acutBuildList(RTDXF0, L"TEXT", 10, p, 40, 2.0, 1, L"A", 0));
    apply({along.get()}, t);
    expectPoint(find(along.get(), 10), 9, 23);  // (1,1) -> (3,1) -> turned (-1,3) -> moved
    expectAngle(find(along.get(), 50), kPi / 2);
    EXPECT_NEAR(real(along.get(), 40), 2.0, 1e-12);
    EXPECT_NEAR(real(along.get(), 41), 3.0, 1e-12) << "three times as wide";
    // A text along block Y: now its height is what grows, and its glyphs get narrower.
    RbPtr across(acutBuildList(RTDXF0, L"ATTDEF", 10, p, 40, 2.0, 41, 0.9, 50, kPi / 2, 1, L"B", 2, L"T", 0));
    apply({across.get()}, t);
    expectAngle(find(across.get(), 50), kPi);
    EXPECT_NEAR(real(across.get(), 40), 6.0, 1e-12);
    EXPECT_NEAR(real(across.get(), 41), 0.3, 1e-12);
    // A circle would become an ellipse: refused, and left as it was.
    const double c[3] = {2, 0, 0};
    RbPtr circle(acutBuildList(RTDXF0, L"CIRCLE", 10, c, 40, 1.0, 0));
    std::vector<resbuf*> lists = {circle.get()};
    EXPECT_FALSE(host::cmd::transformEntity(lists, t, false));
    expectPoint(find(circle.get(), 10), 2, 0);
    EXPECT_DOUBLE_EQ(real(circle.get(), 40), 1.0);
}

TEST_F(EntityTransform, MirroredBlockPlacementMirrorsArcsAndTextsAndScalesThicknessByZ) {
    const double base[3] = {0, 0, 0}, scale[3] = {-2, 2, 5};
    const Transform t = Transform::placing(base, base, scale, 0.0);
    EXPECT_TRUE(t.similarInPlan()) << "X and Y change alike, one of them reversed";
    EXPECT_TRUE(t.reflects());
    // A quarter arc about (10,0) from 0 to 90 degrees, 1 thick: centre (-20,0), radius 10;
    // its ends (15,0) and (10,5) go to (-30,0) and (-20,10), at 180 and 90 degrees.
    const double c[3] = {10, 0, 0}, at[3] = {1, 0, 0};
    RbPtr arc(acutBuildList(RTDXF0, L"ARC", 10, c, 39, 1.0, 40, 5.0, 50, 0.0, 51, kPi / 2, 0));
    apply({arc.get()}, t);
    expectPoint(find(arc.get(), 10), -20, 0);
    EXPECT_DOUBLE_EQ(real(arc.get(), 40), 10.0);
    EXPECT_DOUBLE_EQ(real(arc.get(), 39), 5.0);
    expectAngle(find(arc.get(), 50), kPi / 2);
    expectAngle(find(arc.get(), 51), kPi);
    EXPECT_EQ(find(arc.get(), 210), nullptr) << "still drawn from above: extrusion +Z";
    // Texts are part of the block's picture: mirrored, they are written backwards.
    RbPtr text(acutBuildList(RTDXF0, L"TEXT", 10, at, 40, 1.0, 1, L"A", 0));
    apply({text.get()}, t, true);
    expectPoint(find(text.get(), 10), -2, 0);
    EXPECT_DOUBLE_EQ(real(text.get(), 40), 2.0);
    EXPECT_EQ(find(text.get(), 71)->resval.rint & 2, 2);
}

TEST_F(EntityTransform, KindsWithoutKnownGeometryAreLeftAlone) {
    const double p[3] = {1, 2, 0};
    RbPtr dim(acutBuildList(RTDXF0, L"DIMENSION", 10, p, 0));
    std::vector<resbuf*> lists = {dim.get()};
    const double d[3] = {5, 5, 0};
    EXPECT_FALSE(host::cmd::transformEntity(lists, Transform::translation(d), false));
    expectPoint(find(dim.get(), 10), 1, 2);
}

TEST(OffsetGeometry, LinesMoveSidewaysByTheDistance) {
    const double a[2] = {0, 0}, b[2] = {10, 0}, above[2] = {5, 1}, below[2] = {5, -1};
    double na[2], nb[2];
    ASSERT_TRUE(host::cmd::offsetLine(a, b, 3, above, na, nb));
    EXPECT_NEAR(na[1], 3, 1e-12);
    EXPECT_NEAR(nb[0], 10, 1e-12);
    ASSERT_TRUE(host::cmd::offsetLine(a, b, 3, below, na, nb));
    EXPECT_NEAR(nb[1], -3, 1e-12);
    // The 3-4-5 line: its left normal is (-4,3)/5, five units of it are (-4,3).
    const double c[2] = {3, 4}, left[2] = {-1, 1};
    ASSERT_TRUE(host::cmd::offsetLine(a, c, 5, left, na, nb));
    EXPECT_NEAR(na[0], -4, 1e-12);
    EXPECT_NEAR(na[1], 3, 1e-12);
    EXPECT_NEAR(nb[0], -1, 1e-12);
    EXPECT_NEAR(nb[1], 7, 1e-12);
    int side;
    const double through[2] = {-4, 3};
    EXPECT_NEAR(host::cmd::distanceFromLine(a, c, through, side), 5, 1e-12);
    EXPECT_EQ(side, 1);
    EXPECT_FALSE(host::cmd::offsetLine(a, a, 1, left, na, nb)) << "a line of no length has no side";
}

TEST(OffsetGeometry, CirclesGrowOrShrinkAndNeverPastTheirCentre) {
    const double c[2] = {0, 0}, inside[2] = {1, 0}, outside[2] = {10, 0};
    double r;
    ASSERT_TRUE(host::cmd::offsetRadius(c, 5, 2, inside, r));
    EXPECT_DOUBLE_EQ(r, 3);
    ASSERT_TRUE(host::cmd::offsetRadius(c, 5, 2, outside, r));
    EXPECT_DOUBLE_EQ(r, 7);
    EXPECT_FALSE(host::cmd::offsetRadius(c, 5, 6, inside, r));
    EXPECT_FALSE(host::cmd::offsetRadius(c, 5, 5, inside, r)) << "a circle of radius 0 is no circle";
    bool in;
    const double p[2] = {6, 8};  // 10 from the centre
    EXPECT_DOUBLE_EQ(host::cmd::distanceFromCircle(c, 4, p, in), 6);
    EXPECT_FALSE(in);
}

}  // namespace
}  // namespace dbtest
