// How the host commands read their input: typed coordinates, relative points, answers that
// do not fit a prompt, option keywords in both spellings, and the options less often used.
#include <cmath>

#include "tests/host_db/db_fixture.h"

namespace dbtest {
namespace {

using host::RbPtr;

class CommandInput : public DrawingTest {
protected:
    RbPtr lastEntity() {
        ads_name e;
        EXPECT_EQ(acdbEntLast(e), RTNORM);
        return get(e);
    }
    RbPtr layer(const wchar_t* name) { return RbPtr(acdbTblSearch(L"LAYER", name, 0)); }
    double viewSize() { return doc().sysvars().find(L"VIEWSIZE")->real; }
};

TEST_F(CommandInput, TypedAndRelativePoints) {
    ASSERT_EQ(acedCommand(RTSTR, L"LINE", RTSTR, L"10,20", RTSTR, L"@5,0", RTSTR, L"", 0), RTNORM);
    RbPtr line = lastEntity();
    EXPECT_EQ(find(line.get(), 11)->resval.rpoint[0], 15.0);
    EXPECT_EQ(find(line.get(), 11)->resval.rpoint[1], 20.0);
    ASSERT_EQ(acedCommand(RTSTR, L"LINE", RTSTR, L"0,0,3", RTSTR, L"@10<90", RTSTR, L"", 0), RTNORM);
    line = lastEntity();
    EXPECT_NEAR(find(line.get(), 11)->resval.rpoint[0], 0.0, 1e-12);
    EXPECT_NEAR(find(line.get(), 11)->resval.rpoint[1], 10.0, 1e-12);
    EXPECT_EQ(find(line.get(), 11)->resval.rpoint[2], 3.0);
}

TEST_F(CommandInput, AnswersThatDoNotFitAreRefusedAndAskedAgain) {
    const double a[3] = {0, 0, 0}, b[3] = {4, 0, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"LINE", RTSTR, L"nonsense", RTPOINT, a, RTSTR, L"x,y", RTPOINT, b, RTSTR, L"", 0),
              RTNORM);
    EXPECT_NE(printed().find(L"Invalid point."), std::wstring::npos);
    RbPtr line = lastEntity();
    EXPECT_EQ(find(line.get(), 11)->resval.rpoint[0], 4.0);
    ASSERT_EQ(acedCommand(RTSTR, L"COLOR", RTSHORT, 300, RTSTR, L"green", 0), RTNORM);
    EXPECT_EQ(doc().sysvars().find(L"CECOLOR")->text, L"3");
    EXPECT_NE(printed().find(L"Invalid color value."), std::wstring::npos);
    EXPECT_EQ(acedCommand(RTSTR, L"NOSUCHCOMMAND", 0), RTERROR);
}

TEST_F(CommandInput, LayerFreezeThawLockAndLinetype) {
    ASSERT_EQ(acedCommand(RTSTR, L"-LAYER", RTSTR, L"_New", RTSTR, L"A1,A2", RTSTR, L"_Freeze", RTSTR, L"A*",
                          RTSTR, L"LOck", RTSTR, L"A2", RTSTR, L"", 0),
              RTNORM);
    EXPECT_EQ(find(layer(L"A1").get(), 70)->resval.rint, 1);
    EXPECT_EQ(find(layer(L"A2").get(), 70)->resval.rint, 5);
    ASSERT_EQ(acedCommand(RTSTR, L"LAYER", RTSTR, L"S", RTSTR, L"A1", RTSTR, L"", 0), RTNORM);
    EXPECT_EQ(doc().sysvars().find(L"CLAYER")->text, L"0") << "a frozen layer cannot be made current";
    ASSERT_EQ(acedCommand(RTSTR, L"LAYER", RTSTR, L"T", RTSTR, L"A1,A2", RTSTR, L"U", RTSTR, L"A2", RTSTR, L"L",
                          RTSTR, L"continuous", RTSTR, L"A1", RTSTR, L"", 0),
              RTNORM);
    EXPECT_EQ(find(layer(L"A1").get(), 70)->resval.rint, 0);
    EXPECT_EQ(find(layer(L"A2").get(), 70)->resval.rint, 0);
    EXPECT_EQ(text(find(layer(L"A1").get(), 6)), L"Continuous");
    ASSERT_EQ(acedCommand(RTSTR, L"LAYER", RTSTR, L"L", RTSTR, L"DASHDOT", RTSTR, L"", 0), RTNORM);
    EXPECT_NE(printed().find(L"Linetype DASHDOT not found."), std::wstring::npos);
}

TEST_F(CommandInput, NewTextStyleAndTheStyleOptionOfText) {
    ASSERT_EQ(acedCommand(RTSTR, L"STYLE", RTSTR, L"KSL_TEXT", RTSTR, L"hztxt", RTREAL, 0.0, RTREAL, 0.8, RTREAL, 15.0,
                          RTSTR, L"Y", RTSTR, L"N", RTSTR, L"N", 0),
              RTNORM);
    RbPtr style(acdbTblSearch(L"STYLE", L"ksl_text", 0));
    ASSERT_NE(style, nullptr);
    EXPECT_EQ(find(style.get(), 71)->resval.rint, 2) << "backwards";
    EXPECT_NEAR(find(style.get(), 50)->resval.rreal, 15.0 * 3.14159265358979323846 / 180.0, 1e-12);
    ASSERT_EQ(acedCommand(RTSTR, L"STYLE", RTSTR, L"Standard", RTSTR, L"", RTSTR, L"", RTSTR, L"", RTSTR, L"", RTSTR,
                          L"", RTSTR, L"", RTSTR, L"", 0),
              RTNORM);
    const double at[3] = {0, 0, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"TEXT", RTSTR, L"S", RTSTR, L"KSL_TEXT", RTPOINT, at, RTREAL, 3.0, RTSHORT, 0,
                          RTSTR, L"流量", 0),
              RTNORM);
    RbPtr t = lastEntity();
    EXPECT_EQ(text(find(t.get(), 7)), L"KSL_TEXT");
    EXPECT_EQ(find(t.get(), 41)->resval.rreal, 0.8) << "the style's width factor";
    EXPECT_EQ(text(find(t.get(), 1)), L"流量");
}

TEST_F(CommandInput, ZoomAllObjectAndLimitScale) {
    const double a[3] = {500, 500, 0}, b[3] = {600, 600, 0};
    ASSERT_EQ(acedCommand(RTSTR, L"LINE", RTPOINT, a, RTPOINT, b, RTSTR, L"", 0), RTNORM);
    // All: the limits (0,0)-(420,297) and the line together, (0,0)-(600,600).
    ASSERT_EQ(acedCommand(RTSTR, L"ZOOM", RTSTR, L"All", 0), RTNORM);
    EXPECT_DOUBLE_EQ(viewSize(), 600.0);
    ads_name line;
    ASSERT_EQ(acdbEntLast(line), RTNORM);
    ASSERT_EQ(acedCommand(RTSTR, L"ZOOM", RTSTR, L"O", RTENAME, line, RTSTR, L"", 0), RTNORM);
    EXPECT_DOUBLE_EQ(viewSize(), 100.0);
    EXPECT_DOUBLE_EQ(doc().sysvars().find(L"VIEWCTR")->point[0], 550.0);
    // A bare number scales the view of the limits: 420 by 297 on a 1024 by 768 screen needs a
    // height of 420 * 768 / 1024 = 315, half of it at 2.
    ASSERT_EQ(acedCommand(RTSTR, L"ZOOM", RTSTR, L"2", 0), RTNORM);
    EXPECT_DOUBLE_EQ(viewSize(), 157.5);
    ASSERT_EQ(acedCommand(RTSTR, L"ZOOM", RTSTR, L"S", RTSTR, L"2xp", 0), RTNORM);
    EXPECT_DOUBLE_EQ(viewSize(), 78.75);
}

}  // namespace
}  // namespace dbtest
