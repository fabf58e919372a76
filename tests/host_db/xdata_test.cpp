// Extended data through the entity functions: reading by application pattern, replacing per
// application, removing, the limits of strings, nesting and the room of an entity.
#include <string>

#include "tests/host_db/db_fixture.h"

namespace dbtest {
namespace {

using host::RbPtr;

const double kA[3] = {0, 0, 0};
const double kB[3] = {100, 0, 0};

class Xdata : public DrawingTest {
protected:
    void SetUp() override {
        DrawingTest::SetUp();
        ASSERT_EQ(acdbRegApp(L"K_DUCT_SIZE"), RTNORM);
        ASSERT_EQ(acdbRegApp(L"K_DUCT_NO"), RTNORM);
        ASSERT_EQ(acdbRegApp(L"OTHER"), RTNORM);
        makeLine(kA, kB);
        last(line_);
    }
    // Gives the line the extended data after -3 in list (a chain starting at -3).
    int attach(resbuf* xdata) {
        RbPtr head(acutBuildList(-1, line_, 0));
        head->rbnext = xdata;
        return acdbEntMod(head.get());
    }
    RbPtr getX(const wchar_t* pattern) {
        RbPtr apps(acutBuildList(RTSTR, pattern, 0));
        return RbPtr(acdbEntGetX(line_, apps.get()));
    }
    // The application names of an entity list's extended data, in order.
    static std::vector<std::wstring> apps(const resbuf* rb) {
        std::vector<std::wstring> names;
        for (; rb; rb = rb->rbnext)
            if (rb->restype == 1001) names.push_back(text(rb));
        return names;
    }
    ads_name line_;
};

TEST_F(Xdata, EntGetShowsNoExtendedDataAndEntGetXShowsItAfterTheSentinel) {
    const double size[3] = {500, 320, 0};
    ASSERT_EQ(attach(acutBuildList(-3, 1001, L"k_duct_size", 1002, L"{", 1040, 500.0, 1040, 320.0, 1002,
                                   L"}", 1001, L"K_DUCT_NO", 1070, 12, 0)),
              RTNORM);
    (void)size;
    RbPtr plain = get(line_);
    EXPECT_EQ(find(plain.get(), -3), nullptr);
    EXPECT_EQ(find(plain.get(), 1001), nullptr);

    RbPtr all = getX(L"*");
    const resbuf* sentinel = find(all.get(), -3);
    ASSERT_NE(sentinel, nullptr);
    EXPECT_EQ(sentinel->rbnext->restype, 1001);
    EXPECT_EQ(apps(all.get()), (std::vector<std::wstring>{L"K_DUCT_SIZE", L"K_DUCT_NO"}))
        << "names as registered, in the order given";
    EXPECT_EQ(find(all.get(), 1040, 1)->resval.rreal, 320.0);
    EXPECT_EQ(find(all.get(), 1070)->resval.rint, 12);

    EXPECT_EQ(apps(getX(L"*_NO").get()), (std::vector<std::wstring>{L"K_DUCT_NO"}));
    EXPECT_EQ(apps(getX(L"k_duct_s*,OTHER").get()), (std::vector<std::wstring>{L"K_DUCT_SIZE"}));
    RbPtr none = getX(L"OTHER");
    EXPECT_EQ(find(none.get(), -3), nullptr) << "no -3 when no application matches";
}

TEST_F(Xdata, AnApplicationListedReplacesOnlyItsOwnData) {
    ASSERT_EQ(attach(acutBuildList(-3, 1001, L"K_DUCT_NO", 1070, 1, 1001, L"OTHER", 1000, L"keep", 0)),
              RTNORM);
    ASSERT_EQ(attach(acutBuildList(-3, 1001, L"K_DUCT_NO", 1070, 2, 1070, 3, 0)), RTNORM);
    RbPtr all = getX(L"*");
    EXPECT_EQ(apps(all.get()), (std::vector<std::wstring>{L"K_DUCT_NO", L"OTHER"}));
    EXPECT_EQ(find(all.get(), 1070, 0)->resval.rint, 2);
    EXPECT_EQ(find(all.get(), 1070, 1)->resval.rint, 3);
    EXPECT_EQ(text(find(all.get(), 1000)), L"keep");
    // An application given with no data loses its data.
    ASSERT_EQ(attach(acutBuildList(-3, 1001, L"K_DUCT_NO", 0)), RTNORM);
    EXPECT_EQ(apps(getX(L"*").get()), (std::vector<std::wstring>{L"OTHER"}));
}

TEST_F(Xdata, RefusedExtendedDataLeavesTheEntityUnchanged) {
    ASSERT_EQ(attach(acutBuildList(-3, 1001, L"OTHER", 1000, L"before", 0)), RTNORM);
    EXPECT_EQ(attach(acutBuildList(-3, 1001, L"UNREGISTERED", 1000, L"x", 0)), RTREJ);
    EXPECT_EQ(errnoValue(), 50);
    EXPECT_EQ(attach(acutBuildList(-3, 1001, L"OTHER", 1002, L"{", 1000, L"x", 0)), RTREJ);
    EXPECT_EQ(errnoValue(), 49);
    EXPECT_EQ(attach(acutBuildList(-3, 1001, L"OTHER", 1002, L"}", 1002, L"{", 0)), RTREJ);
    EXPECT_EQ(errnoValue(), 49);
    std::wstring tooLong(256, L'x');
    EXPECT_EQ(attach(acutBuildList(-3, 1001, L"OTHER", 1000, tooLong.c_str(), 0)), RTREJ);
    std::wstring longest(255, L'x');
    EXPECT_EQ(attach(acutBuildList(-3, 1001, L"K_DUCT_NO", 1000, longest.c_str(), 0)), RTNORM);
    RbPtr all = getX(L"OTHER");
    EXPECT_EQ(text(find(all.get(), 1000)), L"before");
}

TEST_F(Xdata, RoomIsTheLimitLessWhatTheDataTakes) {
    long room = 0;
    ASSERT_EQ(acdbXdRoom(line_, &room), RTNORM);
    EXPECT_EQ(room, 16383);
    RbPtr data(acutBuildList(-3, 1001, L"K_DUCT_SIZE", 1002, L"{", 1040, 500.0, 1040, 320.0, 1002, L"}",
                             1001, L"OTHER", 1000, L"abc", 0));
    long size = 0;
    ASSERT_EQ(acdbXdSize(data.get(), &size), RTNORM);
    EXPECT_GT(size, 0);
    ASSERT_EQ(attach(host::copyChain(data.get())), RTNORM);
    ASSERT_EQ(acdbXdRoom(line_, &room), RTNORM);
    EXPECT_EQ(room, 16383 - size);
    // xdsize also takes the list without its -3, and refuses unregistered names.
    long without = 0;
    ASSERT_EQ(acdbXdSize(data->rbnext, &without), RTNORM);
    EXPECT_EQ(without, size);
    RbPtr unknown(acutBuildList(1001, L"NOPE", 1000, L"x", 0));
    EXPECT_EQ(acdbXdSize(unknown.get(), &without), RTERROR);
}

TEST_F(Xdata, MoreThanTheRoomIsRefused) {
    // Strings of 255 characters until the room of 16383 bytes is exceeded.
    std::wstring chunk(255, L'y');
    RbPtr list(acutBuildList(-3, 1001, L"OTHER", 0));
    resbuf* tail = list->rbnext;
    for (int i = 0; i < 70; ++i) {
        tail->rbnext = acutBuildList(1000, chunk.c_str(), 0);
        tail = tail->rbnext;
    }
    long size = 0;
    ASSERT_EQ(acdbXdSize(list.get(), &size), RTNORM);
    ASSERT_GT(size, 16383);
    EXPECT_EQ(attach(host::copyChain(list.get())), RTREJ);
    EXPECT_EQ(errnoValue(), 51);
}

TEST_F(Xdata, EntMakeTakesExtendedDataAndTheReadBackMatches) {
    const double p[3] = {1.5, 2.5, 3.5};
    RbPtr list(acutBuildList(RTDXF0, L"LINE", 10, kA, 11, kB, -3, 1001, L"OTHER", 1000, L"中文", 1010, p,
                             1071, 70000L, 1005, L"1F", 0));
    ASSERT_EQ(acdbEntMake(list.get()), RTNORM);
    ads_name e;
    last(e);
    RbPtr apps(acutBuildList(RTSTR, L"OTHER", 0));
    RbPtr back(acdbEntGetX(e, apps.get()));
    EXPECT_EQ(text(find(back.get(), 1000)), L"中文");
    EXPECT_EQ(find(back.get(), 1010)->resval.rpoint[2], 3.5);
    EXPECT_EQ(find(back.get(), 1071)->resval.rlong, 70000L);
    EXPECT_EQ(text(find(back.get(), 1005)), L"1F");
    RbPtr unregistered(acutBuildList(RTDXF0, L"LINE", 10, kA, 11, kB, -3, 1001, L"NOPE", 1000, L"x", 0));
    EXPECT_EQ(acdbEntMake(unregistered.get()), RTREJ);
}

}  // namespace
}  // namespace dbtest
