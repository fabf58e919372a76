// The drawing commands CIRCLE, ARC, PLINE, INSERT, EXPLODE and PURGE as a module issues
// them, checked on the entities they leave against values worked out by hand: circles
// and arcs through known points of one circle, tangent arcs of a polyline, attributes of a
// scaled and turned block, the pieces of an exploded polyline, and what PURGE keeps.
#include <cmath>

#include "host/commands/arc_geometry.h"
#include "host/commands/command_support.h"
#include "tests/host_db/db_fixture.h"

namespace dbtest {
namespace {

using host::RbPtr;

constexpr double kPi = 3.14159265358979323846;

class DrawingCommands : public DrawingTest {
protected:
    const double* point(const resbuf* list, int code, int occurrence = 0) {
        const resbuf* g = find(list, code, occurrence);
        return g ? g->resval.rpoint : kNowhere;
    }
    double real(const resbuf* list, int code, int occurrence = 0) {
        const resbuf* g = find(list, code, occurrence);
        return g ? g->resval.rreal : std::nan("");
    }
    void make(resbuf* list) {
        RbPtr owned(list);
        ASSERT_EQ(acdbEntMake(list), RTNORM);
    }
    // A block TAG with its base at (10,0): a line from the base to (14,0) and an attribute
    // definition at (12,1), 2.5 high, prompting "Number" with the default "1".
    void makeTagBlock() {
        const double base[3] = {10, 0, 0}, end[3] = {14, 0, 0}, at[3] = {12, 1, 0};
        make(acutBuildList(RTDXF0, L"BLOCK", 2, L"TAG", 70, 2, 10, base, 0));
        make(acutBuildList(RTDXF0, L"LINE", 8, L"0", 10, base, 11, end, 0));
        make(acutBuildList(RTDXF0, L"ATTDEF", 8, L"0", 10, at, 40, 2.5, 1, L"1", 2, L"NO", 3, L"Number", 70, 0, 0));
        make(acutBuildList(RTDXF0, L"ENDBLK", 0));
    }
    bool layerExists(const wchar_t* name) { return RbPtr(acdbTblSearch(L"LAYER", name, 0)) != nullptr; }
    bool blockExists(const wchar_t* name) { return RbPtr(acdbTblSearch(L"BLOCK", name, 0)) != nullptr; }
    bool said(const wchar_t* text) { return printed().find(text) != std::wstring::npos; }

    static constexpr double kNowhere[3] = {NAN, NAN, NAN};
};

// Three points of the circle about (3,-2) of radius 5: at 0, about 53 and 180 degrees.
const double kAt0[3] = {8, -2, 0}, kAt53[3] = {6, 2, 0}, kAt180[3] = {-2, -2, 0};

TEST_F(DrawingCommands, ArcThroughThreePointsHasTheCircumcentreEitherWayRound) {
    host::cmd::Arc2 a;
    ASSERT_TRUE(host::cmd::arcThrough(kAt0, kAt53, kAt180, a));
    EXPECT_NEAR(a.centre[0], 3.0, 1e-12);
    EXPECT_NEAR(a.centre[1], -2.0, 1e-12);
    EXPECT_NEAR(a.radius, 5.0, 1e-12);
    const double collinear[2] = {16, -2};
    EXPECT_FALSE(host::cmd::arcThrough(kAt0, kAt180, collinear, a));

    ASSERT_EQ(acedCommand(RTSTR, L"ARC", RTPOINT, kAt0, RTPOINT, kAt53, RTPOINT, kAt180, 0), RTNORM);
    // Given clockwise, the same half circle is stored counter-clockwise from 0 to 180.
    ASSERT_EQ(acedCommand(RTSTR, L"ARC", RTPOINT, kAt180, RTPOINT, kAt53, RTPOINT, kAt0, 0), RTNORM);
    auto arcs = all(L"ARC");
    ASSERT_EQ(arcs.size(), 2u);
    for (const auto& arc : arcs) {
        EXPECT_NEAR(point(arc.get(), 10)[0], 3.0, 1e-12);
        EXPECT_NEAR(point(arc.get(), 10)[1], -2.0, 1e-12);
        EXPECT_NEAR(real(arc.get(), 40), 5.0, 1e-12);
        EXPECT_NEAR(real(arc.get(), 50), 0.0, 1e-12);
        EXPECT_NEAR(real(arc.get(), 51), kPi, 1e-12);
    }
    // Points on one line draw nothing and fail the command.
    const double onLine[3] = {20, -2, 0};
    EXPECT_EQ(acedCommand(RTSTR, L"ARC", RTPOINT, kAt0, RTPOINT, kAt180, RTPOINT, onLine, 0), RTERROR);
    EXPECT_EQ(all(L"ARC").size(), 2u);
}

TEST_F(DrawingCommands, ArcByCentreWithAngleChordAndEndPointsWithRadius) {
    const double centre[3] = {3, -2, 0}, at90[3] = {3, 3, 0};
    // A quarter: by the included angle, by its chord 5 * sqrt(2), and by the end's direction.
    ASSERT_EQ(acedCommand(RTSTR, L"ARC", RTPOINT, kAt0, RTSTR, L"C", RTPOINT, centre, RTSTR, L"A", RTREAL, 90.0, 0),
              RTNORM);
    ASSERT_EQ(acedCommand(RTSTR, L"ARC", RTSTR, L"_C", RTPOINT, centre, RTPOINT, kAt0, RTSTR, L"L", RTREAL,
                          5 * std::sqrt(2.0), 0),
              RTNORM);
    ASSERT_EQ(acedCommand(RTSTR, L"ARC", RTPOINT, kAt0, RTSTR, L"E", RTPOINT, at90, RTSTR, L"R", RTREAL, 5.0, 0),
              RTNORM);
    // Clockwise by a negative angle: from 0 down to -90, stored from 270 to 0.
    ASSERT_EQ(acedCommand(RTSTR, L"ARC", RTPOINT, kAt0, RTSTR, L"C", RTPOINT, centre, RTSTR, L"A", RTREAL, -90.0, 0),
              RTNORM);
    auto arcs = all(L"ARC");
    ASSERT_EQ(arcs.size(), 4u);
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(point(arcs[i].get(), 10)[0], 3.0, 1e-9) << i;
        EXPECT_NEAR(point(arcs[i].get(), 10)[1], -2.0, 1e-9) << i;
        EXPECT_NEAR(real(arcs[i].get(), 40), 5.0, 1e-9) << i;
        EXPECT_NEAR(real(arcs[i].get(), 50), 0.0, 1e-9) << i;
        EXPECT_NEAR(real(arcs[i].get(), 51), kPi / 2, 1e-9) << i;
    }
    EXPECT_NEAR(real(arcs[3].get(), 50), 3 * kPi / 2, 1e-9);
    EXPECT_NEAR(real(arcs[3].get(), 51), 0.0, 1e-9);
    // An unknown option asks again; a chord longer than the diameter fits no arc.
    EXPECT_EQ(acedCommand(RTSTR, L"ARC", RTPOINT, kAt0, RTSTR, L"C", RTPOINT, centre, RTSTR, L"Q", RTSTR, L"L",
                          RTREAL, 11.0, 0),
              RTERROR);
    EXPECT_TRUE(said(L"Point or option keyword required."));
    EXPECT_EQ(all(L"ARC").size(), 4u);
}

TEST_F(DrawingCommands, CircleByRadiusDiameterTwoAndThreePoints) {
    const double centre[3] = {3, -2, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"CIRCLE", RTPOINT, centre, RTREAL, 5.0, 0), RTNORM);
    ASSERT_EQ(acedCommand(RTSTR, L"CIRCLE", RTPOINT, centre, RTSTR, L"D", RTREAL, 10.0, 0), RTNORM);
    ASSERT_EQ(acedCommand(RTSTR, L"CIRCLE", RTSTR, L"2P", RTPOINT, kAt0, RTPOINT, kAt180, 0), RTNORM);
    ASSERT_EQ(acedCommand(RTSTR, L"CIRCLE", RTSTR, L"3P", RTPOINT, kAt0, RTPOINT, kAt53, RTPOINT, kAt180, 0), RTNORM);
    // A point for the radius: its distance; Enter: the radius of the last circle.
    ASSERT_EQ(acedCommand(RTSTR, L"CIRCLE", RTPOINT, centre, RTPOINT, kAt53, 0), RTNORM);
    ASSERT_EQ(acedCommand(RTSTR, L"CIRCLE", RTPOINT, centre, RTSTR, L"", 0), RTNORM);
    auto circles = all(L"CIRCLE");
    ASSERT_EQ(circles.size(), 6u);
    for (const auto& c : circles) {
        EXPECT_NEAR(point(c.get(), 10)[0], 3.0, 1e-12);
        EXPECT_NEAR(point(c.get(), 10)[1], -2.0, 1e-12);
        EXPECT_NEAR(real(c.get(), 40), 5.0, 1e-12);
    }
    EXPECT_EQ(acedCommand(RTSTR, L"CIRCLE", RTSTR, L"TTR", 0), RTERROR);
    EXPECT_EQ(acedCommand(RTSTR, L"CIRCLE", RTPOINT, centre, RTREAL, -1.0, RTREAL, 2.0, 0), RTNORM);
    EXPECT_TRUE(said(L"Value must be positive and nonzero."));
    EXPECT_EQ(real(all(L"CIRCLE").back().get(), 40), 2.0);
}

TEST_F(DrawingCommands, PolylineArcsAreTangentAndWidthsGoPerVertex) {
    // A line along X to (10,0), then arcs: the first leaves eastwards and ends at (20,10),
    // a quarter circle about (10,10) turning left; the next goes on to (10,20), another
    // quarter about the same centre. A quarter circle counter-clockwise has the bulge
    // tan(90/4 degrees). Back to lines, the last segment runs west to (0,20).
    const double p0[3] = {0, 0, 0}, p1[3] = {10, 0, 0}, p2[3] = {20, 10, 0}, p3[3] = {10, 20, 0},
                 p4[3] = {0, 20, 0}, extra[3] = {50, 50, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"PLINE", RTPOINT, p0, RTSTR, L"W", RTREAL, 2.0, RTREAL, 4.0, RTPOINT, p1, RTSTR,
                          L"A", RTPOINT, p2, RTPOINT, p3, RTSTR, L"L", RTPOINT, extra, RTSTR, L"U", RTPOINT, p4,
                          RTSTR, L"", 0),
              RTNORM);
    auto polylines = all(L"LWPOLYLINE");
    ASSERT_EQ(polylines.size(), 1u);
    const resbuf* pl = polylines[0].get();
    EXPECT_EQ(find(pl, 90)->resval.rlong, 5);
    EXPECT_EQ(find(pl, 70)->resval.rint & 1, 0);
    EXPECT_EQ(find(pl, 43), nullptr) << "widths differ: given per vertex";
    const double quarter = std::tan(kPi / 8);
    EXPECT_NEAR(real(pl, 42, 0), 0.0, 1e-12);
    EXPECT_NEAR(real(pl, 42, 1), quarter, 1e-12);
    EXPECT_NEAR(real(pl, 42, 2), quarter, 1e-12);
    EXPECT_NEAR(real(pl, 42, 3), 0.0, 1e-12);
    EXPECT_EQ(point(pl, 10, 4)[0], 0.0) << "Undo took back the segment to (50,50)";
    EXPECT_EQ(point(pl, 10, 4)[1], 20.0);
    EXPECT_EQ(real(pl, 40, 0), 2.0);
    EXPECT_EQ(real(pl, 41, 0), 4.0);
    EXPECT_EQ(real(pl, 40, 1), 4.0) << "the ending width stays for the next segments";
    EXPECT_EQ(real(pl, 41, 3), 4.0);

    // Turning right from eastwards to (20,-10): a clockwise quarter, bulge negative. CLose in
    // arc mode ends with an arc back to the start that leaves (20,-10) southwards, tangent to
    // the quarter: its centre lies level with (20,-10), at (7.5,-10), 12.5 from both ends.
    ASSERT_EQ(acedCommand(RTSTR, L"PLINE", RTPOINT, p0, RTSTR, L"H", RTREAL, 1.5, RTSTR, L"", RTPOINT, p1, RTSTR, L"A",
                          RTSTR, L"20,-10", RTSTR, L"CL", 0),
              RTNORM);
    polylines = all(L"LWPOLYLINE");
    ASSERT_EQ(polylines.size(), 2u);
    pl = polylines[1].get();
    EXPECT_EQ(find(pl, 70)->resval.rint & 1, 1);
    EXPECT_EQ(real(pl, 43), 3.0) << "half-width 1.5 everywhere: one constant width";
    EXPECT_NEAR(real(pl, 42, 1), -quarter, 1e-12);
    host::cmd::Arc2 closing;
    const double* from = point(pl, 10, 2);
    ASSERT_TRUE(host::cmd::bulgeArc(from, p0, real(pl, 42, 2), closing));
    EXPECT_NEAR(closing.centre[0], 7.5, 1e-9);
    EXPECT_NEAR(closing.centre[1], -10.0, 1e-9);
    EXPECT_NEAR(closing.radius, 12.5, 1e-9);
}

TEST_F(DrawingCommands, PolylineCloseUndoAndBadAnswers) {
    const double a[3] = {0, 0, 0}, b[3] = {10, 0, 0}, c[3] = {10, 10, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"PLINE", RTPOINT, a, RTPOINT, b, RTSTR, L"X", RTPOINT, c, RTSTR, L"C", 0), RTNORM);
    EXPECT_TRUE(said(L"Point or option keyword required."));
    auto polylines = all(L"LWPOLYLINE");
    ASSERT_EQ(polylines.size(), 1u);
    EXPECT_EQ(find(polylines[0].get(), 90)->resval.rlong, 3);
    EXPECT_EQ(find(polylines[0].get(), 70)->resval.rint & 1, 1);
    // Everything undone leaves a single point: no polyline.
    ASSERT_EQ(acedCommand(RTSTR, L"PLINE", RTPOINT, a, RTPOINT, b, RTSTR, L"U", RTSTR, L"U", RTSTR, L"", 0), RTNORM);
    EXPECT_TRUE(said(L"All segments already undone."));
    EXPECT_EQ(all(L"LWPOLYLINE").size(), 1u);
}

TEST_F(DrawingCommands, PolylineInAnR12DrawingIsOldStyleAndExplodesToo) {
    openDxf("  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n");
    // Eastwards to (10,0), then a half circle to (10,10): it leaves eastwards, so its
    // centre is (10,5), radius 5, counter-clockwise from 270 to 90 degrees.
    const double a[3] = {0, 0, 0}, b[3] = {10, 0, 0}, c[3] = {10, 10, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"PLINE", RTPOINT, a, RTPOINT, b, RTSTR, L"A", RTPOINT, c, RTSTR, L"", 0), RTNORM);
    ASSERT_EQ(all(L"LWPOLYLINE").size(), 0u);
    auto polylines = all(L"POLYLINE");
    ASSERT_EQ(polylines.size(), 1u);
    ads_name head, vertex;
    acdbNameSet(find(polylines[0].get(), -1)->resval.rlname, head);
    ASSERT_EQ(acdbEntNext(head, vertex), RTNORM);
    ASSERT_EQ(acdbEntNext(vertex, vertex), RTNORM);
    EXPECT_NEAR(real(get(vertex).get(), 42), 1.0, 1e-12) << "a half circle has the bulge 1";
    ASSERT_EQ(acedCommand(RTSTR, L"EXPLODE", RTENAME, head, RTSTR, L"", 0), RTNORM);
    EXPECT_EQ(all(L"POLYLINE").size(), 0u);
    EXPECT_EQ(all(L"LINE").size(), 1u);
    auto arcs = all(L"ARC");
    ASSERT_EQ(arcs.size(), 1u);
    EXPECT_NEAR(point(arcs[0].get(), 10)[1], 5.0, 1e-12);
    EXPECT_NEAR(real(arcs[0].get(), 40), 5.0, 1e-12);
    EXPECT_NEAR(real(arcs[0].get(), 50), 3 * kPi / 2, 1e-12);
    EXPECT_NEAR(real(arcs[0].get(), 51), kPi / 2, 1e-12);
}

TEST_F(DrawingCommands, InsertPlacesAttributesWithScaleAndRotation) {
    makeTagBlock();
    const double at[3] = {100, 50, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"INSERT", RTSTR, L"tag", RTPOINT, at, RTREAL, 2.0, RTSTR, L"", RTREAL, 90.0, RTSTR,
                          L"A-7", 0),
              RTNORM);
    EXPECT_TRUE(said(L"Number <1>: "));
    auto inserts = all(L"INSERT");
    ASSERT_EQ(inserts.size(), 1u);
    const resbuf* ins = inserts[0].get();
    EXPECT_EQ(text(find(ins, 2)), L"TAG");
    EXPECT_EQ(find(ins, 66)->resval.rint, 1);
    EXPECT_EQ(real(ins, 41), 2.0);
    EXPECT_EQ(real(ins, 42), 2.0) << "Enter: the X scale";
    EXPECT_NEAR(real(ins, 50), kPi / 2, 1e-12);
    ads_name insert, attribute, end;
    acdbNameSet(find(ins, -1)->resval.rlname, insert);
    ASSERT_EQ(acdbEntNext(insert, attribute), RTNORM);
    RbPtr att = get(attribute);
    EXPECT_EQ(text(find(att.get(), 0)), L"ATTRIB");
    EXPECT_EQ(text(find(att.get(), 1)), L"A-7");
    EXPECT_EQ(text(find(att.get(), 2)), L"NO");
    // (12,1) is (2,1) from the base; twice that is (4,2), turned a quarter (-2,4), at
    // (100,50): (98,54). The height doubles, the text turns with the block.
    EXPECT_NEAR(point(att.get(), 10)[0], 98.0, 1e-9);
    EXPECT_NEAR(point(att.get(), 10)[1], 54.0, 1e-9);
    EXPECT_NEAR(real(att.get(), 40), 5.0, 1e-12);
    EXPECT_NEAR(real(att.get(), 50), kPi / 2, 1e-12);
    ASSERT_EQ(acdbEntNext(attribute, end), RTNORM);
    EXPECT_EQ(text(find(get(end).get(), 0)), L"SEQEND");

    // ATTREQ 0: the default value, unasked; Y scale of its own.
    resbuf off{};
    off.restype = RTSHORT;
    off.resval.rint = 0;
    ASSERT_EQ(acedSetVar(L"ATTREQ", &off), RTNORM);
    const double at2[3] = {0, 0, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"INSERT", RTSTR, L"TAG", RTPOINT, at2, RTREAL, 1.0, RTREAL, 3.0, RTREAL, 0.0, 0),
              RTNORM);
    ads_name last, lastAttribute;
    acdbEntLast(last);
    ASSERT_EQ(acdbEntNext(last, lastAttribute), RTNORM);
    RbPtr defaulted = get(lastAttribute);
    EXPECT_EQ(text(find(defaulted.get(), 1)), L"1");
    EXPECT_NEAR(point(defaulted.get(), 10)[1], 3.0, 1e-12) << "1 above the base, three times";

    EXPECT_EQ(acedCommand(RTSTR, L"INSERT", RTSTR, L"NOSUCH", RTPOINT, at2, 0), RTERROR);
    EXPECT_TRUE(said(L"Block \"NOSUCH\" not found."));
    EXPECT_EQ(all(L"INSERT").size(), 2u);
}

TEST_F(DrawingCommands, ExplodePolylineGivesLinesAndArcs) {
    // A semicircle from (10,0) to (10,10) counter-clockwise (bulge 1) about (10,5): from
    // 270 degrees round through (15,5) to 90. The widths are lost.
    const double a[3] = {0, 0, 0}, b[3] = {10, 0, 0}, c[3] = {10, 10, 0};
    make(acutBuildList(RTDXF0, L"LWPOLYLINE", 8, L"DUCT", 90, 3, 70, 0, 10, a, 40, 1.0, 41, 1.0, 42, 0.0, 10, b, 40,
                       1.0, 41, 1.0, 42, 1.0, 10, c, 40, 1.0, 41, 1.0, 42, 0.0, 0));
    ads_name pl;
    last(pl);
    ASSERT_EQ(acedCommand(RTSTR, L"EXPLODE", RTENAME, pl, RTSTR, L"", 0), RTNORM);
    EXPECT_EQ(all(L"LWPOLYLINE").size(), 0u);
    auto lines = all(L"LINE");
    auto arcs = all(L"ARC");
    ASSERT_EQ(lines.size(), 1u);
    ASSERT_EQ(arcs.size(), 1u);
    EXPECT_EQ(point(lines[0].get(), 11)[0], 10.0);
    EXPECT_EQ(text(find(lines[0].get(), 8)), L"DUCT");
    const resbuf* arc = arcs[0].get();
    EXPECT_NEAR(point(arc, 10)[0], 10.0, 1e-12);
    EXPECT_NEAR(point(arc, 10)[1], 5.0, 1e-12);
    EXPECT_NEAR(real(arc, 40), 5.0, 1e-12);
    EXPECT_NEAR(real(arc, 50), 3 * kPi / 2, 1e-12);
    EXPECT_NEAR(real(arc, 51), kPi / 2, 1e-12);
    EXPECT_EQ(text(find(arc, 8)), L"DUCT");
    // Nothing left to explode: the command fails.
    EXPECT_EQ(acedCommand(RTSTR, L"EXPLODE", RTENAME, arcs[0].get()->resval.rlname, RTSTR, L"", 0), RTERROR);
    EXPECT_TRUE(said(L"1 was not able to be exploded."));
}

TEST_F(DrawingCommands, ExplodeInsertBringsBackTheDefinitionsPlaced) {
    makeTagBlock();
    const double at[3] = {100, 50, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"INSERT", RTSTR, L"TAG", RTPOINT, at, RTREAL, 2.0, RTSTR, L"", RTREAL, 90.0, RTSTR,
                          L"A-7", 0),
              RTNORM);
    ads_name ins;
    last(ins);
    ASSERT_EQ(acedCommand(RTSTR, L"EXPLODE", RTENAME, ins, RTSTR, L"", 0), RTNORM);
    EXPECT_EQ(all(L"INSERT").size(), 0u);
    EXPECT_EQ(all(L"ATTRIB").size(), 0u);
    auto lines = all(L"LINE");
    auto defs = all(L"ATTDEF");
    ASSERT_EQ(lines.size(), 1u);
    ASSERT_EQ(defs.size(), 1u);
    // The line (10,0)-(14,0) runs from the base: from (100,50) up 8.
    EXPECT_NEAR(point(lines[0].get(), 10)[0], 100.0, 1e-9);
    EXPECT_NEAR(point(lines[0].get(), 11)[0], 100.0, 1e-9);
    EXPECT_NEAR(point(lines[0].get(), 11)[1], 58.0, 1e-9);
    EXPECT_EQ(text(find(defs[0].get(), 2)), L"NO");
    EXPECT_EQ(text(find(defs[0].get(), 1)), L"1") << "the definition's default, not the value given";
    EXPECT_NEAR(point(defs[0].get(), 10)[0], 98.0, 1e-9);

    // "*TAG" inserts the block's entities themselves: nothing asked for its attribute.
    const double origin[3] = {0, 0, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"INSERT", RTSTR, L"*TAG", RTPOINT, origin, RTREAL, 1.0, RTSTR, L"", RTREAL, 0.0, 0),
              RTNORM);
    EXPECT_EQ(all(L"INSERT").size(), 0u);
    defs = all(L"ATTDEF");
    ASSERT_EQ(defs.size(), 2u);
    EXPECT_NEAR(point(defs[1].get(), 10)[0], 2.0, 1e-12) << "(12,1) from the base (10,0)";
    EXPECT_NEAR(point(defs[1].get(), 10)[1], 1.0, 1e-12);

    // Unequal scales are refused and the reference stays.
    ASSERT_EQ(acedCommand(RTSTR, L"INSERT", RTSTR, L"TAG", RTPOINT, at, RTREAL, 2.0, RTREAL, 1.0, RTREAL, 0.0, RTSTR,
                          L"", 0),
              RTNORM);
    last(ins);
    EXPECT_EQ(acedCommand(RTSTR, L"EXPLODE", RTENAME, ins, RTSTR, L"", 0), RTERROR);
    EXPECT_TRUE(said(L"unequal X and Y scales"));
    EXPECT_EQ(all(L"INSERT").size(), 1u);
}

TEST_F(DrawingCommands, MirroredReferenceExplodesIntoTheMirrorImage) {
    makeTagBlock();
    const double origin[3] = {0, 0, 0};
    // X -1 alone makes Z -1 too: the block turned over about Y, which its attribute shows by
    // an extrusion of -Z. The attribute at (12,1), 2 right of and 1 above the base, shows 2
    // left in the world: at own X 2, since own X runs along world -X.
    ASSERT_EQ(acedCommand(RTSTR, L"INSERT", RTSTR, L"TAG", RTPOINT, origin, RTREAL, -1.0, RTREAL, 1.0, RTREAL, 0.0,
                          RTSTR, L"A-7", 0),
              RTNORM);
    ads_name ins, attribute;
    last(ins);
    ASSERT_EQ(acdbEntNext(ins, attribute), RTNORM);
    RbPtr turned = get(attribute);
    ASSERT_NE(find(turned.get(), 210), nullptr);
    EXPECT_NEAR(point(turned.get(), 210)[2], -1.0, 1e-12);
    EXPECT_NEAR(point(turned.get(), 10)[0], 2.0, 1e-12);
    EXPECT_NEAR(point(turned.get(), 10)[1], 1.0, 1e-12);
    ASSERT_EQ(acdbEntDel(ins), RTNORM);

    // Mirrored in plan (Z 1): the attribute shows 2 left, written backwards.
    ASSERT_EQ(acedCommand(RTSTR, L"INSERT", RTSTR, L"TAG", RTPOINT, origin, RTSTR, L"XYZ", RTREAL, -1.0, RTREAL, 1.0,
                          RTREAL, 1.0, RTREAL, 0.0, RTSTR, L"A-7", 0),
              RTNORM);
    last(ins);
    ASSERT_EQ(acdbEntNext(ins, attribute), RTNORM);
    RbPtr att = get(attribute);
    EXPECT_EQ(find(att.get(), 210), nullptr);
    EXPECT_NEAR(point(att.get(), 10)[0], -2.0, 1e-12);
    EXPECT_NEAR(point(att.get(), 10)[1], 1.0, 1e-12);
    ASSERT_NE(find(att.get(), 71), nullptr);
    EXPECT_EQ(find(att.get(), 71)->resval.rint & 2, 2);
    ASSERT_EQ(acedCommand(RTSTR, L"EXPLODE", RTENAME, ins, RTSTR, L"", 0), RTNORM);
    EXPECT_EQ(all(L"INSERT").size(), 0u);
    auto lines = all(L"LINE");
    auto defs = all(L"ATTDEF");
    ASSERT_EQ(lines.size(), 1u);
    ASSERT_EQ(defs.size(), 1u);
    EXPECT_NEAR(point(lines[0].get(), 10)[0], 0.0, 1e-12);
    EXPECT_NEAR(point(lines[0].get(), 11)[0], -4.0, 1e-12);
    EXPECT_NEAR(point(defs[0].get(), 10)[0], -2.0, 1e-12);
    EXPECT_NEAR(real(defs[0].get(), 40), 2.5, 1e-12);
    ASSERT_NE(find(defs[0].get(), 71), nullptr);
    EXPECT_EQ(find(defs[0].get(), 71)->resval.rint & 2, 2);
}

TEST_F(DrawingCommands, EntitiesAreMadeAllOrNone) {
    const double a[3] = {0, 0, 0}, b[3] = {1, 0, 0};
    make(acutBuildList(RTDXF0, L"CIRCLE", 10, a, 40, 1.0, 0));
    std::vector<RbPtr> lists;
    lists.emplace_back(acutBuildList(RTDXF0, L"LINE", 10, a, 11, b, 0));
    lists.emplace_back(acutBuildList(RTDXF0, L"LINE", 10, b, 11, a, 0));
    lists.emplace_back(acutBuildList(RTDXF0, L"ARC", 10, a, 0));  // no radius: cannot be made
    EXPECT_NE(host::cmd::makeAllOrNone(lists), RTNORM);
    EXPECT_EQ(all(L"LINE").size(), 0u) << "the lines made first are taken back";
    EXPECT_EQ(all(L"CIRCLE").size(), 1u) << "what was there stays";
    lists.pop_back();
    EXPECT_EQ(host::cmd::makeAllOrNone(lists), RTNORM);
    EXPECT_EQ(all(L"LINE").size(), 2u);
}

TEST_F(DrawingCommands, PurgeKeepsWhatIsReferencedAlsoInsideBlocks) {
    const double o[3] = {0, 0, 0}, x[3] = {1, 0, 0};
    for (const wchar_t* name : {L"USED", L"IN-BLOCK", L"LONE-ONLY", L"SPARE1", L"SPARE2", L"CURRENT"})
        ASSERT_EQ(acedCommand(RTSTR, L"LAYER", RTSTR, L"N", RTSTR, name, RTSTR, L"", 0), RTNORM);
    ASSERT_EQ(acedCommand(RTSTR, L"LAYER", RTSTR, L"S", RTSTR, L"CURRENT", RTSTR, L"", 0), RTNORM);
    makeLine(o, x, L"USED");
    // INNER (a line on IN-BLOCK) is inserted only inside OUTER, which model space inserts;
    // LONE (a line on LONE-ONLY) is inserted nowhere.
    make(acutBuildList(RTDXF0, L"BLOCK", 2, L"INNER", 70, 0, 10, o, 0));
    make(acutBuildList(RTDXF0, L"LINE", 8, L"IN-BLOCK", 10, o, 11, x, 0));
    make(acutBuildList(RTDXF0, L"ENDBLK", 0));
    make(acutBuildList(RTDXF0, L"BLOCK", 2, L"OUTER", 70, 0, 10, o, 0));
    make(acutBuildList(RTDXF0, L"INSERT", 8, L"0", 2, L"INNER", 10, o, 0));
    make(acutBuildList(RTDXF0, L"ENDBLK", 0));
    make(acutBuildList(RTDXF0, L"BLOCK", 2, L"LONE", 70, 0, 10, o, 0));
    make(acutBuildList(RTDXF0, L"LINE", 8, L"LONE-ONLY", 10, o, 11, x, 0));
    make(acutBuildList(RTDXF0, L"ENDBLK", 0));
    make(acutBuildList(RTDXF0, L"INSERT", 8, L"USED", 2, L"OUTER", 10, o, 0));

    // Verifying, SPARE1 is kept by its No and SPARE2 purged by its Yes.
    ASSERT_EQ(acedCommand(RTSTR, L"PURGE", RTSTR, L"LA", RTSTR, L"SPARE*", RTSTR, L"Y", RTSTR, L"N", RTSTR, L"Y", 0),
              RTNORM);
    EXPECT_TRUE(layerExists(L"SPARE1"));
    EXPECT_FALSE(layerExists(L"SPARE2"));
    EXPECT_TRUE(said(L"Deleting layer \"SPARE2\"."));
    EXPECT_TRUE(said(L"1 layer deleted."));

    ASSERT_EQ(acedCommand(RTSTR, L"PURGE", RTSTR, L"A", RTSTR, L"", RTSTR, L"N", 0), RTNORM);
    EXPECT_FALSE(blockExists(L"LONE"));
    EXPECT_TRUE(blockExists(L"INNER")) << "inserted inside OUTER";
    EXPECT_TRUE(blockExists(L"OUTER"));
    EXPECT_FALSE(layerExists(L"LONE-ONLY")) << "used only by the block purged before it";
    EXPECT_FALSE(layerExists(L"SPARE1"));
    for (const wchar_t* kept : {L"0", L"USED", L"IN-BLOCK", L"CURRENT"}) EXPECT_TRUE(layerExists(kept)) << kept;
    EXPECT_TRUE(said(L"Deleting block \"LONE\"."));
    EXPECT_TRUE(said(L"2 layers deleted."));

    // Nothing more to purge; a bad type asks again.
    ASSERT_EQ(acedCommand(RTSTR, L"PURGE", RTSTR, L"X", RTSTR, L"B", RTSTR, L"*", RTSTR, L"N", 0), RTNORM);
    EXPECT_TRUE(said(L"Invalid option keyword."));
    EXPECT_TRUE(said(L"No unreferenced blocks found."));
}

}  // namespace
}  // namespace dbtest
