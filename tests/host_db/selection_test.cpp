// Selection sets: the set functions, filter lists and the geometric selection modes, on a
// drawing whose expected answers are worked out by hand in each test.
#include <algorithm>
#include <set>

#include "host/output.h"
#include "host/runtime/input.h"
#include "tests/host_db/db_fixture.h"

namespace dbtest {
namespace {

using host::RbPtr;

class Selection : public DrawingTest {
protected:
    // Makes an entity and returns the text of its group 5 as a label for it.
    std::wstring make(resbuf* list) {
        RbPtr owned(list);
        EXPECT_EQ(acdbEntMake(list), RTNORM);
        ads_name e;
        EXPECT_EQ(acdbEntLast(e), RTNORM);
        return handleOf(e);
    }
    std::wstring handleOf(const ads_name e) { return text(find(get(e).get(), 5)); }
    // The handles of a selection, or an empty set when nothing was selected.
    std::set<std::wstring> select(const wchar_t* mode, const void* a, const void* b, resbuf* filter,
                                  int expected = RTNORM) {
        RbPtr owned(filter);
        ads_name ss;
        int status = acedSSGet(mode, a, b, filter, ss);
        EXPECT_EQ(status, expected);
        std::set<std::wstring> handles;
        if (status != RTNORM) return handles;
        long n = 0;
        EXPECT_EQ(acedSSLength(ss, &n), RTNORM);
        for (long i = 0; i < n; ++i) {
            ads_name e;
            EXPECT_EQ(acedSSName(ss, i, e), RTNORM);
            handles.insert(handleOf(e));
        }
        acedSSFree(ss);
        return handles;
    }
    short filterError(resbuf* filter) {
        RbPtr owned(filter);
        ads_name ss;
        EXPECT_EQ(acedSSGet(L"X", nullptr, nullptr, filter, ss), RTERROR);
        return errnoValue();
    }
};

TEST_F(Selection, SetFunctions) {
    const double a[3] = {0, 0, 0}, b[3] = {1, 1, 0};
    makeLine(a, b);
    ads_name first;
    last(first);
    makeLine(b, a);
    ads_name second;
    last(second);

    ads_name ss;
    ASSERT_EQ(acedSSAdd(nullptr, nullptr, ss), RTNORM);
    long n = -1;
    ASSERT_EQ(acedSSLength(ss, &n), RTNORM);
    EXPECT_EQ(n, 0);
    ads_name same;
    ASSERT_EQ(acedSSAdd(first, ss, same), RTNORM);
    EXPECT_TRUE(acdbNameEqual(same, ss));
    ASSERT_EQ(acedSSAdd(first, ss, same), RTNORM) << "adding a member again is no error";
    ASSERT_EQ(acedSSLength(ss, &n), RTNORM);
    EXPECT_EQ(n, 1);
    EXPECT_EQ(acedSSMemb(first, ss), RTNORM);
    EXPECT_EQ(acedSSMemb(second, ss), RTERROR);
    EXPECT_EQ(acedSSDel(second, ss), RTERROR);
    ads_name member;
    EXPECT_EQ(acedSSName(ss, 0, member), RTNORM);
    EXPECT_TRUE(acdbNameEqual(member, first));
    EXPECT_EQ(acedSSName(ss, 1, member), RTERROR);
    EXPECT_EQ(acedSSName(ss, -1, member), RTERROR);
    EXPECT_EQ(acedSSDel(first, ss), RTNORM);
    ASSERT_EQ(acedSSLength(ss, &n), RTNORM);
    EXPECT_EQ(n, 0);
    ads_name withOne;
    ASSERT_EQ(acedSSAdd(second, nullptr, withOne), RTNORM);
    EXPECT_EQ(acedSSMemb(second, withOne), RTNORM);
    EXPECT_FALSE(acdbNameEqual(withOne, ss));
    ASSERT_EQ(acedSSFree(ss), RTNORM);
    EXPECT_EQ(acedSSLength(ss, &n), RTERROR);
    EXPECT_EQ(acedSSFree(ss), RTERROR);
    EXPECT_EQ(acedSSLength(first, &n), RTERROR) << "an entity name is no set";
    acedSSFree(withOne);
}

TEST_F(Selection, AtMost128SetsAreOpen) {
    std::vector<std::array<long, 2>> sets;
    for (int i = 0; i < 128; ++i) {
        ads_name ss;
        ASSERT_EQ(acedSSAdd(nullptr, nullptr, ss), RTNORM) << i;
        sets.push_back({ss[0], ss[1]});
    }
    ads_name extra;
    EXPECT_EQ(acedSSAdd(nullptr, nullptr, extra), RTERROR);
    const double a[3] = {0, 0, 0}, b[3] = {1, 1, 0};
    makeLine(a, b);
    EXPECT_EQ(acedSSGet(L"X", nullptr, nullptr, nullptr, extra), RTERROR);
    ads_name one = {sets[5][0], sets[5][1]};
    ASSERT_EQ(acedSSFree(one), RTNORM);
    EXPECT_EQ(acedSSAdd(nullptr, nullptr, extra), RTNORM);
}

class Filters : public Selection {
protected:
    void SetUp() override {
        Selection::SetUp();
        ASSERT_EQ(acdbRegApp(L"STARTP"), RTNORM);
        ASSERT_EQ(acdbRegApp(L"GUANJ"), RTNORM);
        const double o[3] = {0, 0, 0}, x[3] = {100, 0, 0}, y[3] = {0, 100, 0}, up[3] = {0, 0, 50};
        pipe_ = make(acutBuildList(RTDXF0, L"LINE", 8, L"P01-AB", 10, o, 11, x, -3, 1001, L"GUANJ", 1000,
                                   L"DN50", 0));
        riser_ = make(acutBuildList(RTDXF0, L"LINE", 8, L"j12-cd", 62, 1, 10, o, 11, up, 0));
        other_ = make(acutBuildList(RTDXF0, L"LINE", 8, L"OTHER", 10, y, 11, x, 0));
        small_ = make(acutBuildList(RTDXF0, L"CIRCLE", 8, L"OTHER", 62, 3, 10, x, 40, 2.5, 0));
        big_ = make(acutBuildList(RTDXF0, L"CIRCLE", 8, L"P01-AB", 10, y, 40, 25.0, -3, 1001, L"STARTP",
                                  1010, o, 1001, L"GUANJ", 1000, L"DN20", 0));
        const double v1[3] = {0, 0, 0}, v2[3] = {10, 0, 0};
        closed_ = make(acutBuildList(RTDXF0, L"LWPOLYLINE", 8, L"$P01-AB", 90, 2, 70, 1, 43, 0.5, 10, v1,
                                     42, 1.0, 10, v2, 42, 1.0, 0));
    }
    std::wstring pipe_, riser_, other_, small_, big_, closed_;
};

TEST_F(Filters, GroupsAreAndedAndStringsAreWildcards) {
    EXPECT_EQ(select(L"X", nullptr, nullptr, acutBuildList(RTDXF0, L"LINE", 8, L"[JPRXI]##-@@", 0)),
              (std::set<std::wstring>{pipe_, riser_})) << "layer names match without regard to case";
    EXPECT_EQ(select(L"_X", nullptr, nullptr, acutBuildList(RTDXF0, L"circle", 0)),
              (std::set<std::wstring>{small_, big_}));
    EXPECT_EQ(select(L"X", nullptr, nullptr, acutBuildList(8, L"~OTHER", 0)),
              (std::set<std::wstring>{pipe_, riser_, big_, closed_}));
    EXPECT_EQ(select(L"X", nullptr, nullptr, nullptr).size(), 6u);
    select(L"X", nullptr, nullptr, acutBuildList(RTDXF0, L"ARC", 0), RTERROR);
}

TEST_F(Filters, RelationalTestsOnNumbersAndPoints) {
    EXPECT_EQ(select(L"X", nullptr, nullptr, acutBuildList(-4, L">", 40, 5.0, 0)),
              (std::set<std::wstring>{big_})) << "entities without a 40 group do not pass";
    EXPECT_EQ(select(L"X", nullptr, nullptr, acutBuildList(-4, L"<=", 40, 2.5, 0)),
              (std::set<std::wstring>{small_}));
    EXPECT_EQ(select(L"X", nullptr, nullptr, acutBuildList(RTDXF0, L"LWPOLYLINE", -4, L"&", 70, 1, 0)),
              (std::set<std::wstring>{closed_}));
    select(L"X", nullptr, nullptr, acutBuildList(-4, L"&=", 70, 3, 0), RTERROR);
    EXPECT_EQ(select(L"X", nullptr, nullptr, acutBuildList(-4, L"&=", 70, 1, 0)),
              (std::set<std::wstring>{closed_}));
    // Colour 256 (by layer) is what an entity without a colour group has.
    EXPECT_EQ(select(L"X", nullptr, nullptr, acutBuildList(RTDXF0, L"LINE", 62, 256, 0)),
              (std::set<std::wstring>{pipe_, other_}));
    EXPECT_EQ(select(L"X", nullptr, nullptr, acutBuildList(-4, L"!=", 62, 256, 0)),
              (std::set<std::wstring>{riser_, small_}));
    const double corner[3] = {50, 50, 10};
    EXPECT_EQ(select(L"X", nullptr, nullptr, acutBuildList(-4, L">,*,*", 11, corner, 0)),
              (std::set<std::wstring>{pipe_, other_}));
    EXPECT_EQ(select(L"X", nullptr, nullptr, acutBuildList(-4, L"*,*,>", 11, corner, 0)),
              (std::set<std::wstring>{riser_}));
    const double origin[3] = {0, 0, 0};
    EXPECT_EQ(select(L"X", nullptr, nullptr, acutBuildList(-4, L"=", 10, origin, 0)),
              (std::set<std::wstring>{pipe_, riser_, closed_})) << "the polyline's first vertex counts";
}

TEST_F(Filters, LogicalGroupsNest) {
    EXPECT_EQ(select(L"X", nullptr, nullptr,
                     acutBuildList(-4, L"<OR", RTDXF0, L"CIRCLE", -4, L"<AND", RTDXF0, L"LINE", 8, L"OTHER",
                                   -4, L"AND>", -4, L"OR>", 0)),
              (std::set<std::wstring>{small_, big_, other_}));
    EXPECT_EQ(select(L"X", nullptr, nullptr, acutBuildList(-4, L"<not", RTDXF0, L"LINE", -4, L"not>", 0)),
              (std::set<std::wstring>{small_, big_, closed_}));
    EXPECT_EQ(select(L"X", nullptr, nullptr,
                     acutBuildList(-4, L"<XOR", 8, L"P01-AB", RTDXF0, L"CIRCLE", -4, L"XOR>", 0)),
              (std::set<std::wstring>{pipe_, small_}));
}

TEST_F(Filters, ExtendedDataPresence) {
    EXPECT_EQ(select(L"X", nullptr, nullptr, acutBuildList(-3, 1001, L"guanj", 0)),
              (std::set<std::wstring>{pipe_, big_}));
    EXPECT_EQ(select(L"X", nullptr, nullptr, acutBuildList(-3, 1001, L"GUANJ", 1001, L"START*", 0)),
              (std::set<std::wstring>{big_})) << "every application named must be there";
}

TEST_F(Filters, FaultsInTheListAreReported) {
    EXPECT_EQ(filterError(acutBuildList(-4, L"<OR", RTDXF0, L"LINE", 0)), 56);
    EXPECT_EQ(filterError(acutBuildList(-4, L"=", 0)), 57);
    EXPECT_EQ(filterError(acutBuildList(-4, L"<FOO", RTDXF0, L"LINE", 0)), 58);
    EXPECT_EQ(filterError(acutBuildList(-4, L"<AND", -4, L"AND>", 0)), 59);
    EXPECT_EQ(filterError(acutBuildList(RTDXF0, L"LINE", -4, L"OR>", 0)), 60);
    EXPECT_EQ(filterError(acutBuildList(-4, L"<OR", RTDXF0, L"LINE", -4, L"AND>", 0)), 60);
    EXPECT_EQ(filterError(acutBuildList(-4, L"<NOT", RTDXF0, L"LINE", 8, L"0", -4, L"NOT>", 0)), 61);
    EXPECT_EQ(filterError(acutBuildList(-4, L"<XOR", RTDXF0, L"LINE", -4, L"XOR>", 0)), 61);
    EXPECT_EQ(filterError(acutBuildList(5, L"1F", 0)), 63);
    EXPECT_EQ(filterError(acutBuildList(-4, L">", 8, L"A", 0)), 64);
    const double p[3] = {0, 0, 1};
    EXPECT_EQ(filterError(acutBuildList(-4, L">,>", 10, p, 0)), 65);
    EXPECT_EQ(filterError(acutBuildList(-4, L">,>,>", 210, p, 0)), 65);
    EXPECT_EQ(filterError(acutBuildList(-4, L"&", 40, 1.0, 0)), 66);
    EXPECT_EQ(filterError(acutBuildList(-4, L"&~", 70, 1, 0)), 58);
}

class Geometry : public Selection {
protected:
    void SetUp() override {
        Selection::SetUp();
        const double a0[3] = {0, 0, 0}, a1[3] = {10, 0, 0};
        const double b0[3] = {20, 0, 0}, b1[3] = {30, 10, 0};
        const double c[3] = {50, 50, 0};
        const double t[3] = {5, 5, 0};
        lineA_ = make(acutBuildList(RTDXF0, L"LINE", 10, a0, 11, a1, 0));
        lineB_ = make(acutBuildList(RTDXF0, L"LINE", 10, b0, 11, b1, 0));
        circle_ = make(acutBuildList(RTDXF0, L"CIRCLE", 10, c, 40, 5.0, 0));
        text_ = make(acutBuildList(RTDXF0, L"TEXT", 10, t, 40, 2.5, 1, L"T", 0));
        // A donut at (100,100): centre-line radius 50, two bulged segments.
        const double left[3] = {50, 100, 0}, right[3] = {150, 100, 0};
        donut_ = make(acutBuildList(RTDXF0, L"LWPOLYLINE", 90, 2, 70, 1, 43, 50.0, 10, left, 42, 1.0, 10,
                                    right, 42, 1.0, 0));
        // An arc centred at (0,100), radius 10, from 0 to 90 degrees (given in radians): its ends
        // (10,100), (0,110).
        const double ac[3] = {0, 100, 0};
        arc_ = make(acutBuildList(RTDXF0, L"ARC", 10, ac, 40, 10.0, 50, 0.0, 51, 1.5707963267948966, 0));
    }
    static resbuf* points(std::initializer_list<std::array<double, 3>> pts) {
        resbuf* head = nullptr;
        resbuf** tail = &head;
        for (const auto& p : pts) {
            *tail = acutBuildList(RT3DPOINT, p.data(), 0);
            tail = &(*tail)->rbnext;
        }
        return head;
    }
    std::wstring lineA_, lineB_, circle_, text_, donut_, arc_;
};

TEST_F(Geometry, WindowTakesWhatLiesInsideAndCrossingWhatTouches) {
    const double w1[3] = {-1, -1, 0}, w2[3] = {25, 11, 0};
    EXPECT_EQ(select(L"W", w1, w2, nullptr), (std::set<std::wstring>{lineA_, text_}));
    EXPECT_EQ(select(L"C", w1, w2, nullptr), (std::set<std::wstring>{lineA_, lineB_, text_}));
    // Corners given the other way round make the same window.
    EXPECT_EQ(select(L"W", w2, w1, nullptr), (std::set<std::wstring>{lineA_, text_}));
    // A circle is inside only when all of it is: its box is (45,45)-(55,55).
    const double c1[3] = {44, 44, 0}, c2[3] = {56, 56, 0}, c3[3] = {46, 44, 0};
    EXPECT_EQ(select(L"W", c1, c2, nullptr), (std::set<std::wstring>{circle_}));
    EXPECT_EQ(select(L"W", c3, c2, nullptr, RTERROR).size(), 0u);
    EXPECT_EQ(select(L"C", c3, c2, nullptr), (std::set<std::wstring>{circle_}));
    // A crossing window inside the circle touches nothing.
    const double i1[3] = {49, 49, 0}, i2[3] = {51, 51, 0};
    select(L"C", i1, i2, nullptr, RTERROR);
}

TEST_F(Geometry, ArcsAreTestedAlongTheirCurve) {
    // The donut's centre line is the circle of radius 50 round (100,100): a window in its hole
    // touches nothing, one across (150,100) touches it.
    const double h1[3] = {90, 90, 0}, h2[3] = {110, 110, 0};
    select(L"C", h1, h2, nullptr, RTERROR);
    const double r1[3] = {145, 95, 0}, r2[3] = {155, 105, 0};
    EXPECT_EQ(select(L"C", r1, r2, nullptr), (std::set<std::wstring>{donut_}));
    const double whole1[3] = {49, 49, 0}, whole2[3] = {151, 151, 0};
    EXPECT_EQ(select(L"W", whole1, whole2, nullptr), (std::set<std::wstring>{donut_}))
        << "the circle reaches down to (45,45)";
    // The arc's quarter lies in x, y >= 0 of its centre: a window over the other three
    // quarters of its circle does not reach it.
    const double q1[3] = {-11, 89, 0}, q2[3] = {-1, 111, 0};
    select(L"C", q1, q2, nullptr, RTERROR);
    const double q3[3] = {5, 105, 0}, q4[3] = {7, 107, 0};  // within the arc's radius: no touch
    select(L"C", q3, q4, nullptr, RTERROR);
    const double q5[3] = {6, 106, 0}, q6[3] = {9, 112, 0};  // (7.07,107.07) is on the arc
    EXPECT_EQ(select(L"C", q5, q6, nullptr), (std::set<std::wstring>{arc_}));
}

TEST_F(Geometry, FenceAndPolygons) {
    // A fence from (6,-5) up to (6,52) and across to (60,52): it cuts line A and the circle
    // and passes beside the text at (5,5).
    RbPtr fence(points({{6, -5, 0}, {6, 52, 0}, {60, 52, 0}}));
    EXPECT_EQ(select(L"F", fence.get(), nullptr, nullptr), (std::set<std::wstring>{lineA_, circle_}));
    RbPtr throughText(points({{5, -5, 0}, {5, 20, 0}}));
    EXPECT_EQ(select(L"F", throughText.get(), nullptr, nullptr), (std::set<std::wstring>{lineA_, text_}));
    // A triangle round line A and the text; line B's start (20,0) lies outside it.
    auto triangle = [] { return points({{-2, -2, 0}, {18, -2, 0}, {-2, 18, 0}}); };
    RbPtr t1(triangle());
    EXPECT_EQ(select(L"WP", t1.get(), nullptr, nullptr), (std::set<std::wstring>{lineA_, text_}));
    RbPtr t2(points({{-2, -2, 0}, {22, -2, 0}, {-2, 22, 0}}));
    EXPECT_EQ(select(L"CP", t2.get(), nullptr, nullptr), (std::set<std::wstring>{lineA_, lineB_, text_}));
}

TEST_F(Geometry, PickLastPreviousAndInteractiveModes) {
    const double onCircle[3] = {50, 55.2, 0};  // 0.2 off the circle, inside the pick box
    EXPECT_EQ(select(nullptr, onCircle, nullptr, nullptr), (std::set<std::wstring>{circle_}));
    const double far[3] = {300, 300, 0};
    select(nullptr, far, nullptr, nullptr, RTERROR);
    EXPECT_EQ(select(L"L", nullptr, nullptr, nullptr), (std::set<std::wstring>{arc_}));
    const double w1[3] = {-1, -1, 0}, w2[3] = {25, 11, 0};
    select(L"W", w1, w2, nullptr);
    EXPECT_EQ(select(L"P", nullptr, nullptr, nullptr), (std::set<std::wstring>{lineA_, text_}));
    ads_name ss;
    EXPECT_EQ(acedSSGet(nullptr, nullptr, nullptr, nullptr, ss), RTCAN);
    EXPECT_EQ(acedSSGet(L":S", nullptr, nullptr, nullptr, ss), RTCAN);
    // A queued pick answers an interactive selection.
    ads_name circle;
    ASSERT_EQ(acdbHandEnt(circle_.c_str(), circle), RTNORM);
    const double at[3] = {55, 50, 0};
    host::queueEntityPick(circle, at);
    host::OutputCapture prompts;
    EXPECT_EQ(select(nullptr, nullptr, nullptr, nullptr), (std::set<std::wstring>{circle_}));
    EXPECT_EQ(prompts.commandLine(), L"\nSelect objects: ") << "the selection's own prompt, not a pick's";
    EXPECT_EQ(acedSSGet(nullptr, nullptr, nullptr, nullptr, ss), RTCAN) << "the queue is used up";
}

}  // namespace
}  // namespace dbtest

namespace dbtest {
namespace {

TEST_F(Selection, DeletedFrozenAndPaperSpaceEntities) {
    const double a[3] = {1, 1, 0}, b[3] = {2, 2, 0};
    std::wstring kept = make(acutBuildList(RTDXF0, L"LINE", 8, L"SHOWN", 10, a, 11, b, 0));
    std::wstring frozen = make(acutBuildList(RTDXF0, L"LINE", 8, L"COLD", 10, a, 11, b, 0));
    std::wstring paper = make(acutBuildList(RTDXF0, L"LINE", 67, 1, 10, a, 11, b, 0));
    make(acutBuildList(RTDXF0, L"LINE", 10, a, 11, b, 0));
    ads_name gone;
    ASSERT_EQ(acdbEntLast(gone), RTNORM);
    ASSERT_EQ(acdbEntDel(gone), RTNORM);
    ASSERT_EQ(acedCommand(RTSTR, L"LAYER", RTSTR, L"F", RTSTR, L"COLD", RTSTR, L"", 0), RTNORM);
    EXPECT_EQ(select(L"X", nullptr, nullptr, nullptr), (std::set<std::wstring>{kept, frozen, paper}));
    EXPECT_EQ(select(L"A", nullptr, nullptr, nullptr), (std::set<std::wstring>{kept, paper}));
    const double w1[3] = {0, 0, 0}, w2[3] = {3, 3, 0};
    EXPECT_EQ(select(L"W", w1, w2, nullptr), (std::set<std::wstring>{kept, frozen})) << "model space only";
}

}  // namespace
}  // namespace dbtest
