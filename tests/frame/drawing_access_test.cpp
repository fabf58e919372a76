// Drawing access from module code: owning selection sets, entity lists read by group code,
// entity lists built for acdbEntMake, and host commands with their status and environment.
#include <cmath>
#include <string>

#include "acdbads.h"
#include "acedads.h"
#include "frame/entity_list.h"
#include "frame/host_commands.h"
#include "frame/list_builder.h"
#include "frame/selection_set.h"
#include "host/db/database.h"
#include "host/db/selection_sets.h"
#include "tests/support/host_session.h"

namespace {

using testing_support::HostSession;

class DrawingAccess : public HostSession {
protected:
    size_t openSets() { return host::currentDatabase().selectionSets().openCount(); }

    // A LINE on LAYER from A to B in colour 3, made through the builder.
    void makeLine(const wchar_t* layer, const ads_point a, const ads_point b) {
        vrn2::ListBuilder line;
        ASSERT_TRUE(line.addString(0, L"LINE") && line.addString(8, layer) && line.addPoint(10, a) &&
                    line.addPoint(11, b) && line.addShort(62, 3));
        ASSERT_EQ(acdbEntMake(line.get()), RTNORM);
    }
    std::wstring lastAsLisp() { return eval(L"(entget (entlast))"); }
};

// ---- Selection sets ----------------------------------------------------------------------

TEST_F(DrawingAccess, TheHostGetsEverySetBackWhateverWayItsOwnerEnds) {
    ads_point a = {0, 0, 0}, b = {10, 0, 0}, c = {0, 10, 0};
    makeLine(L"SLJS-1", a, b);
    makeLine(L"SLJS-1", b, c);
    makeLine(L"OTHER", a, c);
    const size_t before = openSets();
    {
        resbuf layer{};
        layer.restype = 8;
        layer.resval.rstring = const_cast<ACHAR*>(L"SLJS-*");
        vrn2::SelectionSet ducts;
        ASSERT_EQ(ducts.select(L"X", nullptr, nullptr, &layer), RTNORM);
        EXPECT_EQ(ducts.length(), 2);
        EXPECT_EQ(openSets(), before + 1);

        ads_name first, second, outside;
        ASSERT_TRUE(ducts.at(0, first));
        ASSERT_TRUE(ducts.at(1, second));
        EXPECT_FALSE(ducts.at(2, outside));
        ASSERT_EQ(acdbEntLast(outside), RTNORM);
        EXPECT_TRUE(ducts.contains(first));
        EXPECT_FALSE(ducts.contains(outside)) << "the line on layer OTHER";

        // Tracing takes matched entities out of the set.
        EXPECT_TRUE(ducts.remove(first));
        EXPECT_FALSE(ducts.remove(first));
        EXPECT_EQ(ducts.length(), 1);

        // A moved set is freed once, by its new owner.
        vrn2::SelectionSet taken(std::move(ducts));
        EXPECT_FALSE(ducts.held());
        EXPECT_EQ(ducts.length(), 0);
        EXPECT_EQ(openSets(), before + 1);
        vrn2::SelectionSet made;
        ASSERT_TRUE(made.add(outside));
        EXPECT_EQ(openSets(), before + 2);
        taken = std::move(made);  // the set taken held is freed here
        EXPECT_EQ(openSets(), before + 1);
        EXPECT_TRUE(taken.contains(outside));
    }
    EXPECT_EQ(openSets(), before);

    // A selection that finds nothing holds nothing, and a new selection frees the old set.
    vrn2::SelectionSet none;
    resbuf circles{};
    circles.restype = 0;
    circles.resval.rstring = const_cast<ACHAR*>(L"CIRCLE");
    EXPECT_NE(none.select(L"X", nullptr, nullptr, &circles), RTNORM);
    EXPECT_FALSE(none.held());
    EXPECT_EQ(openSets(), before);
    ASSERT_EQ(none.select(L"X"), RTNORM);
    ASSERT_EQ(none.select(L"X"), RTNORM);
    EXPECT_EQ(none.length(), 3);
    EXPECT_EQ(openSets(), before + 1);
    none.reset();
    EXPECT_EQ(openSets(), before);
}

// ---- Entity lists --------------------------------------------------------------------------

TEST_F(DrawingAccess, ABuiltLineReadsBackGroupByGroup) {
    ads_point a = {1.5, -2.0, 0.0}, b = {1001.5, 248.0, 3.0};
    makeLine(L"SLJS-2", a, b);
    std::wstring lisp = lastAsLisp();
    EXPECT_NE(lisp.find(L"(10 1.5 -2.0 0.0)"), std::wstring::npos) << lisp;
    EXPECT_NE(lisp.find(L"(11 1001.5 248.0 3.0)"), std::wstring::npos) << lisp;

    ads_name last;
    ASSERT_EQ(acdbEntLast(last), RTNORM);
    vrn2::EntityList line(last);
    ASSERT_TRUE(line.valid());
    EXPECT_EQ(line.type(), L"LINE");
    EXPECT_EQ(line.layer(), L"SLJS-2");
    EXPECT_EQ(line.integer(62), 3);
    auto end = line.point(11);
    ASSERT_TRUE(end);
    EXPECT_EQ(end->x, 1001.5);
    EXPECT_EQ(end->y, 248.0);
    EXPECT_EQ(end->z, 3.0);
    EXPECT_EQ(line.point(10)->x, 1.5);
    // The handle is the one AutoLISP sees, and group -1 names the entity itself.
    EXPECT_EQ(L"\"" + line.handle() + L"\"", eval(L"(cdr (assoc 5 (entget (entlast))))"));
    ads_name self = {0, 0};
    ASSERT_TRUE(line.name(-1, self));
    EXPECT_EQ(self[0], last[0]);
    EXPECT_EQ(self[1], last[1]);
    // Groups the line does not have, and codes read as a kind they do not hold.
    EXPECT_FALSE(line.real(40));
    EXPECT_FALSE(line.point(12));
    EXPECT_FALSE(line.integer(8));
    EXPECT_FALSE(line.real(10));
    EXPECT_FALSE(line.text(62));
    EXPECT_EQ(vrn2::findGroup(line.get(), 62)->resval.rint, 3);
}

TEST_F(DrawingAccess, TextRealsLongsAndExtendedDataReadByTheirKinds) {
    ads_point at = {5, 6, 0};
    vrn2::ListBuilder text;
    ASSERT_TRUE(text.addString(0, L"TEXT") && text.addPoint(10, at) && text.addReal(40, 2.5) &&
                text.addString(1, L"送风管") && text.addReal(50, 0.5));
    ASSERT_EQ(acdbEntMake(text.get()), RTNORM);
    ads_name last;
    ASSERT_EQ(acdbEntLast(last), RTNORM);
    vrn2::EntityList read(last);
    EXPECT_EQ(read.text(1), L"送风管");
    EXPECT_EQ(read.real(40), 2.5);
    EXPECT_NEAR(*read.real(50), 0.5, 1e-12) << "an angle in radians";

    eval(L"(regapp \"K_DUCT_NO\") (entmod (append (entget (entlast)) '((-3 (\"K_DUCT_NO\" (1070 . 12) (1071 . 70000))))))");
    vrn2::EntityList plain(last);
    EXPECT_FALSE(plain.find(-3)) << "extended data only when asked for";
    vrn2::EntityList withData(last, L"K_DUCT_NO");
    ASSERT_TRUE(withData.find(-3));
    EXPECT_EQ(withData.integer(1070), 12);
    EXPECT_EQ(withData.integer(1071), 70000) << "a long group";

    ads_name gone = {0, 0};
    EXPECT_FALSE(vrn2::EntityList(gone).valid());
}

TEST(GroupKinds, CodesHoldTheirKinds) {
    using vrn2::GroupKind;
    EXPECT_EQ(vrn2::groupKind(0), GroupKind::Text);
    EXPECT_EQ(vrn2::groupKind(5), GroupKind::Text);
    EXPECT_EQ(vrn2::groupKind(10), GroupKind::Point);
    EXPECT_EQ(vrn2::groupKind(210), GroupKind::Point);
    EXPECT_EQ(vrn2::groupKind(40), GroupKind::Real);
    EXPECT_EQ(vrn2::groupKind(62), GroupKind::Short);
    EXPECT_EQ(vrn2::groupKind(90), GroupKind::Long);
    EXPECT_EQ(vrn2::groupKind(-1), GroupKind::Name);
    EXPECT_EQ(vrn2::groupKind(330), GroupKind::Name);
    EXPECT_EQ(vrn2::groupKind(1005), GroupKind::Text);
    EXPECT_EQ(vrn2::groupKind(1071), GroupKind::Long);
    EXPECT_EQ(vrn2::groupKind(310), GroupKind::Other);
}

// ---- Host commands -----------------------------------------------------------------------

TEST_F(DrawingAccess, CommandsRunInTheQuietEnvironmentAndAFailureIsReportedToTheCaller) {
    eval(L"(setvar \"CMDECHO\" 1) (setvar \"BLIPMODE\" 1) (setvar \"HIGHLIGHT\" 1)");
    ads_point a = {0, 0, 0}, b = {20, 0, 0}, c = {20, 30, 0};
    int status = RTNORM, last = RTNORM;
    bool ranAfterFailure = false;
    {
        vrn2::HostCommands commands;
        EXPECT_EQ(eval(L"(list (getvar \"CMDECHO\") (getvar \"BLIPMODE\") (getvar \"HIGHLIGHT\"))"), L"(0 0 0)");
        EXPECT_TRUE(commands.run(RTSTR, L"LINE", RT3DPOINT, a, RT3DPOINT, b, RTSTR, L""));
        EXPECT_FALSE(commands.failed());
        EXPECT_FALSE(commands.run(RTSTR, L"NOSUCHCOMMAND"));
        EXPECT_TRUE(commands.failed());
        // Later commands still run; the first failure stays the answer.
        vrn2::ListBuilder line;
        ASSERT_TRUE(line.addString(RTSTR, L"LINE") && line.addPoint(RT3DPOINT, b) && line.addPoint(RT3DPOINT, c) &&
                    line.addString(RTSTR, L""));
        ranAfterFailure = commands.runList(line.get());
        status = commands.status();
        last = commands.lastStatus();
    }
    EXPECT_TRUE(ranAfterFailure);
    EXPECT_EQ(status, RTERROR);
    EXPECT_EQ(last, RTNORM);
    EXPECT_EQ(eval(L"(list (getvar \"CMDECHO\") (getvar \"BLIPMODE\") (getvar \"HIGHLIGHT\"))"), L"(1 1 1)");
    std::wstring second = lastAsLisp();
    EXPECT_NE(second.find(L"(10 20.0 0.0 0.0)"), std::wstring::npos) << second;
    EXPECT_NE(second.find(L"(11 20.0 30.0 0.0)"), std::wstring::npos) << second;
    EXPECT_EQ(eval(L"(sslength (ssget \"X\"))"), L"2");
}

TEST_F(DrawingAccess, TheHostsOwnStatusIsWhatTheCallerGets) {
    // A number where a command name belongs is refused, not an error of a command.
    vrn2::HostCommands commands;
    EXPECT_FALSE(commands.run(RTREAL, 5.0));
    EXPECT_EQ(commands.status(), RTREJ);
    EXPECT_FALSE(commands.run(RTSTR, L"NOSUCHCOMMAND"));
    EXPECT_EQ(commands.lastStatus(), RTERROR);
    EXPECT_EQ(commands.status(), RTREJ) << "the first failure is kept";
    EXPECT_EQ(eval(L"(entlast)"), L"nil");
}

}  // namespace
