// Header variables and the active view as the document's system variables: read when the
// drawing opens, written back only when they changed.
#include <cmath>

#include "tests/host_db/db_fixture.h"

namespace dbtest {
namespace {

const std::string kDrawing = dxf({{0, "SECTION"}, {2, "HEADER"}, {9, "$ACADVER"}, {1, "AC1015"}, {9, "$HANDSEED"},
                                  {5, "40"}, {9, "$ANGBASE"}, {50, "90.0"}, {9, "$LUPREC"}, {70, "     2"},
                                  {9, "$LIMMAX"}, {10, "841.0"}, {20, "594.0"}, {0, "ENDSEC"}, {0, "SECTION"},
                                  {2, "TABLES"}, {0, "TABLE"}, {2, "VPORT"}, {5, "8"}, {330, "0"},
                                  {100, "AcDbSymbolTable"}, {70, "1"}, {0, "VPORT"}, {5, "29"}, {330, "8"},
                                  {100, "AcDbSymbolTableRecord"}, {100, "AcDbViewportTableRecord"}, {2, "*Active"},
                                  {70, "0"}, {12, "24.5"}, {22, "11.25"}, {40, "21.75"}, {41, "1.5"}, {0, "ENDTAB"},
                                  {0, "ENDSEC"}, {0, "EOF"}});

class HeaderSync : public DrawingTest {
protected:
    const host::SysVarValue& var(const wchar_t* name) { return *doc().sysvars().find(name); }
};

TEST_F(HeaderSync, OpeningSetsTheVariablesFromTheDrawing) {
    openDxf(kDrawing);
    EXPECT_DOUBLE_EQ(var(L"ANGBASE").real, 3.14159265358979323846 / 2) << "degrees in the file, radians here";
    EXPECT_EQ(var(L"LUPREC").integer, 2);
    EXPECT_EQ(var(L"LIMMAX").point[0], 841.0);
    EXPECT_EQ(var(L"VIEWCTR").point[0], 24.5);
    EXPECT_EQ(var(L"VIEWSIZE").real, 21.75);
    // The virtual screen: the view's height, and its width at the screen's 4:3.
    EXPECT_DOUBLE_EQ(var(L"VSMIN").point[1], 11.25 - 21.75 / 2);
    EXPECT_DOUBLE_EQ(var(L"VSMAX").point[0], 24.5 + 21.75 * 4 / 3 / 2);
    EXPECT_EQ(db().dxfText(), kDrawing) << "nothing changed, nothing rewritten";
}

TEST_F(HeaderSync, ChangedVariablesAreSavedAndMissingOnesAdded) {
    openDxf(kDrawing);
    resbuf v{};
    v.restype = RTSHORT;
    v.resval.rint = 6;
    ASSERT_EQ(acedSetVar(L"LUPREC", &v), RTNORM);
    v.resval.rint = 3;
    ASSERT_EQ(acedSetVar(L"AUPREC", &v), RTNORM);
    std::string saved = db().dxfText();
    EXPECT_NE(saved.find("$LUPREC\n 70\n6\n"), std::string::npos);
    EXPECT_NE(saved.find("$AUPREC\n 70\n3\n  0\nENDSEC"), std::string::npos) << "added at the end of the header";
    EXPECT_NE(saved.find("$ANGBASE\n 50\n90.0\n"), std::string::npos) << "the unchanged one keeps its text";
    // The view changed by ZOOM goes into the active viewport.
    const double c[3] = {0, 0, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"ZOOM", RTSTR, L"C", RTPOINT, c, RTREAL, 10.0, 0), RTNORM);
    saved = db().dxfText();
    EXPECT_NE(saved.find(" 12\n0.0\n 22\n0.0\n 40\n10.0\n 41\n1.5\n"), std::string::npos) << saved;
}

}  // namespace
}  // namespace dbtest
