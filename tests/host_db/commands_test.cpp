// The host commands as the module issues them through acedCommand, checked on the drawing
// they leave: layers, lines, texts, donuts, erasing, text styles, colours, changes and views.
#include <cmath>

#include "host/text.h"
#include "tests/host_db/db_fixture.h"

namespace dbtest {
namespace {

using host::RbPtr;

class Commands : public DrawingTest {
protected:
    RbPtr layer(const wchar_t* name) { return RbPtr(acdbTblSearch(L"LAYER", name, 0)); }
    std::wstring var(const wchar_t* name) {
        const host::SysVarValue* v = doc().sysvars().find(name);
        return v ? v->text : L"";
    }
    double realVar(const wchar_t* name) { return doc().sysvars().find(name)->real; }
    const double* pointVar(const wchar_t* name) { return doc().sysvars().find(name)->point; }
};

TEST_F(Commands, LayerMakeSetColourOnOff) {
    ASSERT_EQ(acedCommand(RTSTR, L"LAYER", RTSTR, L"M", RTSTR, L"_TBRE", RTSTR, L"C", RTSHORT, 1, RTSTR, L"_TBRE",
                          RTSTR, L"", 0),
              RTNORM);
    RbPtr made = layer(L"_TBRE");
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(find(made.get(), 62)->resval.rint, 1);
    EXPECT_EQ(var(L"CLAYER"), L"_TBRE") << "Make makes the layer current";
    ASSERT_EQ(acedCommand(RTSTR, L"_.layer", RTSTR, L"_Set", RTSTR, L"0", RTSTR, L"", 0), RTNORM);
    EXPECT_EQ(var(L"CLAYER"), L"0");
    ASSERT_EQ(acedCommand(RTSTR, L"LAYER", RTSTR, L"N", RTSTR, L"P01-AB,P02-AB", RTSTR, L"OFF", RTSTR, L"P0*",
                          RTSTR, L"C", RTSTR, L"red", RTSTR, L"P01-AB", RTSTR, L"", 0),
              RTNORM);
    EXPECT_EQ(find(layer(L"P01-AB").get(), 62)->resval.rint, -1) << "off keeps its colour negative";
    EXPECT_EQ(find(layer(L"P02-AB").get(), 62)->resval.rint, -7);
    ASSERT_EQ(acedCommand(RTSTR, L"LAYER", RTSTR, L"ON", RTSTR, L"P02-AB", RTSTR, L"C", RTSHORT, 240, RTSTR, L"",
                          RTSTR, L"", 0),
              RTNORM);
    EXPECT_EQ(find(layer(L"P02-AB").get(), 62)->resval.rint, 7);
    EXPECT_EQ(find(layer(L"0").get(), 62)->resval.rint, 240) << "Enter names the current layer";
    ASSERT_EQ(acedCommand(RTSTR, L"LAYER", RTSTR, L"S", RTSTR, L"NOSUCH", RTSTR, L"", 0), RTNORM);
    EXPECT_NE(printed().find(L"Cannot find layer \"NOSUCH\"."), std::wstring::npos);
    EXPECT_EQ(var(L"CLAYER"), L"0");
}

TEST_F(Commands, LineDrawsUntilEnterWithCurrentProperties) {
    const double a[3] = {0, 0, 0}, b[3] = {100, 0, 0}, c[3] = {100, 50, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"LAYER", RTSTR, L"M", RTSTR, L"DUCT", RTSTR, L"", RTSTR, L"COLOR", RTSHORT, 3, 0),
              RTNORM);
    ASSERT_EQ(acedCommand(RTSTR, L"LINE", RTPOINT, a, RT3DPOINT, b, RTSTR, L"100,50", RTSTR, L"", 0), RTNORM);
    auto lines = all(L"LINE");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(find(lines[1].get(), 10)->resval.rpoint[0], 100.0);
    EXPECT_EQ(find(lines[1].get(), 11)->resval.rpoint[1], 50.0);
    EXPECT_EQ(text(find(lines[0].get(), 8)), L"DUCT");
    EXPECT_EQ(find(lines[0].get(), 62)->resval.rint, 3);
    // Close draws back to the first point; Undo takes a line back.
    ASSERT_EQ(acedCommand(RTSTR, L"LINE", RTPOINT, a, RTPOINT, b, RTPOINT, c, RTSTR, L"U", RTPOINT, c, RTSTR, L"C", 0),
              RTNORM);
    lines = all(L"LINE");
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_EQ(find(lines[4].get(), 10)->resval.rpoint[1], 50.0);
    EXPECT_EQ(find(lines[4].get(), 11)->resval.rpoint[0], 0.0);
}

TEST_F(Commands, TextWithJustificationHeightAndRotation) {
    const double at[3] = {100, 200, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"TEXT", RTSTR, L"j", RTSTR, L"m", RTPOINT, at, RTREAL, 7.0, RTSHORT, 0, RTSTR,
                          L"?", 0),
              RTNORM);
    auto texts = all(L"TEXT");
    ASSERT_EQ(texts.size(), 1u);
    const resbuf* t = texts[0].get();
    EXPECT_EQ(text(find(t, 1)), L"?");
    EXPECT_EQ(find(t, 40)->resval.rreal, 7.0);
    EXPECT_EQ(find(t, 72)->resval.rint, 4);
    EXPECT_EQ(find(t, 11)->resval.rpoint[0], 100.0);
    EXPECT_EQ(realVar(L"TEXTSIZE"), 7.0);
    const double left[3] = {0, 0, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"TEXT", RTPOINT, left, RTSTR, L"", RTREAL, 90.0, RTSTR, L"送风管", RTSTR, L"二", RTSTR,
                          L"", 0),
              RTNORM);
    texts = all(L"TEXT");
    ASSERT_EQ(texts.size(), 3u);
    EXPECT_NEAR(find(texts[1].get(), 50)->resval.rreal, 1.5707963267948966, 1e-12);
    EXPECT_EQ(find(texts[1].get(), 40)->resval.rreal, 7.0) << "Enter keeps the height";
    EXPECT_EQ(find(texts[1].get(), 72), nullptr);
    // The second line sits below the first, across the rotated baseline: x grows.
    EXPECT_NEAR(find(texts[2].get(), 10)->resval.rpoint[0], 1.6667 * 7.0, 1e-9);
    EXPECT_EQ(text(find(texts[2].get(), 1)), L"二");
}

TEST_F(Commands, StyleAsksThreeQuestionsForShxFontsAndFixesTheHeight) {
    const double a[3] = {0, 0, 0}, b[3] = {10, 0, 0};
    // A LINE follows in the same call: every answer must be taken by STYLE.
    ASSERT_EQ(acedCommand(RTSTR, L"STYLE", RTSTR, L"STANDARD", RTSTR, L"SIMPLEX", RTREAL, 0.0, RTREAL, 0.7, RTREAL, 0.0,
                          RTSTR, L"N", RTSTR, L"N", RTSTR, L"N", RTSTR, L"LINE", RTPOINT, a, RTPOINT, b, RTSTR, L"", 0),
              RTNORM);
    RbPtr style(acdbTblSearch(L"STYLE", L"Standard", 0));
    EXPECT_EQ(find(style.get(), 41)->resval.rreal, 0.7);
    EXPECT_EQ(text(find(style.get(), 3)), L"SIMPLEX.shx");
    EXPECT_EQ(all(L"LINE").size(), 1u);
    // A style of fixed height skips the height question of TEXT.
    ASSERT_EQ(acedCommand(RTSTR, L"STYLE", RTSTR, L"FIXED", RTSTR, L"arial.ttf", RTREAL, 5.0, RTSTR, L"", RTSTR, L"",
                          RTSTR, L"", RTSTR, L"", 0),
              RTNORM);
    EXPECT_EQ(var(L"TEXTSTYLE"), L"FIXED");
    ASSERT_EQ(acedCommand(RTSTR, L"TEXT", RTPOINT, a, RTSHORT, 0, RTSTR, L"abc", 0), RTNORM);
    auto texts = all(L"TEXT");
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(find(texts[0].get(), 40)->resval.rreal, 5.0);
    EXPECT_EQ(text(find(texts[0].get(), 7)), L"FIXED");
}

TEST_F(Commands, DonutIsAClosedPolylineOfTwoHalfCircles) {
    const double c1[3] = {100, 200, 0}, c2[3] = {300, 200, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"DONUT", RTREAL, 50.0, RTREAL, 150.0, RTPOINT, c1, RTPOINT, c2, RTSTR, L"", 0), RTNORM);
    auto donuts = all(L"LWPOLYLINE");
    ASSERT_EQ(donuts.size(), 2u);
    const resbuf* d = donuts[0].get();
    EXPECT_EQ(find(d, 90)->resval.rlong, 2);
    EXPECT_EQ(find(d, 70)->resval.rint & 1, 1);
    EXPECT_EQ(find(d, 43)->resval.rreal, 50.0) << "width (150 - 50) / 2";
    const double* v0 = find(d, 10, 0)->resval.rpoint;
    const double* v1 = find(d, 10, 1)->resval.rpoint;
    // Both bulges 1: half circles on the diameter v0-v1, so the centre is its middle and the
    // radius half its length: 50 = (150 + 50) / 4.
    EXPECT_EQ(std::fabs(find(d, 42, 0)->resval.rreal), 1.0);
    EXPECT_EQ(std::fabs(find(d, 42, 1)->resval.rreal), 1.0);
    EXPECT_DOUBLE_EQ((v0[0] + v1[0]) / 2, 100.0);
    EXPECT_DOUBLE_EQ((v0[1] + v1[1]) / 2, 200.0);
    EXPECT_DOUBLE_EQ(std::hypot(v1[0] - v0[0], v1[1] - v0[1]) / 2, 50.0);
    // A filled donut: inside diameter 0.
    ASSERT_EQ(acedCommand(RTSTR, L"DONUT", RTREAL, 0.0, RTREAL, 10.0, RTPOINT, c1, RTSTR, L"", 0), RTNORM);
    donuts = all(L"LWPOLYLINE");
    ASSERT_EQ(donuts.size(), 3u);
    EXPECT_EQ(find(donuts[2].get(), 43)->resval.rreal, 5.0);
    const double* f0 = find(donuts[2].get(), 10, 0)->resval.rpoint;
    const double* f1 = find(donuts[2].get(), 10, 1)->resval.rpoint;
    EXPECT_DOUBLE_EQ(std::hypot(f1[0] - f0[0], f1[1] - f0[1]) / 2, 2.5);
}

TEST_F(Commands, DonutInAnR12DrawingIsAnOldStylePolyline) {
    openDxf("  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n");
    const double c[3] = {100, 200, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"DONUT", RTREAL, 50.0, RTREAL, 150.0, RTPOINT, c, RTSTR, L"", 0), RTNORM);
    auto polylines = all(L"POLYLINE");
    ASSERT_EQ(polylines.size(), 1u);
    EXPECT_EQ(find(polylines[0].get(), 40)->resval.rreal, 50.0);
    ads_name e, v;
    ASSERT_EQ(acdbEntLast(e), RTNORM);
    ASSERT_EQ(acdbEntNext(e, v), RTNORM);
    RbPtr vertex = get(v);
    EXPECT_EQ(text(find(vertex.get(), 0)), L"VERTEX");
    EXPECT_EQ(find(vertex.get(), 42)->resval.rreal, 1.0);
    EXPECT_EQ(find(vertex.get(), 10)->resval.rpoint[0], 50.0);
}

TEST_F(Commands, EraseColorAndChange) {
    const double a[3] = {0, 0, 0}, b[3] = {10, 0, 0}, c[3] = {10, 10, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"COLOR", RTSHORT, 1, 0), RTNORM);
    EXPECT_EQ(var(L"CECOLOR"), L"1");
    ASSERT_EQ(acedCommand(RTSTR, L"LINE", RTPOINT, a, RTPOINT, b, RTPOINT, c, RTSTR, L"", 0), RTNORM);
    ASSERT_EQ(acedCommand(RTSTR, L"COLOR", RTSTR, L"BYLAYER", 0), RTNORM);
    EXPECT_EQ(var(L"CECOLOR"), L"BYLAYER");
    auto lines = all(L"LINE");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(find(lines[0].get(), 62)->resval.rint, 1);
    ads_name first;
    acdbNameSet(find(lines[0].get(), -1)->resval.rlname, first);
    ASSERT_EQ(acedCommand(RTSTR, L"LAYER", RTSTR, L"N", RTSTR, L"MAIN", RTSTR, L"", 0), RTNORM);
    ASSERT_EQ(acedCommand(RTSTR, L"CHANGE", RTENAME, first, RTSTR, L"", RTSTR, L"p", RTSTR, L"c", RTSHORT, 3, RTSTR,
                          L"LA", RTSTR, L"main", RTSTR, L"", 0),
              RTNORM);
    RbPtr changed = get(first);
    EXPECT_EQ(find(changed.get(), 62)->resval.rint, 3);
    EXPECT_EQ(text(find(changed.get(), 8)), L"MAIN");
    // A change point moves the nearer end of a line.
    const double to[3] = {-5, 0, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"CHANGE", RTENAME, first, RTSTR, L"", RTPOINT, to, 0), RTNORM);
    EXPECT_EQ(find(get(first).get(), 10)->resval.rpoint[0], -5.0);
    // ERASE takes names, picks and the last object until Enter.
    const double onSecond[3] = {10, 5, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"ERASE", RTENAME, first, RTPOINT, onSecond, RTSTR, L"", 0), RTNORM);
    EXPECT_EQ(all(L"LINE").size(), 0u);
}

TEST_F(Commands, ZoomExtentsScaleCentreWindowAndPrevious) {
    const double a[3] = {0, 0, 0}, b[3] = {400, 100, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"LINE", RTPOINT, a, RTPOINT, b, RTSTR, L"", 0), RTNORM);
    ASSERT_EQ(acedCommand(RTSTR, L"ZOOM", RTSTR, L"e", 0), RTNORM);
    // 400 by 100 on a 1024 by 768 screen: the width decides, 400 * 768 / 1024 = 300.
    EXPECT_DOUBLE_EQ(realVar(L"VIEWSIZE"), 300.0);
    EXPECT_DOUBLE_EQ(pointVar(L"VIEWCTR")[0], 200.0);
    EXPECT_DOUBLE_EQ(pointVar(L"VIEWCTR")[1], 50.0);
    EXPECT_EQ(pointVar(L"EXTMAX")[0], 400.0);
    EXPECT_EQ(pointVar(L"EXTMIN")[1], 0.0);
    EXPECT_DOUBLE_EQ(pointVar(L"VSMIN")[0], 0.0);
    EXPECT_DOUBLE_EQ(pointVar(L"VSMAX")[1], 200.0);
    ASSERT_EQ(acedCommand(RTSTR, L"ZOOM", RTSTR, L"0.9x", 0), RTNORM);
    EXPECT_DOUBLE_EQ(realVar(L"VIEWSIZE"), 300.0 / 0.9);
    const double centre[3] = {10, 10, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"ZOOM", RTSTR, L"C", RTPOINT, centre, RTREAL, 50.0, 0), RTNORM);
    EXPECT_DOUBLE_EQ(realVar(L"VIEWSIZE"), 50.0);
    EXPECT_DOUBLE_EQ(pointVar(L"VIEWCTR")[0], 10.0);
    const double w1[3] = {0, 0, 0}, w2[3] = {100, 100, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"ZOOM", RTSTR, L"W", RTPOINT, w1, RTPOINT, w2, 0), RTNORM);
    EXPECT_DOUBLE_EQ(realVar(L"VIEWSIZE"), 100.0);
    ASSERT_EQ(acedCommand(RTSTR, L"ZOOM", RTSTR, L"P", 0), RTNORM);
    EXPECT_DOUBLE_EQ(realVar(L"VIEWSIZE"), 50.0);
    // The view is saved with the drawing, in the active viewport.
    std::string saved = db().dxfText();
    std::wstring error;
    auto reread = host::db::Database::parse(saved, L"saved", error);
    ASSERT_NE(reread, nullptr);
    uint32_t vport = reread->findEntry("VPORT", L"*Active");
    ASSERT_NE(vport, host::db::kNone);
    EXPECT_NE(reread->record(vport).groups.find("50.0"), std::string::npos);
}

TEST_F(Commands, HeaderVariablesFollowTheDrawing) {
    openDxf("  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1009\n  9\n$CLAYER\n  8\nPIPES\n  9\n$CECOLOR\n 62\n5\n"
            "  9\n$TEXTSIZE\n 40\n3.5\n  0\nENDSEC\n  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nLAYER\n 70\n1\n"
            "  0\nLAYER\n  2\nPIPES\n 70\n0\n 62\n1\n  6\nCONTINUOUS\n  0\nENDTAB\n  0\nENDSEC\n"
            "  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n");
    EXPECT_EQ(var(L"CLAYER"), L"PIPES");
    EXPECT_EQ(var(L"CECOLOR"), L"5");
    EXPECT_EQ(realVar(L"TEXTSIZE"), 3.5);
    std::string unchanged = db().dxfText();
    EXPECT_NE(unchanged.find("$CLAYER\n  8\nPIPES\n"), std::string::npos);
    ASSERT_EQ(acedCommand(RTSTR, L"LAYER", RTSTR, L"M", RTSTR, L"OTHER", RTSTR, L"", RTSTR, L"COLOR", RTSTR, L"BYLAYER", 0),
              RTNORM);
    std::string saved = db().dxfText();
    EXPECT_NE(saved.find("$CLAYER\n  8\nOTHER\n"), std::string::npos);
    EXPECT_NE(saved.find("$CECOLOR\n 62\n256\n"), std::string::npos);
}

}  // namespace
}  // namespace dbtest
